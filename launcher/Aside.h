// SPDX-License-Identifier: MIT
#pragma once

#include "base/Descriptor.h"

#include <csignal>
#include <functional>
#include <optional>
#include <string>

/// Work that may hang or crash, because somebody else's file or a dying disk is looked at: it is
/// done in a process of its own, which is given up after a time.
class Aside
{
public:
    /// From here to the destructor a signal to end is only noted, so that what was made meanwhile
    /// is removed before the process follows it. Throws std::system_error.
    Aside();
    Aside(const Aside&) = delete;
    Aside& operator=(const Aside&) = delete;
    Aside(Aside&&) = delete;
    Aside& operator=(Aside&&) = delete;
    ~Aside();

    /// What \a work returns; nothing when it took longer than \a seconds, threw or crashed, or when
    /// this process is to end.
    std::optional<std::string> run(double seconds, const std::function<std::string()>& work) const;

private:
    sigset_t before_{};
    Descriptor signals_;
};
