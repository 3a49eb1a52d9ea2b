// SPDX-License-Identifier: MIT
#pragma once

#include "base/Handle.h"
#include "launcher/Sentences.h"

#include <exception>
#include <functional>
#include <memory>
#include <string>

#include <sqlite3.h>

/// What SQLite, or the launcher before it, has against a database.
class DatabaseError : public std::exception
{
public:
    /// \a code is SQLite's.
    explicit DatabaseError(int code);
    /// What SQLite does not object to, but the launcher does.
    explicit DatabaseError(const Sentence& reason, int code = SQLITE_AUTH);

    /// SQLite's code without its details; SQLITE_AUTH for what is not the till's.
    int code() const { return code_; }
    /// Whether the file itself is to blame, and not the disk, a lock or the time.
    bool isAboutContent() const
    {
        return code_ == SQLITE_CORRUPT || code_ == SQLITE_NOTADB || code_ == SQLITE_AUTH;
    }
    /// Why, in a shopkeeper's words.
    const Words& reason() const { return reason_; }
    const char* what() const noexcept override { return reason_.english.c_str(); }

private:
    int code_;
    Words reason_;
};

/// A database that nobody trusts: whatever it contains, reading it runs nothing and ends in time.
class Database
{
public:
    /// What a database consists of.
    struct Schema
    {
        /// How many of the till's six tables are there, by name.
        int tables = 0;
        /// Whether there is nothing but what the till makes.
        bool isOnlyOwn = true;

        bool isWhole() const { return tables == 6 && isOnlyOwn; }
    };

    /// Who else may use the database meanwhile.
    enum class Sharing
    {
        Alone,
        WithTill
    };

    /// Opens the existing file \a name for at most \a seconds. Throws DatabaseError.
    Database(const std::string& name, double seconds, Sharing sharing = Sharing::Alone);

    /// Reads what the database consists of; a change that was cut off is undone first. Has to come
    /// before anything else. Throws DatabaseError.
    Schema schema();

    /// Whether a row is there that a first start would not have left before its last setting. Only
    /// for a schema of the till's own.
    bool hasRows();

    /// Whether SQLite finds nothing wrong in the whole file. Only for a schema of the till's own.
    bool isIntact();

    /// Moves what is in a write-ahead log into the file, and does without one from then on, as the
    /// till does.
    void endWal();

    /// Fails when another program is using the database.
    void requireAlone();

    /// Fails when another program does not let it be read.
    void requireReadable();

    /// Whether the till's setting is to print receipts on paper. Only for a schema of the till's
    /// own.
    bool printsOnPaper();

    /// SQLite's handle, for what has functions of its own.
    sqlite3* get() const { return connection_.get(); }

private:
    using Row = std::function<void(sqlite3_stmt*)>;
    void run(const std::string& sql, const Row& row);
    static int isLate(void* deadline);

    std::unique_ptr<double> deadline_;
    Handle<sqlite3, sqlite3_close> connection_;
    bool hasWal_ = false;
};

/// Fails unless \a path is a sound database of the till, and leaves it with no journal. Throws
/// DatabaseError.
void requireSound(const std::string& path);
