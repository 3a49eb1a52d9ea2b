// SPDX-License-Identifier: MIT
#include "backoffice/sales/Amount.h"

#include <cmath>

qint64 cents(Amount amount)
{
    constexpr Amount half = amountsInACent / 2;
    return (amount < 0 ? amount - half : amount + half) / amountsInACent;
}

Amount taxOn(Amount net, double rate)
{
    constexpr double perCent = 100;
    const double exact = static_cast<double>(net) * rate / perCent / double{amountsInACent};
    return std::llround(exact) * amountsInACent;
}
