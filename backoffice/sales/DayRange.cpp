// SPDX-License-Identifier: MIT
#include "backoffice/sales/DayRange.h"

namespace {
constexpr int daysInAWeek = 7;
constexpr int monthsInAYear = 12;

QDate firstOfMonth(QDate day) { return {day.year(), day.month(), 1}; }

QDate lastOfMonth(QDate day) { return firstOfMonth(day).addMonths(1).addDays(-1); }

DayRange year(int number) { return {QDate(number, 1, 1), QDate(number, monthsInAYear, 31)}; }
} // namespace

DayRange DayRange::of(Preset preset, QDate today, Qt::DayOfWeek weekStart)
{
    switch (preset) {
    case Preset::Yesterday:
        return {today.addDays(-1), today.addDays(-1)};
    case Preset::ThisWeek: {
        const int passed = (today.dayOfWeek() - weekStart + daysInAWeek) % daysInAWeek;
        return {today.addDays(-passed), today.addDays(daysInAWeek - 1 - passed)};
    }
    case Preset::ThisMonth:
        return {firstOfMonth(today), lastOfMonth(today)};
    case Preset::ThisYear:
        return year(today.year());
    case Preset::LastYear:
        return year(today.year() - 1);
    case Preset::Today:
        break;
    }
    return {today, today};
}

DayRange::Grain DayRange::grain() const
{
    // July and August.
    constexpr qint64 twoMonths = 62;
    return first == last ? Grain::Hour : days() <= twoMonths ? Grain::Day : Grain::Month;
}

DayRange DayRange::before() const
{
    const QDate end = first.addDays(-1);
    if (first == firstOfMonth(first) && last == lastOfMonth(last)) {
        const int months
            = (last.year() - first.year()) * monthsInAYear + last.month() - first.month() + 1;
        return {first.addMonths(-months), end};
    }
    return {first.addDays(-days()), end};
}
