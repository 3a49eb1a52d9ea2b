// SPDX-License-Identifier: MIT
#include "store/BulkInsert.h"

#include "store/Rows.h"

#include <stdexcept>

BulkInsert::BulkInsert(const std::string& head)
    : head_(head)
{ }

void BulkInsert::run() const
{
    if (!isEmpty_ && !Db::DbTransact({head_ + rows_.str()})) {
        throw std::runtime_error("the database cannot be filled");
    }
}

std::string BulkInsert::quoted(const std::string& text)
{
    return Rows::quoted(QString::fromStdString(text)).toStdString();
}
