// SPDX-License-Identifier: MIT
#pragma once

#include <string>

/// A moment of local time, in the shapes that names and lines need.
struct Moment
{
    /// "2026-03-05"
    std::string day;
    /// "140731"
    std::string time;
};

/// What the clock on the wall says; it may be wrong, and go back.
Moment now();

/// "2026-03-05 14:07:31"
std::string stamp(const Moment& moment);

/// Days from \a earlier to \a later, both "2026-03-05"; 0 when one of them is no day.
long daysBetween(const std::string& earlier, const std::string& later);

/// Seconds of a clock that nobody sets.
double steadySeconds();
