// SPDX-License-Identifier: MIT
#pragma once

#include "db/Db.h"

#include <QString>

#include <string>
#include <utility>
#include <vector>

/// How the modules of this folder run a statement and read its rows.
namespace Rows {
using Row = std::vector<std::string>;

/// Runs \a sql like Db::DbLoad.
inline DbRows load(const QString& sql) { return Db::DbLoad(sql.toUtf8().constData()); }

/// The text of \a column. Throws std::out_of_range when the table lacks the column: the windows
/// log that.
inline QString text(const Row& row, std::size_t column)
{
    return QString::fromStdString(row.at(column));
}

/// The values of \a rows, each made by \a read from one row. Each row is freed once it is read, so
/// that a year of sales is not in memory twice.
template <class Read> auto values(DbRows rows, Read read)
{
    std::vector<decltype(read(rows.front()))> result;
    result.reserve(rows.size());
    for (Row& stored : rows) {
        const Row row = std::move(stored);
        result.push_back(read(row));
    }
    return result;
}

/// The texts of the first column of \a rows.
inline std::vector<QString> firstColumn(DbRows rows)
{
    return values(std::move(rows), [](const Row& row) { return text(row, 0); });
}

/// \a text as SQL wants it between single quotes.
QString quoted(const QString& text);
} // namespace Rows
