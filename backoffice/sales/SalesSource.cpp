// SPDX-License-Identifier: MIT
#include "backoffice/sales/SalesSource.h"

#include <algorithm>
#include <map>
#include <tuple>

namespace {
constexpr int daysInAWeek = 7;

/// The day and the hour that \a sales are added to.
std::pair<QDate, int> placeOf(
    const HourSales& sales, const DayRange& range, SalesSource::TillPart part)
{
    switch (part) {
    case SalesSource::TillPart::Day:
        return {sales.day, 0};
    case SalesSource::TillPart::Month:
        return {std::max(range.first, QDate(sales.day.year(), sales.day.month(), 1)), 0};
    case SalesSource::TillPart::WeekHour:
        return {range.first.addDays(range.first.daysTo(sales.day) % daysInAWeek), sales.hour};
    case SalesSource::TillPart::Hour:
        break;
    }
    return {sales.day, sales.hour};
}
} // namespace

std::vector<HourSales> SalesSource::tillSales(
    const DayRange& range, TillPart part, const Reading& reading)
{
    std::map<std::tuple<int, QDate, int>, HourSales> sums;
    for (const HourSales& sales : hours(range, reading)) {
        const auto [day, hour] = placeOf(sales, range, part);
        HourSales& sum = sums[{sales.till, day, hour}];
        sum = {day, hour, sum.lines + sales.lines, sum.takings + sales.takings, sales.till};
    }
    std::vector<HourSales> all;
    all.reserve(sums.size());
    for (const auto& [place, sum] : sums) {
        all.push_back(sum);
    }
    return all;
}
