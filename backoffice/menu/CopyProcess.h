// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <atomic>
#include <optional>

/// The copy of the shop's database that is made before an import. It is made by a process of its
/// own: in this one, looking at the database file would end the locks of whoever is reading it, and
/// the limits for a database that nobody trusts yet would hold for all that come after it.
namespace CopyProcess {
/// What the process ends with.
enum class Outcome
{
    Done = 0,
    Failed = 1,
    DiskFull = 2,
    NotWritable = 3,
    /// The till, or another copy, is under way for too long.
    Busy = 4,
    /// The database is damaged, or not the till's.
    Unusable = 5,
    /// Somebody did not want to wait any longer.
    Stopped = 6
};

/// What main() has to return when it is that process; nothing when it is not. To be called before
/// anything else.
std::optional<int> asked(int argc, char** argv);

struct Result
{
    Outcome outcome = Outcome::Failed;
    /// The file's name in the folder of copies.
    QString name;
};

/// Lets \a program, whose main() calls asked(), make a checked copy in the data folder \a folder. A
/// till at work waits for none of its steps. Ends early when \a isStopped is set.
Result make(const QString& program, const QString& folder, const std::atomic<bool>& isStopped);
} // namespace CopyProcess
