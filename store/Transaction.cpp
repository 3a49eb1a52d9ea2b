// SPDX-License-Identifier: MIT
#include "store/Transaction.h"

#include "db/Db.h"

bool Transaction::run(const std::vector<std::string>& statements)
{
    return Db::DbTransact(statements);
}
