// SPDX-License-Identifier: MIT
#include "bench/Floor.h"

#include <sqlite3.h>

namespace {
sqlite3* open()
{
    sqlite3* connection = nullptr;
    sqlite3_open_v2("Vendel.db", &connection, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr);
    return connection;
}

DbRows run(sqlite3* connection, const char* sql)
{
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
    return rows;
}
} // namespace

DbRows loadByFloor(const char* sql)
{
    sqlite3* connection = open();
    DbRows rows = run(connection, sql);
    sqlite3_close(connection);
    return rows;
}

void transactByFloor(const std::vector<std::string>& statements)
{
    sqlite3* connection = open();
    run(connection, "begin immediate");
    for (const std::string& statement : statements) {
        run(connection, statement.c_str());
    }
    run(connection, "commit");
    sqlite3_close(connection);
}
