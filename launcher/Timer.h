// SPDX-License-Identifier: MIT
#pragma once

#include "base/Descriptor.h"

/// Alarms that poll() can wait for. They count the time in which the machine sleeps.
namespace Timer {
/// An alarm that is not set. Throws std::system_error.
Descriptor make();
/// Lets \a timer ring in \a first seconds, and every \a then seconds after that; 0 is never.
void set(const Descriptor& timer, double first, double then = 0);
/// Whether \a timer has rung since it was asked last.
bool hasRung(const Descriptor& timer);
} // namespace Timer
