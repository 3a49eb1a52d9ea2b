// SPDX-License-Identifier: MIT
#pragma once

#include "launcher/Backup.h"
#include "launcher/Copies.h"
#include "launcher/SecondPlace.h"

/// What is done for the copies while the till runs, in a process of its own.
class CopyWork
{
public:
    /// The exit statuses of that process; a process that was killed has another.
    enum class Result
    {
        Done = 0,
        Failed = 1,
        Damaged = 2
    };

    /// For the shop in the data folder \a folder.
    explicit CopyWork(int folder);

    /// Whether a copy is due; also when nobody knows.
    bool isChanged() const noexcept;
    bool hasSecondPlace() const { return !place_.path().empty(); }

    /// Makes a copy if \a makesCopy, and brings the newest to the second place when it is there.
    Result run(bool makesCopy, Backup::Pace pace) const noexcept;

private:
    Copies copies_;
    SecondPlace place_;
};
