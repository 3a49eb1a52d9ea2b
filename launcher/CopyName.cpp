// SPDX-License-Identifier: MIT
#include "launcher/CopyName.h"

#include <set>
#include <string_view>
#include <tuple>
#include <utility>

namespace {
constexpr std::string_view prefix = "Vendel-";
constexpr std::string_view suffix = ".db";
constexpr std::size_t dayLength = 10;
constexpr std::size_t timeLength = 4;
constexpr int minutesOfAnHour = 60;
constexpr int minutesOfADay = 24 * minutesOfAnHour;

/// Whether \a text looks like \a pattern, where each "0" is any digit.
bool matches(std::string_view text, std::string_view pattern)
{
    if (text.size() != pattern.size()) {
        return false;
    }
    for (std::size_t at = 0; at < text.size(); ++at) {
        const bool isDigit = text[at] >= '0' && text[at] <= '9';
        if (pattern[at] == '0' ? !isDigit : text[at] != pattern[at]) {
            return false;
        }
    }
    return true;
}

long valueOf(std::string_view digits)
{
    long value = 0;
    for (const char digit : digits) {
        value = value * 10 + (digit - '0');
    }
    return value;
}

/// The number in "-2"; 0 for nothing, -1 for anything else.
long countIn(std::string_view text)
{
    constexpr std::size_t longest = 9;
    if (text.empty()) {
        return 0;
    }
    const bool isCount = text.size() > 1 && text.size() <= longest + 1 && text[1] != '0'
        && matches(text, '-' + std::string(text.size() - 1, '0'));
    return isCount ? valueOf(text.substr(1)) : -1;
}

/// Minutes between the moments that two names tell; negative when \a later is the earlier one.
long minutesBetween(const CopyName& earlier, const CopyName& later)
{
    return daysBetween(earlier.day, later.day) * minutesOfADay + later.minute - earlier.minute;
}
} // namespace

std::optional<CopyName> CopyName::parse(const std::string& file)
{
    std::string_view rest = file;
    if (!rest.starts_with(prefix) || !rest.ends_with(suffix)
        || rest.size() < prefix.size() + dayLength + suffix.size()) {
        return std::nullopt;
    }
    rest.remove_prefix(prefix.size());
    rest.remove_suffix(suffix.size());
    CopyName name{std::string(rest), std::string(rest.substr(0, dayLength)), minutesOfADay - 1, 0};
    rest.remove_prefix(dayLength);
    if (!matches(name.day, "0000-00-00")) {
        return std::nullopt;
    }
    if (matches(rest.substr(0, timeLength + 1), "-0000")) {
        const long time = valueOf(rest.substr(1, timeLength));
        name.minute = static_cast<int>(time / 100 * minutesOfAnHour + time % 100);
        rest.remove_prefix(timeLength + 1);
        name.number = countIn(rest);
        return name.number >= 0 ? std::optional(name) : std::nullopt;
    }
    return rest.empty() ? std::optional(name) : std::nullopt;
}

std::string CopyName::file() const { return std::string(prefix) + stem + std::string(suffix); }

bool CopyName::isLater() const { return stem.size() > dayLength; }

bool isEarlierByName(const CopyName& one, const CopyName& other)
{
    const auto key = [](const CopyName& name) {
        return std::tuple(name.day, name.isLater(), name.minute, name.number, name.stem);
    };
    return key(one) < key(other);
}

std::string copyFile(const Moment& moment, long count)
{
    std::string name = std::string(prefix) + moment.day;
    if (count > 0) {
        name += '-' + moment.time.substr(0, timeLength);
    }
    if (count > 1) {
        name += '-' + std::to_string(count);
    }
    return name + std::string(suffix);
}

std::vector<CopyName> superfluous(const std::vector<CopyName>& copies)
{
    constexpr std::size_t days = 30;
    constexpr std::size_t hours = 48;
    constexpr std::size_t newest = 10;
    std::vector<CopyName> goes;
    std::set<std::string> daysSeen;
    std::set<std::pair<std::string, int>> hoursSeen;
    for (std::size_t back = 0; back < copies.size(); ++back) {
        const CopyName& copy = copies[copies.size() - 1 - back];
        const std::pair hour(copy.day, copy.isLater() ? copy.minute / minutesOfAnHour : -1);
        const bool isRecent
            = minutesBetween(copy, copies.back()) <= static_cast<long>(hours) * minutesOfAnHour;
        const bool isLastOfHour
            = isRecent && hoursSeen.size() < hours && hoursSeen.insert(hour).second;
        const bool isLastOfDay = daysSeen.size() < days && daysSeen.insert(copy.day).second;
        if (!isLastOfDay && !isLastOfHour && back >= newest) {
            goes.push_back(copy);
        }
    }
    return goes;
}
