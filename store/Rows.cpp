// SPDX-License-Identifier: MIT
#include "store/Rows.h"

#include "common/Tools.h"

QString Rows::quoted(const QString& text)
{
    return QLatin1Char('\'') + Tools::StringDblRating(text.toStdString()) + QLatin1Char('\'');
}
