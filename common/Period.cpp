// SPDX-License-Identifier: MIT
#include "common/Period.h"

#include "common/Tools.h"

#include <QLocale>

namespace {
constexpr int dayLength = 10;
constexpr int momentLength = 23;

/// The characters of \a typed in the stored order; separators are not looked at.
QString storedForm(const QString& typed)
{
    const QString day = Tools::ConvDate::ToUs(typed.left(dayLength));
    return typed.size() == momentLength
        ? day + QLatin1Char(' ') + typed.mid(11, 8) + QLatin1Char('.') + typed.mid(20, 3)
        : day;
}

/// The moment that \a stored names, invalid when it is none. Counted in UTC, where every hour
/// exists: sales are dated by the wall clock, also in the night when it is put forward.
QDateTime startOf(const QString& stored)
{
    const auto dayFormat = QStringLiteral("yyyy-MM-dd");
    const auto timeFormat = QStringLiteral("HH:mm:ss.zzz");
    const bool isDay = stored.size() == dayLength;
    // The digits of the database, which the system's need not be.
    const QLocale digits = QLocale::c();
    const QDateTime start(digits.toDate(stored.left(dayLength), dayFormat),
        isDay ? QTime(0, 0) : digits.toTime(stored.mid(dayLength + 1), timeFormat), Qt::UTC);
    // Qt reads leniently, and what is read goes into SQL: only its own spelling counts as a date.
    const QString format = isDay ? dayFormat : dayFormat + QLatin1Char(' ') + timeFormat;
    return digits.toString(start, format) == stored ? start : QDateTime();
}
} // namespace

Period::Bound::Bound(const QString& field)
    : typed(field.trimmed())
    , stored(isDay() || isMoment() ? storedForm(typed) : QString())
    , start(startOf(stored))
{ }

bool Period::Bound::isDay() const { return typed.size() == dayLength; }

bool Period::Bound::isMoment() const { return typed.size() == momentLength; }

Period::Period(const QString& first, const QString& second)
    : first_(first)
    , second_(second)
{ }

Period::Fault Period::fault() const
{
    if (first_.stored.isEmpty() || second_.stored.isEmpty()) {
        return Fault::Length;
    }
    if (!first_.start.isValid() || !second_.start.isValid()) {
        return Fault::NoDate;
    }
    if (second_.start < first_.start) {
        return first_.isMoment() && second_.isMoment() ? Fault::BackwardsInTime : Fault::Backwards;
    }
    const bool areDays = first_.isDay() && second_.isDay();
    return areDays && first_.start == second_.start ? Fault::SameDay : Fault::None;
}
