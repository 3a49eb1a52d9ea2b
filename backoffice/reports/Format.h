// SPDX-License-Identifier: MIT
#pragma once

#include "backoffice/reports/Report.h"

/// \a value as a reader sees it in a cell of \a kind, written as \a locale does: "1 234,50 €",
/// "12,5 %", "9 h". An invalid value is empty.
QString format(const QVariant& value, CellKind kind, const QLocale& locale);

/// A rate with no more decimals than it has: "20 %", "5,5 %".
QString percentInShort(double rate, const QLocale& locale);
