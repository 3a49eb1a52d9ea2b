// SPDX-License-Identifier: MIT
#pragma once

#include "base/Descriptor.h"

#include <QSocketNotifier>

#include <optional>

/// Lets a till that is asked to end, because the session ends or the launcher says so, finish what
/// it is writing and close as if its window had been closed.
class EndSignals
{
public:
    /// Has to come before anything that starts a thread.
    EndSignals();

    /// Ends the running application from now on.
    void attach();

private:
    Descriptor signals_;
    std::optional<QSocketNotifier> notifier_;
};
