// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

/// Money as whole ten-thousandths of the currency's unit. A price is turned into one when it is
/// read, sums are of whole numbers, and only what is shown is rounded to the cent: takings do not
/// depend on the order of their lines, nor on how many there are.
using Amount = qint64;

inline constexpr Amount amountsInACent = 100;

/// \a amount in cents; half a cent goes away from zero.
qint64 cents(Amount amount);

/// The tax at \a rate per cent on \a net, rounded once to a whole cent.
Amount taxOn(Amount net, double rate);
