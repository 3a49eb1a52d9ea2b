// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QString>

/// Date and time for the counter's clock: the date by \a datePattern, the time with its colons on
/// odd seconds and blanks in their place on even ones, so that they blink.
QString clockText(const QDateTime& now, const QString& datePattern);
