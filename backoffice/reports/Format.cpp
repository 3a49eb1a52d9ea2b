// SPDX-License-Identifier: MIT
#include "backoffice/reports/Format.h"

namespace {
QString money(Amount amount, const QLocale& locale)
{
    constexpr double centsInAUnit = 100;
    return locale.toString(static_cast<double>(cents(amount)) / centsInAUnit, 'f', 2)
        + QStringLiteral(" €");
}

QString month(QDate day, const QLocale& locale)
{
    return locale.standaloneMonthName(day.month()) + QLatin1Char(' ') + QString::number(day.year());
}
} // namespace

QString format(const QVariant& value, CellKind kind, const QLocale& locale)
{
    if (!value.isValid()) {
        return {};
    }
    switch (kind) {
    case CellKind::Text:
        break;
    case CellKind::Day:
        return locale.toString(value.toDate(), QLocale::ShortFormat);
    case CellKind::Month:
        return month(value.toDate(), locale);
    case CellKind::Hour:
        return QString::number(value.toInt()) + QStringLiteral(" h");
    case CellKind::Count:
        return locale.toString(value.toLongLong());
    case CellKind::Money:
        return money(value.toLongLong(), locale);
    case CellKind::Percent:
        return locale.toString(value.toDouble(), 'f', 1) + QStringLiteral(" %");
    case CellKind::Quantity:
        return locale.toString(value.toDouble(), 'f', 2);
    }
    return value.toString();
}
