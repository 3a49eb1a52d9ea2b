// SPDX-License-Identifier: MIT
#include "forms/Quantity.h"

#include "common/Tools.h"

#include <QLocale>

QString formatQuantity(const std::string& text, int decimals)
{
    QString shown = QString::fromStdString(text);
    if (!Tools::isNum(shown)) {
        return shown;
    }
    // A year of doses outgrows single precision.
    return QLocale(QLocale::English, QLocale::AnyCountry).toString(shown.toDouble(), 'f', decimals);
}
