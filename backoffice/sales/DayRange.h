// SPDX-License-Identifier: MIT
#pragma once

#include <QDate>

/// The days of a report, the first and the last included.
struct DayRange
{
    /// What a user can choose without a calendar. Weeks, months and years are whole ones: what is
    /// still to come of them is empty.
    enum class Preset
    {
        Today,
        Yesterday,
        ThisWeek,
        ThisMonth,
        ThisYear,
        LastYear
    };

    /// What one bar of a chart over the range stands for: an hour within a day, a day up to two
    /// months, a month beyond.
    enum class Grain
    {
        Hour,
        Day,
        Month
    };

    QDate first;
    QDate last;

    /// \a preset as seen on \a today, in a country whose weeks begin with \a weekStart.
    static DayRange of(Preset preset, QDate today, Qt::DayOfWeek weekStart);

    bool operator==(const DayRange& other) const
    {
        return first == other.first && last == other.last;
    }

    /// Whether both days exist and are in order.
    bool isValid() const { return first.isValid() && last.isValid() && first <= last; }
    bool contains(QDate day) const { return first <= day && day <= last; }
    /// Number of days.
    qint64 days() const { return first.daysTo(last) + 1; }
    Grain grain() const;

    /// What the range is compared with: the calendar month or year before a whole one, the days
    /// of several whole months before them, else as many days just before it.
    DayRange before() const;
};
