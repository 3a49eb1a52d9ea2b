// SPDX-License-Identifier: MIT
#pragma once

#include "backoffice/sales/SalesSlice.h"

#include <algorithm>
#include <list>
#include <vector>

/// A slice that was read, and how many lines it had.
struct ReadSlice
{
    SalesSlice slice;
    qint64 lines = 0;
};

/// The line of the history that was recorded last. As long as it is there, SQLite gives every new
/// line a higher row number.
struct LastLine
{
    qint64 row = 0;
    /// Empty when there is no line.
    QString moment;
};

/// Appends \a next to \a slices, as a part of the last one where both together are small enough to
/// be looked at again at once.
void append(std::vector<ReadSlice>& slices, const ReadSlice& next);

/// What was read of the first days of a range, on which nothing is sold any more.
template <class Figures> struct KeptFigures
{
    DayRange range;
    /// The first day that is not part of it.
    QDate end;
    Figures figures;
    std::vector<ReadSlice> slices;
    /// Of the database, when slices were last known to be as they are here, and the last line then.
    TillDatabase::State checked;
    LastLine last;
};

/// The figures of the ranges that were read last.
template <class Figures> class KeptRanges
{
public:
    explicit KeptRanges(const Timing& timing)
        : pace_(timing)
    { }

    /// How fast these figures are read: a line costs more with one statement than with another.
    TillPace& pace() { return pace_; }

    /// The figures of \a range, new and empty ones if there are none.
    KeptFigures<Figures>& of(const DayRange& range)
    {
        constexpr std::size_t most = 8;
        const auto found = std::find_if(kept_.begin(), kept_.end(),
            [&](const KeptFigures<Figures>& kept) { return kept.range == range; });
        if (found != kept_.end()) {
            kept_.splice(kept_.begin(), kept_, found);
        } else {
            kept_.push_front({range, range.first, {}, {}, {}, {}});
            kept_.resize(std::min(kept_.size(), most));
        }
        return kept_.front();
    }

private:
    TillPace pace_;
    std::list<KeptFigures<Figures>> kept_;
};
