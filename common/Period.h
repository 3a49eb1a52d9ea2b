// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QString>

/// A period of sales between two typed dates, month first: a day "MM/dd/yyyy" (10 characters),
/// which means its first moment, or a moment "MM/dd/yyyy HH:mm:ss.zzz" (23 characters).
class Period
{
public:
    /// Why a period cannot be used; of several reasons the first one here.
    enum class Fault
    {
        None,
        Length,
        NoDate,
        Backwards,
        BackwardsInTime,
        SameDay
    };

    /// Blanks around the dates do not count.
    Period(const QString& first, const QString& second);

    Fault fault() const;

    /// The dates as typed, without the blanks around them.
    QString typedFirst() const { return first_.typed; }
    QString typedSecond() const { return second_.typed; }

    /// The dates in the order that SQLite compares: "yyyy-MM-dd" or "yyyy-MM-dd HH:mm:ss.zzz".
    /// Fit for SQL only when fault() finds two dates in them.
    QString from() const { return first_.stored; }
    QString to() const { return second_.stored; }

private:
    struct Bound
    {
        explicit Bound(const QString& field);
        bool isDay() const;
        bool isMoment() const;

        QString typed;
        QString stored;
        QDateTime start;
    };

    Bound first_;
    Bound second_;
};
