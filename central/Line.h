// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <map>
#include <string>

/// A line that was sold, as it is sent. What it says and its ordinal identify it in the book; the
/// row does not, because SQLite gives rows away again.
struct Line
{
    /// Its row in the till's database.
    std::int64_t row = 0;
    /// "2026-03-05 14:07:31.250", by the till's clock.
    std::string moment;
    /// The key that the article had in the menu, as text.
    std::string article;
    std::string name;
    /// Ten-thousandths.
    std::int64_t price = 0;
    /// The price as SQLite writes it, where it is not a number of ten-thousandths; else empty.
    std::string exactPrice;
    /// The month that it is counted in, "2026-03"; empty when its moment begins like no month.
    std::string month;
    /// A number that other lines are unlikely to have, for the month's digest.
    std::int64_t mark = 0;
    /// Its place, from 1, among the lines that say the same.
    int ordinal = 0;

    /// All that it says, in one text: equal for equal lines only.
    std::string content() const;
    /// Whether a page can show it: its moment is a date, its price one that sums can hold, and its
    /// name at most 2000 bytes long.
    bool isRegular() const;
};

/// What was read of a month's lines: it changes when they do.
struct Digest
{
    std::int64_t lines = 0;
    std::int64_t sum = 0;

    bool operator==(const Digest& other) const = default;
    void add(const Line& line)
    {
        ++lines;
        sum += line.mark;
    }
};

/// The digests of the months, by name.
using Months = std::map<std::string, Digest>;

/// The last row of the till's history: SQLite gives a new line a higher one as long as it is there.
struct Anchor
{
    /// 0 for an empty history.
    std::int64_t row = 0;
    std::string content;

    bool operator==(const Anchor& other) const = default;
};
