// SPDX-License-Identifier: MIT
#include "db/Db.h"

#include "base/Handle.h"

#include <algorithm>
#include <array>
#include <exception>
#include <iostream>

#include <sqlite3.h>

namespace {
constexpr int busyTimeoutMs = 2000;

constexpr std::array<const char*, 9> schema{
    "CREATE TABLE Article (id integer primary key autoincrement not null, "
    "article text COLLATE NOCASE not null, prix numeric not null)",
    "CREATE TABLE ArticleStock (id integer primary key not null, "
    "article text COLLATE NOCASE not null)",
    "CREATE TABLE Historique (id integer not null, article text COLLATE NOCASE not null, "
    "prix numeric not null, "
    "date_heure text not null default(strftime('%Y-%m-%d %H:%M:%f','now','localtime')))",
    "CREATE TABLE DoseStock (idlig integer primary key not null, id integer not null, "
    "composition text COLLATE NOCASE not null, dose numeric not null, unite text not null, "
    "constraint fk_dosestock foreign key (id) references ArticleStock (id) on delete cascade)",
    "CREATE TABLE Config (id integer primary key not null, param text COLLATE NOCASE not null, "
    "valeur numeric not null)",
    "CREATE TABLE Ticket (idlig integer primary key not null, id integer not null, "
    "article text COLLATE NOCASE not null, prix numeric not null)",
    "CREATE INDEX date_heure_index on Historique (date_heure)",
    "insert into Config (param,valeur) values ('TVA',0)",
    "insert into Config (param,valeur) values ('Epson TM-T20II',0)",
};

using Connection = Handle<sqlite3, sqlite3_close>;
using Statement = Handle<sqlite3_stmt, sqlite3_finalize>;

Connection openDatabase()
{
    sqlite3* handle = nullptr;
    const int code = sqlite3_open_v2(
        "Vendel.db", &handle, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr);
    Connection connection(handle);
    if (code != SQLITE_OK) {
        std::cout << "Not open database successfully\n";
        return connection;
    }
    sqlite3_busy_timeout(handle, busyTimeoutMs);
    // A withdrawn article's recipe outlives it, also where SQLite is built to enforce foreign keys.
    sqlite3_db_config(handle, SQLITE_DBCONFIG_ENABLE_FKEY, 0, nullptr);
    return connection;
}

Statement prepare(sqlite3* connection, const char* sql)
{
    sqlite3_stmt* handle = nullptr;
    sqlite3_prepare_v2(connection, sql, -1, &handle, nullptr);
    return Statement(handle);
}

DbRows readRows(sqlite3_stmt* statement)
{
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
    return rows;
}

/// Reports what SQLite last said of \a connection; returns whether that was no error.
bool report(sqlite3* connection, const char* sql)
{
    if (sqlite3_errcode(connection) == SQLITE_OK) {
        return true;
    }
    std::cout << "Errors Db::DbLoad sqlite3_errmsg : ";
    if (sql == nullptr) {
        // What writing a null text does to a stream: nothing more is printed from then on.
        std::cout.setstate(std::ios_base::failbit);
    } else {
        std::cout << sql;
    }
    const char* message = sqlite3_errmsg(connection);
    std::cout << ' ' << (message == nullptr ? "" : message) << std::endl;
    return false;
}

struct Outcome
{
    DbRows rows;
    bool done;
};

Outcome run(sqlite3* connection, const char* sql)
{
    DbRows rows;
    if (Statement statement = prepare(connection, sql)) {
        rows = readRows(statement.get());
    }
    const bool done = report(connection, sql);
    return {std::move(rows), done};
}
} // namespace

DbRows Db::DbLoad(const char* sql) { return run(openDatabase().get(), sql).rows; }

bool Db::DbTransact(const std::vector<std::string>& statements)
{
    // Whatever is not committed is rolled back when the connection is closed.
    const Connection connection = openDatabase();
    const auto isDone
        = [&](const std::string& sql) { return run(connection.get(), sql.c_str()).done; };
    return isDone("begin immediate") && std::all_of(statements.begin(), statements.end(), isDone)
        && isDone("commit");
}

void Db::DbCreate()
{
    try {
        for (const char* statement : schema) {
            DbLoad(statement);
        }
    } catch (const std::exception& error) {
        std::cerr << "Errors Db::DbLoad : " << error.what() << '\n';
    }
}
