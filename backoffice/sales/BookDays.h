// SPDX-License-Identifier: MIT
#pragma once

#include "backoffice/sales/DayRange.h"

#include <QVariant>

#include <algorithm>

/// A range as the statements of a book take it: its days before, in and behind its whole months.
struct BookDays
{
    QDate first;
    QDate months;
    QDate monthsEnd;
    QDate behind;

    explicit BookDays(const DayRange& range)
        : first(range.first)
        , behind(range.last.addDays(1))
    {
        const QDate sameMonth(first.year(), first.month(), 1);
        months = std::min(first == sameMonth ? first : sameMonth.addMonths(1), behind);
        monthsEnd = std::max(QDate(behind.year(), behind.month(), 1), months);
    }

    QVariantList ofMonths() const { return {months, monthsEnd}; }
    QVariantList besideMonths() const { return {first, months, monthsEnd, behind}; }
};
