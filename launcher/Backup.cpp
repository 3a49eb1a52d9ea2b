// SPDX-License-Identifier: MIT
#include "launcher/Backup.h"

#include "base/Handle.h"
#include "launcher/Database.h"

#include <chrono>
#include <thread>

namespace Backup {
namespace {
using Connection = Handle<sqlite3, sqlite3_close>;
using Copying = Handle<sqlite3_backup, sqlite3_backup_finish>;

/// The connection that writes the copy: nobody reads it before it is complete and synced.
Connection openTarget(const std::string& path)
{
    sqlite3* handle = nullptr;
    const int code = sqlite3_open_v2(path.c_str(), &handle, SQLITE_OPEN_READWRITE, nullptr);
    Connection connection(handle);
    if (code != SQLITE_OK) {
        throw DatabaseError(code);
    }
    sqlite3_exec(handle, "pragma journal_mode = memory; pragma synchronous = off", nullptr, nullptr,
        nullptr);
    return connection;
}

bool isBusy(int code) { return code == SQLITE_BUSY || code == SQLITE_LOCKED; }

/// Copies in steps. Each change by the till makes SQLite begin again, so the pauses end after a few
/// changes, and the attempt after many.
int copyGently(sqlite3_backup* copying)
{
    constexpr int pages = 64;
    constexpr int changesWithPauses = 3;
    constexpr int mostChanges = 100;
    constexpr int mostRefusals = 2000;
    constexpr std::chrono::milliseconds pause(3);
    int changes = 0;
    int refusals = 0;
    int remaining = -1;
    int code = SQLITE_OK;
    while ((code = sqlite3_backup_step(copying, pages)) == SQLITE_OK || isBusy(code)) {
        if (isBusy(code) && ++refusals > mostRefusals) {
            return code;
        }
        const int left = sqlite3_backup_remaining(copying);
        if (remaining >= 0 && left > remaining && ++changes > mostChanges) {
            return SQLITE_BUSY;
        }
        remaining = left;
        if (isBusy(code) || changes <= changesWithPauses) {
            std::this_thread::sleep_for(pause);
        }
    }
    return code;
}
} // namespace

void copy(const std::string& source, const std::string& target, Pace pace)
{
    constexpr double seconds = 600;
    {
        const auto sharing
            = pace == Pace::Full ? Database::Sharing::Alone : Database::Sharing::WithTill;
        const Database from(source, seconds, sharing);
        const Connection to = openTarget(target);
        Copying copying(sqlite3_backup_init(to.get(), "main", from.get(), "main"));
        if (!copying) {
            throw DatabaseError(sqlite3_extended_errcode(to.get()));
        }
        const int code = pace == Pace::Full ? sqlite3_backup_step(copying.get(), -1)
                                            : copyGently(copying.get());
        if (code != SQLITE_DONE) {
            throw DatabaseError(code);
        }
        const int ended = sqlite3_backup_finish(copying.release());
        if (ended != SQLITE_OK) {
            throw DatabaseError(ended);
        }
    }
    requireSound(target);
}
} // namespace Backup
