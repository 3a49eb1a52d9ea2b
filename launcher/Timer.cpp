// SPDX-License-Identifier: MIT
#include "launcher/Timer.h"

#include "launcher/SafeFile.h"

#include <cmath>
#include <cstdint>

#include <sys/timerfd.h>

namespace Timer {
namespace {
timespec timeOf(double seconds)
{
    constexpr double nanoseconds = 1e9;
    const double whole = std::floor(seconds);
    return {static_cast<time_t>(whole), static_cast<long>((seconds - whole) * nanoseconds)};
}
} // namespace

Descriptor make()
{
    Descriptor timer(timerfd_create(CLOCK_BOOTTIME, TFD_CLOEXEC | TFD_NONBLOCK));
    if (!timer) {
        SafeFile::fail("timerfd");
    }
    return timer;
}

void set(const Descriptor& timer, double first, double then)
{
    const itimerspec times{timeOf(then), timeOf(first)};
    timerfd_settime(timer.get(), 0, &times, nullptr);
}

bool hasRung(const Descriptor& timer)
{
    std::uint64_t times = 0;
    return read(timer.get(), &times, sizeof times) == sizeof times;
}
} // namespace Timer
