// SPDX-License-Identifier: MIT
#pragma once

#include "backoffice/sales/SalesSource.h"

#include <QVariant>

#include <array>

/// Lines and takings of several sales.
struct Sum
{
    qint64 lines = 0;
    Amount takings = 0;

    template <class Sales> void add(const Sales& sales)
    {
        lines += sales.lines;
        takings += sales.takings;
    }
};

inline constexpr int hoursInADay = 24;

namespace Sums {
/// Everything in \a sales.
template <class Sales> Sum of(const std::vector<Sales>& sales)
{
    Sum sum;
    for (const Sales& part : sales) {
        sum.add(part);
    }
    return sum;
}

/// \a sales by the hour of the day.
std::array<Sum, hoursInADay> byHour(const std::vector<HourSales>& sales);

/// The articles of all tills as if they were one till's, in the order of their names.
std::vector<ArticleSales> ofAllTills(const std::vector<ArticleSales>& sales);

/// \a part of \a whole in per cent; invalid when the whole is nothing or less.
QVariant share(qint64 part, qint64 whole);

/// How much more than \a before \a now is, in per cent; invalid when there was nothing or less.
QVariant change(Amount now, Amount before);

/// \a amount divided by \a count, rounded to the nearest.
Amount mean(Amount amount, qint64 count);

/// An article's name with A to Z as small letters, by which the till compares names.
QString key(const QString& article);
} // namespace Sums
