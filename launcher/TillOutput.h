// SPDX-License-Identifier: MIT
#pragma once

#include "base/Descriptor.h"
#include "launcher/Log.h"
#include "launcher/Outlet.h"

/// One of the till's streams: into the log, line by line, and on to where the launcher's own goes.
/// A terminal or a pipe that takes nothing misses some of it, rather than hold up the till.
class TillOutput
{
public:
    /// A stream that goes on to the descriptor \a onward. Throws std::system_error.
    TillOutput(Log& log, int onward);

    /// What to wait for.
    int get() const { return end_.get(); }
    /// The till's end, given away.
    Descriptor takeTillEnd();
    /// Passes on what is there. False at the end of the stream.
    bool pass();
    /// Passes on all that is there, for a till that has ended.
    void drain();

private:
    Descriptor end_;
    Descriptor tillEnd_;
    Outlet onward_;
    Lines lines_;
};
