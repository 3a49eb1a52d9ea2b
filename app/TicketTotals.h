// SPDX-License-Identifier: MIT
#pragma once

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

/// Totals a ticket whose prices have the sum \a sum, one tax for each of \a rates (per cent).
TicketTotals totalTicket(const QString& sum, const std::vector<QString>& rates);
