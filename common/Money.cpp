// SPDX-License-Identifier: MIT
#include "common/Money.h"

#include "common/Tools.h"

#include <QLocale>

namespace {
QLocale numberFormat()
{
    return QLocale(QLocale::English, QLocale::AnyCountry);
}

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

QString formatAmount(const std::string& value)
{
    return formatAmount(QString::fromStdString(value).toFloat());
}

QString formatMoney(float value)
{
    return formatAmount(value) + QLatin1Char('$');
}

QString formatCell(const std::string& text)
{
    const QString shown = QString::fromStdString(text);
    return Tools::isNum(shown) ? formatMoney(shown.toFloat()) : shown;
}

QString formatExactCell(const std::string& text)
{
    const QString shown = QString::fromStdString(text);
    return Tools::isNum(shown) ? formatExact(shown) + QLatin1Char('$') : shown;
}

QString formatQuantity(const std::string& text, int decimals)
{
    const QString shown = QString::fromStdString(text);
    return Tools::isNum(shown) ? formatExact(shown, decimals) : shown;
}

float readBack(const QString& shown)
{
    return withPoint(shown).toFloat();
}

QString withPoint(QString typed)
{
    return typed.replace(QLatin1Char(','), QLatin1Char('.'));
}
