// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// \a value in the till's number format: English, fixed notation with \a decimals ("1,234.50").
QString formatAmount(float value, int decimals = 2);

/// The same for a stored value, read in single precision; a text that is no number counts as 0.
QString formatAmount(const QString& value);

/// \a value as the lists show it: "12.50$".
QString formatMoney(float value);

/// A stored column text as a list cell: an amount where it is a number, else unchanged.
QString formatCell(const QString& text);

/// The same in double precision, so that the takings of a year keep their cents.
QString formatExactCell(const QString& text);

/// A stored dose or consumption as the stock windows show it: in double precision with \a decimals
/// and without a sign ("1,234.50"); a text that is no number stays as it is.
QString formatQuantity(const QString& text, int decimals = 2);

/// What the totals take \a shown for: "," counts as ".", in single precision. An amount of 1,000 or
/// more therefore reads as 0, because its group separator makes it unreadable.
float readBack(const QString& shown);

/// A typed number with "." for every ",", as SQL wants it.
QString withPoint(QString typed);
