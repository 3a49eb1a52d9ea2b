// SPDX-License-Identifier: MIT
#include "bench/Floor.h"

#include <sqlite3.h>

DbRows loadByFloor(const char* sql)
{
    sqlite3* connection = nullptr;
    sqlite3_open_v2("Vendel.db", &connection, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr);
    sqlite3_stmt* statement = nullptr;
    sqlite3_prepare_v2(connection, sql, -1, &statement, nullptr);
    DbRows rows;
    const int columns = sqlite3_column_count(statement);
    while (sqlite3_step(statement) == SQLITE_ROW) {
        auto& row = rows.emplace_back();
        row.reserve(static_cast<std::size_t>(columns));
        for (int column = 0; column < columns; ++column) {
            const unsigned char* text = sqlite3_column_text(statement, column);
            row.emplace_back(text == nullptr ? "" : reinterpret_cast<const char*>(text));
        }
    }
    sqlite3_finalize(statement);
    sqlite3_close(connection);
    return rows;
}
