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
    // As a whole number, a rate is what was typed: 1.005 as a double is a little less, and half a
    // cent would be lost.
    constexpr double millionths = 1000000;
    constexpr long double perCent = 100;
    const auto product = static_cast<long double>(net) * std::llround(rate * millionths);
    const long double exact
        = product / (perCent * millionths * static_cast<long double>(amountsInACent));
    return std::llround(exact) * amountsInACent;
}
