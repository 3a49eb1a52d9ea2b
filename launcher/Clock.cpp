// SPDX-License-Identifier: MIT
#include "launcher/Clock.h"

#include <array>
#include <chrono>
#include <ctime>

namespace {
/// Seconds since 1970 at the start of \a day, -1 when it is none.
std::time_t startOf(const std::string& day)
{
    std::tm parts{};
    const char* end = strptime(day.c_str(), "%Y-%m-%d", &parts);
    return end == nullptr || *end != '\0' ? -1 : timegm(&parts);
}
} // namespace

Moment now()
{
    const std::time_t seconds = std::time(nullptr);
    std::tm local{};
    localtime_r(&seconds, &local);
    std::array<char, 32> text{};
    const std::size_t size = std::strftime(text.data(), text.size(), "%Y-%m-%d%H%M%S", &local);
    const std::string all(text.data(), size);
    constexpr std::size_t time = 6;
    return {all.substr(0, size - time), all.substr(size - time)};
}

std::string stamp(const Moment& moment)
{
    const std::string& time = moment.time;
    return moment.day + ' ' + time.substr(0, 2) + ':' + time.substr(2, 2) + ':' + time.substr(4, 2);
}

long daysBetween(const std::string& earlier, const std::string& later)
{
    constexpr long secondsOfADay = 86400;
    const std::time_t from = startOf(earlier);
    const std::time_t to = startOf(later);
    return from == -1 || to == -1 ? 0 : (to - from) / secondsOfADay;
}

double steadySeconds()
{
    using Seconds = std::chrono::duration<double>;
    return Seconds(std::chrono::steady_clock::now().time_since_epoch()).count();
}
