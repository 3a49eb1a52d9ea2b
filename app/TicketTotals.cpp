// SPDX-License-Identifier: MIT
#include "app/TicketTotals.h"

#include "common/Money.h"

namespace {
/// \a value rounded to six significant digits.
float sixDigits(float value)
{
    return QString::number(static_cast<double>(value), 'g', 6).toFloat();
}

/// The tax on \a total at \a rate per cent, half a cent added and nothing cut off. The till has
/// always computed it so: the product in single precision, the half cent in double.
float taxOn(float total, float rate)
{
    const float cents = rate / 100 * total * 100;
    return sixDigits(static_cast<float>((static_cast<double>(cents) + 0.5) / 100));
}
} // namespace

TicketTotals totalTicket(const QString& sum, const std::vector<QString>& rates)
{
    TicketTotals totals;
    totals.sum = formatAmount(sum);
    const float total = readBack(totals.sum);
    float tax = 0;
    for (const QString& stored : rates) {
        const QString rate = formatAmount(stored);
        tax = taxOn(total, readBack(rate));
        totals.taxes.push_back({rate, formatAmount(tax)});
    }
    totals.grandTotal = formatAmount(sixDigits(total + tax));
    return totals;
}
