// SPDX-License-Identifier: MIT
#pragma once

#include "launcher/Clock.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The lines of the log that somebody who helps wants to hear of. What counts as one has its only
/// home here.
namespace Trouble {
/// Whether \a said, a line without its time, is trouble: a failed statement, a window that did not
/// finish its work, the printer's refusals, a file that is not read, an end by a signal or a copy
/// that was not made. What the till says of ordinary work is none.
bool isOne(std::string_view said);

/// The last \a count lines of trouble in the log of the data folder \a folder, oldest first, each
/// with its time; of "vendel.log.1" too where "vendel.log" has fewer. Nothing when there is a log
/// that cannot be read.
std::optional<std::vector<std::string>> last(int folder, std::size_t count);

/// Whether \a line was written in the day before \a moment, or the day after it by a clock that was
/// wrong.
bool isFresh(const std::string& line, const Moment& moment);
} // namespace Trouble
