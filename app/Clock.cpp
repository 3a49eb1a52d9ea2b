// SPDX-License-Identifier: MIT
#include "app/Clock.h"

#include <QLocale>

QString clockText(const QDateTime& now, const QString& datePattern)
{
    // Always Western digits, whatever the system's are: dates are typed with them.
    const QLocale digits = QLocale::c();
    QString time = digits.toString(now, QStringLiteral("hh:mm:ss"));
    if (now.time().second() % 2 == 0) {
        time[2] = QLatin1Char(' ');
        time[5] = QLatin1Char(' ');
    }
    return digits.toString(now, datePattern) + QLatin1Char(' ') + time;
}
