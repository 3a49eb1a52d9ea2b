// SPDX-License-Identifier: MIT
#include "common/Money.h"

#include "common/Tools.h"

#include <QLocale>

namespace {
QLocale numberFormat() { return QLocale(QLocale::English, QLocale::AnyCountry); }

/// The takings and doses of a year outgrow single precision.
QString formatExact(const QString& number, int decimals = 2)
{
    return numberFormat().toString(number.toDouble(), 'f', decimals);
}
} // namespace

QString formatAmount(float value, int decimals)
{
    return numberFormat().toString(value, 'f', decimals);
}

QString formatAmount(const QString& value) { return formatAmount(value.toFloat()); }

QString formatMoney(float value) { return formatAmount(value) + QLatin1Char('$'); }

QString formatCell(const QString& text)
{
    return Tools::isNum(text) ? formatMoney(text.toFloat()) : text;
}

QString formatExactCell(const QString& text)
{
    return Tools::isNum(text) ? formatExact(text) + QLatin1Char('$') : text;
}

QString formatQuantity(const QString& text, int decimals)
{
    return Tools::isNum(text) ? formatExact(text, decimals) : text;
}

float readBack(const QString& shown) { return withPoint(shown).toFloat(); }

QString withPoint(QString typed) { return typed.replace(QLatin1Char(','), QLatin1Char('.')); }
