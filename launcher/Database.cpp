// SPDX-License-Identifier: MIT
#include "launcher/Database.h"

#include "launcher/Clock.h"
#include "launcher/Journals.h"
#include "launcher/Reasons.h"
#include "launcher/TillSchema.h"

#include <cstdlib>
#include <string_view>
#include <utility>
#include <vector>

namespace {
constexpr int busyTimeoutMs = 2000;
constexpr int primaryCode = 0xff;

void require(int code)
{
    if (code != SQLITE_OK) {
        throw DatabaseError(code);
    }
}

std::string_view text(sqlite3_stmt* statement, int column)
{
    const unsigned char* found = sqlite3_column_text(statement, column);
    const auto size = static_cast<std::size_t>(sqlite3_column_bytes(statement, column));
    return found == nullptr ? std::string_view()
                            : std::string_view(reinterpret_cast<const char*>(found), size);
}

/// Where SQLite looks for the journals of \a name: beside the file that links lead to.
std::string realPath(const std::string& name)
{
    const Handle<char, std::free> found(realpath(name.c_str(), nullptr));
    return found ? found.get() : name;
}

/// Takes from what a database contains the means to act on its own.
void harden(sqlite3* connection)
{
    constexpr int longestSql = 100000;
    constexpr int longestText = 16 * 1024 * 1024;
    constexpr sqlite3_int64 mostMemory = 67108864;
    constexpr std::pair<int, int> settings[]{
        {SQLITE_DBCONFIG_DEFENSIVE, 1},
        {SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0},
        {SQLITE_DBCONFIG_ENABLE_TRIGGER, 0},
        {SQLITE_DBCONFIG_ENABLE_VIEW, 0},
        {SQLITE_DBCONFIG_ENABLE_FKEY, 0},
        {SQLITE_DBCONFIG_ENABLE_LOAD_EXTENSION, 0},
    };
    for (const auto& [setting, value] : settings) {
        require(sqlite3_db_config(connection, setting, value, nullptr));
    }
    // A till's schema needs a few kilobytes; a hostile one would take the machine's memory.
    sqlite3_hard_heap_limit64(mostMemory);
    sqlite3_limit(connection, SQLITE_LIMIT_ATTACHED, 0);
    sqlite3_limit(connection, SQLITE_LIMIT_SQL_LENGTH, longestSql);
    sqlite3_limit(connection, SQLITE_LIMIT_LENGTH, longestText);
    require(sqlite3_busy_timeout(connection, busyTimeoutMs));
}
} // namespace

DatabaseError::DatabaseError(int code)
    : code_(code & primaryCode)
    , reason_(Reasons::ofSqlite(code))
{ }

DatabaseError::DatabaseError(const Sentence& reason, int code)
    : code_(code)
    , reason_(reason)
{ }

Database::Database(const std::string& name, double seconds, Sharing sharing)
    : deadline_(std::make_unique<double>(steadySeconds() + seconds))
{
    const std::string path = realPath(name);
    hasWal_ = Journals::hasWal(path);
    if (!Journals::areSafe(path)) {
        throw DatabaseError(Sentences::foreignJournal);
    }
    sqlite3* handle = nullptr;
    const int code = sqlite3_open_v2(path.c_str(), &handle, SQLITE_OPEN_READWRITE, nullptr);
    connection_.reset(handle);
    require(code);
    harden(handle);
    constexpr int stepsBetweenLooks = 1000;
    sqlite3_progress_handler(handle, stepsBetweenLooks, isLate, deadline_.get());
    run("pragma mmap_size = 0", nullptr);
    run("pragma cell_size_check = on", nullptr);
    if (hasWal_ && sharing == Sharing::Alone) {
        // Alone with the log, SQLite needs no shared memory that others could have prepared.
        run("pragma locking_mode = exclusive", nullptr);
    }
}

int Database::isLate(void* deadline)
{
    return steadySeconds() > *static_cast<double*>(deadline) ? 1 : 0;
}

