// SPDX-License-Identifier: MIT
#include "store/Database.h"

#include "db/Db.h"

#include <QFile>

void Database::createIfMissing()
{
    if (!QFile::exists(QStringLiteral("Vendel.db"))) {
        Db::DbCreate();
    }
}
