// SPDX-License-Identifier: MIT
#include "bench/Floor.h"

#include "base/Handle.h"

#include <sqlite3.h>

namespace {
using Connection = Handle<sqlite3, sqlite3_close>;
using Statement = Handle<sqlite3_stmt, sqlite3_finalize>;

Connection open()
{
    sqlite3* connection = nullptr;
    sqlite3_open_v2("Vendel.db", &connection, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr);
    return Connection(connection);
}

DbRows run(const Connection& connection, const char* sql)
{
    sqlite3_stmt* prepared = nullptr;
    sqlite3_prepare_v2(connection.get(), sql, -1, &prepared, nullptr);
    const Statement statement(prepared);
    DbRows rows;
    const int columns = sqlite3_column_count(statement.get());
    while (sqlite3_step(statement.get()) == SQLITE_ROW) {
        auto& row = rows.emplace_back();
        row.reserve(static_cast<std::size_t>(columns));
        for (int column = 0; column < columns; ++column) {
            const unsigned char* text = sqlite3_column_text(statement.get(), column);
            row.emplace_back(text == nullptr ? "" : reinterpret_cast<const char*>(text));
        }
    }
    return rows;
}
} // namespace

DbRows loadByFloor(const char* sql) { return run(open(), sql); }

void transactByFloor(const std::vector<std::string>& statements)
{
    const Connection connection = open();
    run(connection, "begin immediate");
    for (const std::string& statement : statements) {
        run(connection, statement.c_str());
    }
    run(connection, "commit");
}
