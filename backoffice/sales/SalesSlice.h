// SPDX-License-Identifier: MIT
#pragma once

#include "backoffice/sales/TillDatabase.h"
#include "backoffice/sales/TillPace.h"

#include <limits>

/// A portion of the history that is read at once: the lines from one moment to before another, or
/// some of those that share a moment.
struct SalesSlice
{
    QString from;
    /// Empty when all lines are of the moment from.
    QString to;
    qint64 afterRow = std::numeric_limits<qint64>::min();
    qint64 throughRow = std::numeric_limits<qint64>::max();

    /// \a statement, which has a "%1" for it, reading this portion only.
    QString in(const QString& statement) const;
    /// For the "?" in the statement.
    QVariantList values() const;
};

/// Goes through the history in slices of the size that the pace wants.
class SalesWalk
{
public:
    SalesWalk(TillDatabase& database, TillPace& pace, const Reading& reading)
        : database_(database)
        , pace_(pace)
        , reading_(reading)
    { }

    /// Reads a slice.
    using Read = std::function<void(const SalesSlice&)>;
    /// Notes that everything before a moment is read.
    using Note = std::function<void(const QString&)>;

    /// Hands every line from \a from to before \a to, in slices, to \a read, and calls \a note
    /// after each.
    void go(const QString& from, const QString& to, const Read& read, const Note& note);

private:
    QVariant first(const QString& sql, const QVariantList& values);
    bool step(const QString& to, const Read& read);
    void stepInMoment(const QString& to, const Read& read);

    TillDatabase& database_;
    TillPace& pace_;
    const Reading& reading_;
    /// Everything before it is read, and of its own lines those up to row_.
    QString moment_;
    qint64 row_ = std::numeric_limits<qint64>::min();
};
