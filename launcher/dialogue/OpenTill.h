// SPDX-License-Identifier: MIT
#pragma once

#include <sys/types.h>

/// The windows of a till that is open on the X screen of DISPLAY.
namespace OpenTill {
/// Brings all windows of the process \a till to the front, the topmost with the focus. False where
/// there are none, or no window manager that can do it (Extended Window Manager Hints,
/// _NET_ACTIVE_WINDOW).
bool bringToFront(pid_t till);
} // namespace OpenTill
