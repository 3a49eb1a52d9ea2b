// SPDX-License-Identifier: MIT
#include "launcher/Backup.h"

#include "base/Descriptor.h"
#include "base/Handle.h"
#include "launcher/Database.h"

#include <chrono>
#include <thread>

#include <fcntl.h>

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

/// Copies in steps. Each change by the till makes SQLite begin again, so the pauses between steps
/// end after a few changes. Those after changes grow, to meet a quiet moment, and the attempt ends
/// after some more: a disk must not be worn out by one that never does.
int copyGently(sqlite3_backup* copying, int target)
{
    constexpr int pages = 64;
    constexpr int stepsBetweenSyncs = 16;
    constexpr int changesWithPauses = 3;
    constexpr int mostChanges = 30;
    constexpr int mostRefusals = 2000;
    constexpr std::chrono::milliseconds pause(3);
    constexpr std::chrono::milliseconds pauseAfterChange(20);
    int changes = 0;
    int refusals = 0;
    int remaining = -1;
    int code = SQLITE_OK;
    for (int steps = 1; (code = sqlite3_backup_step(copying, pages)) == SQLITE_OK || isBusy(code);
         ++steps) {
        // Else the till's next commit would wait until the disk has taken the whole copy.
        if (steps % stepsBetweenSyncs == 0) {
            fdatasync(target);
        }
        if (isBusy(code) && ++refusals > mostRefusals) {
            return code;
        }
        const int left = sqlite3_backup_remaining(copying);
        if (remaining >= 0 && left > remaining) {
            if (++changes > mostChanges) {
                return SQLITE_BUSY;
            }
            std::this_thread::sleep_for(pauseAfterChange * changes);
        }
        remaining = left;
        if (isBusy(code) || changes <= changesWithPauses) {
            std::this_thread::sleep_for(pause);
        }
    }
    return code;
}
} // namespace

void bring(const std::string& source, const std::string& target, Pace pace)
{
    constexpr double seconds = 600;
    const bool isAlone = pace == Pace::Full;
    const auto sharing = isAlone ? Database::Sharing::Alone : Database::Sharing::WithTill;
    const Database from(source, seconds, sharing);
    const Connection to = openTarget(target);
    const Descriptor file(open(target.c_str(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC));
    Copying copying(sqlite3_backup_init(to.get(), "main", from.get(), "main"));
    if (!copying) {
        throw DatabaseError(sqlite3_extended_errcode(to.get()));
    }
    const int code
        = isAlone ? sqlite3_backup_step(copying.get(), -1) : copyGently(copying.get(), file.get());
    if (code != SQLITE_DONE) {
        throw DatabaseError(code);
    }
    const int ended = sqlite3_backup_finish(copying.release());
    if (ended != SQLITE_OK) {
        throw DatabaseError(ended);
    }
}

void copy(const std::string& source, const std::string& target, Pace pace)
{
    bring(source, target, pace);
    try {
        requireSound(target);
    } catch (const DatabaseError& error) {
        // A disk that does not give the copy back says nothing against what was copied.
        if (error.isAboutContent()) {
            if (pace == Pace::Full) {
                requireSound(source);
            }
            throw DatabaseError(SQLITE_IOERR);
        }
        throw;
    }
}
} // namespace Backup
