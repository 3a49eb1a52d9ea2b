// SPDX-License-Identifier: MIT
#pragma once

#include "launcher/Clock.h"

#include <optional>
#include <string>
#include <vector>

/// The name of a dated copy: "Vendel-2026-03-05.db" for a day's first, "Vendel-2026-03-05-1407.db"
/// for a later one, "Vendel-2026-03-05-1407-2.db" where that name is taken.
struct CopyName
{
    /// The name without "Vendel-" and ".db".
    std::string stem;
    std::string day;
    /// Minutes since midnight; the last of the day for a day's first copy, whose name has no time.
    int minute = 0;
    /// 2 or more where a name was taken.
    long number = 0;

    /// The copy that the file \a file is, nothing when it has another name.
    static std::optional<CopyName> parse(const std::string& file);

    /// The file's name.
    std::string file() const;
    /// Whether the name has a time in it.
    bool isLater() const;
};

/// Whether \a one comes before \a other when only the names are known.
bool isEarlierByName(const CopyName& one, const CopyName& other);

/// The names that a copy made at \a moment may have, the \a count th of them, from 0 on.
std::string copyFile(const Moment& moment, long count);

/// Those of \a copies, which are in the order of making, that need not be kept: the last copy of
/// each of 30 days, the last of each hour of 48 hours and the ten newest are kept. Names only group
/// copies: where they contradict the order, the clock was wrong, and the order counts.
std::vector<CopyName> superfluous(const std::vector<CopyName>& copies);
