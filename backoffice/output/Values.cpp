// SPDX-License-Identifier: MIT
#include "backoffice/output/Values.h"

#include "backoffice/reports/Format.h"

#include <algorithm>
#include <cmath>

namespace {
constexpr double amountsInAUnit = 100.0 * amountsInACent;

bool isWhole(CellKind kind) { return kind == CellKind::Count || kind == CellKind::Money; }
} // namespace

double drawn(double value, CellKind kind)
{
    return kind == CellKind::Money ? value / amountsInAUnit : value;
}

QString formatDrawn(double value, CellKind kind, const QLocale& locale)
{
    return format(
        isWhole(kind) ? QVariant(qint64{std::llround(value)}) : QVariant(value), kind, locale);
}

QString formatShort(double value, CellKind kind, const QLocale& locale)
{
    return isWhole(kind) ? locale.toString(qint64{std::llround(drawn(value, kind))})
                         : formatDrawn(value, kind, locale);
}

Extent extentOf(const BarChart& chart)
{
    Extent extent{0, 0};
    const auto take = [&](const BarChart::Values& values) {
        for (const double value : values.values) {
            // fmin and fmax pass over what is not a number.
            extent.least = std::fmin(extent.least, drawn(value, chart.kind));
            extent.most = std::fmax(extent.most, drawn(value, chart.kind));
        }
    };
    std::for_each(chart.bars.begin(), chart.bars.end(), take);
    if (chart.line) {
        take(*chart.line);
    }
    if (extent.least >= extent.most) {
        extent.most = 1;
    }
    return extent;
}

QString labelFormat(CellKind kind, double step)
{
    int decimals = 0;
    for (double rest = step; kind != CellKind::Count && decimals < 2
         && std::abs(rest - std::round(rest)) > 1e-9 * std::abs(rest);
         rest *= 10) {
        ++decimals;
    }
    if (kind == CellKind::Money && decimals > 0) {
        decimals = 2;
    }
    const QString unit = kind == CellKind::Money ? QStringLiteral("\u00a0€")
        : kind == CellKind::Percent              ? QStringLiteral("\u00a0%%")
                                                 : QString();
    return QStringLiteral("%.%1f").arg(decimals) + unit;
}
