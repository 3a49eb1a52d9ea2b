// SPDX-License-Identifier: MIT
#include "common/Money.h"

#include "common/Tools.h"

#include <QLocale>

QString formatAmount(float value, int decimals)
{
    return QLocale(QLocale::English, QLocale::AnyCountry).toString(value, 'f', decimals);
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

float readBack(const QString& shown)
{
    return withPoint(shown).toFloat();
}

QString withPoint(QString typed)
{
    return typed.replace(QLatin1Char(','), QLatin1Char('.'));
}
