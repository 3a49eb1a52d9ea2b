// SPDX-License-Identifier: MIT
#include "db/Db.h"

#include <array>
#include <exception>
#include <iostream>
#include <memory>
#include <string_view>

#include <sqlite3.h>

namespace {
constexpr int busyTimeoutMs = 2000;

constexpr std::array<const char*, 9> schema{
    "CREATE TABLE Article (id integer primary key autoincrement not null, article text COLLATE "
    "NOCASE not null, prix numeric not null)",
    "CREATE TABLE ArticleStock (id integer primary key not null, article text COLLATE NOCASE not "
    "null)",
    "CREATE TABLE Historique (id integer not null, article text COLLATE NOCASE not null, prix "
    "numeric not null, date_heure text not null default(strftime('%Y-%m-%d "
    "%H:%M:%f','now','localtime')))",
    "CREATE TABLE DoseStock (idlig integer primary key not null, id integer not null, composition "
    "text COLLATE NOCASE not null, dose numeric not null, unite text not null, constraint "
    "fk_dosestock foreign key (id) references ArticleStock (id) on delete cascade)",
    "CREATE TABLE Config (id integer primary key not null, param text COLLATE NOCASE not null, "
    "valeur numeric not null)",
    "CREATE TABLE Ticket (idlig integer primary key not null, id integer not null, article text "
    "COLLATE NOCASE not null, prix numeric not null)",
    "CREATE INDEX date_heure_index on Historique (date_heure)",
    "insert into Config (param,valeur) values ('TVA',0)",
    "insert into Config (param,valeur) values ('Epson TM-T20II',0)",
};

template <auto End> struct EndWith
{
    template <class T> void operator()(T* handle) const noexcept
    {
        End(handle);
    }
};

using Connection = std::unique_ptr<sqlite3, EndWith<sqlite3_close>>;
using Statement = std::unique_ptr<sqlite3_stmt, EndWith<sqlite3_finalize>>;

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
    const char* message = sqlite3_errmsg(connection);
    const std::string_view text = message == nullptr ? "" : message;
    if (text == "not an error") {
        return true;
    }
    std::cout << "Errors Db::DbLoad sqlite3_errmsg : ";
    if (sql == nullptr) {
        std::cout.setstate(std::ios_base::failbit);
    } else {
        std::cout << sql;
    }
    std::cout << ' ' << text << std::endl;
    return false;
}

struct Outcome
{
    DbRows rows;
    bool done;
};

Outcome run(const char* sql)
{
    const Connection connection = openDatabase();
    DbRows rows;
    if (Statement statement = prepare(connection.get(), sql)) {
        rows = readRows(statement.get());
    }
    const bool done = report(connection.get(), sql);
    return {std::move(rows), done};
}
} // namespace

DbRows Db::DbLoad(const char* sql)
{
    return run(sql).rows;
}

bool Db::DbRun(const char* sql)
{
    return run(sql).done;
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
