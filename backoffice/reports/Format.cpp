// SPDX-License-Identifier: MIT
#include "backoffice/reports/Format.h"

#include <cmath>

namespace {
bool isEnglish(const QLocale& locale) { return locale.language() == QLocale::English; }

QString money(Amount amount, const QLocale& locale)
{
    constexpr double centsInAUnit = 100;
    return locale.toString(static_cast<double>(cents(amount)) / centsInAUnit, 'f', 2)
        + QStringLiteral(" €");
}

QString month(QDate day, const QLocale& locale)
{
    return locale.standaloneMonthName(day.month()) + QLatin1Char(' ') + QString::number(day.year());
}

QString hour(int number, const QLocale& locale)
{
    return QString::number(number)
        + (isEnglish(locale) ? QStringLiteral(":00") : QStringLiteral(" h"));
}

QString withPercent(const QString& number, const QLocale& locale)
{
    return number + (isEnglish(locale) ? QStringLiteral("%") : QStringLiteral(" %"));
}

/// With a tenth; what rounds to zero has no sign.
QString percent(double value, const QLocale& locale)
{
    constexpr double tenths = 10;
    const double rounded = std::round(value * tenths) / tenths;
    return withPercent(locale.toString(rounded == 0 ? 0 : rounded, 'f', 1), locale);
}

/// The same with a sign: what is more has one, too.
QString change(double value, const QLocale& locale)
{
    constexpr double leastShown = 0.05;
    return (value >= leastShown ? QString(locale.positiveSign()) : QString())
        + percent(value, locale);
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
        return hour(value.toInt(), locale);
    case CellKind::Count:
        return locale.toString(value.toLongLong());
    case CellKind::Money:
        return money(value.toLongLong(), locale);
    case CellKind::Percent:
        return percent(value.toDouble(), locale);
    case CellKind::Change:
        return change(value.toDouble(), locale);
    case CellKind::Quantity:
        return locale.toString(value.toDouble(), 'f', 2);
    }
    return value.toString();
}

QString percentInShort(double rate, const QLocale& locale)
{
    return withPercent(locale.toString(rate, 'f', QLocale::FloatingPointShortest), locale);
}
