// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string>

/// The files that SQLite keeps beside a database. It acts on what it finds there before it can be
/// asked anything, so they are looked at as files first.
namespace Journals {
inline constexpr std::array<const char*, 3> suffixes{"-journal", "-wal", "-shm"};

/// Whether SQLite may be given the journals of \a database: files of its own, none of which names
/// another file that would be deleted with it.
bool areSafe(const std::string& database);

/// Whether the last changes of \a database may be in a write-ahead log.
bool hasWal(const std::string& database);

/// Whether only a later SQLite may write to \a database.
bool isOfLaterSqlite(const std::string& database);
} // namespace Journals
