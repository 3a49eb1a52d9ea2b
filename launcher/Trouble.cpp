// SPDX-License-Identifier: MIT
#include "launcher/Trouble.h"

#include "launcher/Log.h"
#include "launcher/SafeFile.h"
#include "launcher/Sentences.h"

#include <algorithm>
#include <array>
#include <cstdlib>

namespace Trouble {
namespace {
/// "2026-03-05 14:07:31 "
constexpr std::size_t stampLength = 20;

/// How the lines of the till begin that a failure makes it write.
constexpr std::array<std::string_view, 9> beginnings{"Errors ",
    "Error: ", "Not open database successfully", "Cannot open device", "Cannot Claim Interface",
    "Cannot Release Interface", "Write Error", "Init Error", "terminate called"};

/// What a line contains that names a file which the till does without.
constexpr std::array<std::string_view, 2> insides{" is not read: ", " is not shown: "};

/// What the launcher itself writes into the log.
constexpr std::array<Sentence, 9> sentences{Sentences::startedAgain, Sentences::endedTwice,
    Sentences::notStarted, Sentences::databaseUnusable, Sentences::databaseMissing,
    Sentences::noDailyCopy, Sentences::notCarried, Sentences::notReachedFor, Sentences::notSent};

/// Whether \a line is \a pattern with anything in place of each %N.
bool isMadeOf(std::string_view pattern, std::string_view line)
{
    const std::size_t gap = pattern.find('%');
    if (!line.starts_with(pattern.substr(0, gap))) {
        return false;
    }
    while (pattern.find('%') != std::string_view::npos) {
        pattern.remove_prefix(pattern.find('%') + 2);
        const std::string_view piece = pattern.substr(0, pattern.find('%'));
        const std::size_t at = line.find(piece);
        if (at == std::string_view::npos) {
            return false;
        }
        line.remove_prefix(at + piece.size());
    }
    return true;
}

/// Puts the lines of trouble in \a log before \a found, until there are \a count.
void prepend(std::vector<std::string>& found, std::string_view log, std::size_t count)
{
    while (!log.empty() && found.size() < count) {
        if (log.back() == '\n') {
            log.remove_suffix(1);
        }
        const std::size_t before = log.rfind('\n');
        const std::size_t begin = before == std::string_view::npos ? 0 : before + 1;
        const std::string_view line = log.substr(begin);
        if (line.size() > stampLength && isOne(line.substr(stampLength))) {
            found.insert(found.begin(), std::string(line));
        }
        log.remove_suffix(line.size());
    }
}

/// Seconds since midnight in "14:07:31", -1 when it is no time.
long secondsOfDay(const std::string& time)
{
    constexpr std::string_view shape = "00:00:00";
    if (time.size() != shape.size()) {
        return -1;
    }
    for (std::size_t at = 0; at < shape.size(); ++at) {
        const bool isDigit = time[at] >= '0' && time[at] <= '9';
        if (shape[at] == '0' ? !isDigit : time[at] != shape[at]) {
            return -1;
        }
    }
    const auto number = [&](std::size_t at) { return std::stol(time.substr(at, 2)); };
    return (number(0) * 60 + number(3)) * 60 + number(6);
}
} // namespace

bool isOne(std::string_view said)
{
    return std::any_of(beginnings.begin(), beginnings.end(), [&](std::string_view begin) {
        return said.starts_with(begin);
    }) || std::any_of(insides.begin(), insides.end(), [&](std::string_view inside) {
        return said.find(inside) != std::string_view::npos;
    }) || std::any_of(sentences.begin(), sentences.end(), [&](const Sentence& sentence) {
        return isMadeOf(sentence.french, said) || isMadeOf(sentence.english, said);
    });
}

std::optional<std::vector<std::string>> last(int folder, std::size_t count)
{
    // Twice what the launcher lets a file grow to.
    constexpr std::size_t largest = 2000000;
    std::vector<std::string> found;
    for (const char* name : {Log::names[0], Log::names[1]}) {
        const auto log = SafeFile::read(folder, name, largest);
        if (!log && SafeFile::exists(folder, name)) {
            return std::nullopt;
        }
        prepend(found, log.value_or(""), count);
    }
    return found;
}

bool isFresh(const std::string& line, const Moment& moment)
{
    constexpr long day = 86400;
    constexpr std::size_t dayLength = 10;
    constexpr std::size_t timeLength = 8;
    const long then
        = line.size() > stampLength ? secondsOfDay(line.substr(dayLength + 1, timeLength)) : -1;
    const long now = secondsOfDay(stamp(moment).substr(dayLength + 1));
    const std::string written = line.substr(0, dayLength);
    // A line whose time cannot be read is shown, but nobody is called for it.
    if (then < 0 || (daysBetween(written, moment.day) == 0 && written != moment.day)) {
        return false;
    }
    return std::labs(daysBetween(written, moment.day) * day + now - then) < day;
}
} // namespace Trouble
