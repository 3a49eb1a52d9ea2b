// SPDX-License-Identifier: MIT
#pragma once

#include "backoffice/reports/Report.h"

/// \a value of a chart as its axis counts: amounts in units of the currency.
double drawn(double value, CellKind kind);

/// \a value of a chart or heat map as a table would show it.
QString formatDrawn(double value, CellKind kind, const QLocale& locale);

/// The same without what a small field has no room for: cents and the currency.
QString formatShort(double value, CellKind kind, const QLocale& locale);

struct Extent
{
    double least = 0;
    double most = 1;
};

/// What the axis of \a chart has to reach: zero, and every value as drawn().
Extent extentOf(const BarChart& chart);

/// How an axis with a tick every \a step writes its numbers, for QValueAxis.
QString labelFormat(CellKind kind, double step);