void Database::run(const std::string& sql, const Row& row)
{
    sqlite3_stmt* handle = nullptr;
    const int code = sqlite3_prepare_v2(get(), sql.c_str(), -1, &handle, nullptr);
    const Handle<sqlite3_stmt, sqlite3_finalize> statement(handle);
    if (code != SQLITE_OK) {
        throw DatabaseError(sqlite3_extended_errcode(get()));
    }
    int step = SQLITE_DONE;
    while ((step = sqlite3_step(handle)) == SQLITE_ROW) {
        if (row) {
            row(handle);
        }
    }
    if (step != SQLITE_DONE) {
        throw DatabaseError(sqlite3_extended_errcode(get()));
    }
}

Database::Schema Database::schema()
{
    Schema found;
    run("select type, name, tbl_name, sql from sqlite_schema", [&](sqlite3_stmt* row) {
        const TillSchema::Object object{text(row, 0), text(row, 1), text(row, 2), text(row, 3)};
        found.isOnlyOwn = found.isOnlyOwn && TillSchema::isOwn(object);
        found.tables += TillSchema::isTillTable(object) ? 1 : 0;
    });
    if (sqlite3_db_readonly(connection_.get(), "main") != 0) {
        // Its header may ask for a later SQLite to be written to: no sale could be recorded.
        const char* path = sqlite3_db_filename(connection_.get(), "main");
        throw DatabaseError(Journals::isOfLaterSqlite(path) ? SQLITE_CORRUPT : SQLITE_READONLY);
    }
    return found;
}

bool Database::hasRows()
{
    std::vector<std::string> names;
    run("select name from sqlite_schema where type = 'table' and substr(name, 1, 7) <> 'sqlite_'",
        [&](sqlite3_stmt* table) { names.emplace_back(text(table, 0)); });
    bool hasAny = false;
    for (const std::string& name : names) {
        const bool isConfig = TillSchema::normalized(name) == "config";
        const char* const worth = isConfig ? " where not (param = 'TVA' and valeur = 0)" : "";
        run("select 1 from " + name + worth + " limit 1", [&](sqlite3_stmt*) { hasAny = true; });
    }
    return hasAny;
}

bool Database::isIntact()
{
    bool isOk = false;
    try {
        run("pragma integrity_check(1)", [&](sqlite3_stmt* row) { isOk = text(row, 0) == "ok"; });
    } catch (const DatabaseError& error) {
        if (error.code() != SQLITE_CORRUPT) {
            throw;
        }
        return false;
    }
    return isOk;
}

void Database::endWal()
{
    if (!hasWal_) {
        return;
    }
    run("pragma wal_checkpoint(truncate)", [](sqlite3_stmt* row) {
        if (sqlite3_column_int(row, 0) != 0) {
            throw DatabaseError(SQLITE_BUSY);
        }
    });
    run("pragma journal_mode = delete", [](sqlite3_stmt* row) {
        if (text(row, 0) != "delete") {
            throw DatabaseError(SQLITE_BUSY);
        }
    });
}

void Database::requireAlone()
{
    run("begin exclusive", nullptr);
    run("rollback", nullptr);
}

void Database::requireReadable() { run("pragma schema_version", nullptr); }

bool Database::printsOnPaper()
{
    bool isOnPaper = false;
    run("select valeur from Config where param like 'Epson TM-T20II'",
        [&](sqlite3_stmt* row) { isOnPaper = sqlite3_column_int(row, 0) == 1; });
    return isOnPaper;
}

void requireSound(const std::string& path)
{
    constexpr double seconds = 120;
    Database database(path, seconds);
    const Database::Schema schema = database.schema();
    if (schema.tables < static_cast<int>(TillSchema::tables.size())) {
        throw DatabaseError(Sentences::lacksTables, SQLITE_CORRUPT);
    }
    if (!schema.isOnlyOwn) {
        throw DatabaseError(Sentences::foreignContent);
    }
    database.endWal();
    if (!database.isIntact()) {
        throw DatabaseError(SQLITE_CORRUPT);
    }
}
