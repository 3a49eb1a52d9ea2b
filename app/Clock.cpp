// SPDX-License-Identifier: MIT
#include "app/Clock.h"

QString clockText(const QDateTime& now, const QString& datePattern)
{
    QString time = now.time().toString(QStringLiteral("hh:mm:ss"));
    if (now.time().second() % 2 == 0) {
        time[2] = QLatin1Char(' ');
        time[5] = QLatin1Char(' ');
    }
    return now.toString(datePattern) + QLatin1Char(' ') + time;
}
