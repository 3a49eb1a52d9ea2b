// SPDX-License-Identifier: MIT
#pragma once

#include "db/Db.h"

#include <QString>

#include <vector>

/// A ticket's totals as they are shown, in the till's number format without a currency sign.
struct TicketTotals
{
    struct Tax
    {
        QString rate;
        QString amount;
    };

    QString sum;
    std::vector<Tax> taxes;
    QString grandTotal;
};

/// Totals a ticket whose price sum stands in the first cell of \a sums, one tax for each row of
/// \a rates (per cent). Throws std::out_of_range without a sum.
TicketTotals totalTicket(const DbRows& sums, const DbRows& rates);
