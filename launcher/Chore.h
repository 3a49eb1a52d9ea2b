// SPDX-License-Identifier: MIT
#pragma once

#include "base/Descriptor.h"

#include <functional>
#include <optional>

#include <sys/types.h>

/// Work that a process of its own does in limited time, so that a medium that hangs holds up
/// nobody.
class Chore
{
public:
    /// Throws std::system_error.
    Chore();

    /// Does \a work, whose result is the process's exit status, for at most \a seconds. False when
    /// there can be no process.
    bool start(const std::function<int()>& work, double seconds);
    /// Gives the work under way \a seconds from now.
    void limit(double seconds);

    bool isUnderWay() const { return process_ > 0; }
    /// Whether the work is under way and worth waiting for: a process that a medium does not let go
    /// of outlives even being killed.
    bool isAwaited() const { return isUnderWay() && !isGivenUp_; }

    /// What to wait for; then lookAtClock() has to be called.
    int clock() const { return clock_.get(); }
    /// Ends work that is late.
    void lookAtClock();
    /// The exit status of work that has ended, once.
    std::optional<int> ended();

private:
    Descriptor clock_;
    pid_t process_ = -1;
    bool isKilled_ = false;
    bool isGivenUp_ = false;
};
