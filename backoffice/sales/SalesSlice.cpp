// SPDX-License-Identifier: MIT
#include "backoffice/sales/SalesSlice.h"

#include "backoffice/sales/TillStatements.h"

namespace {
constexpr qint64 beforeAllRows = std::numeric_limits<qint64>::min();
constexpr qint64 lastRow = std::numeric_limits<qint64>::max();
} // namespace

QString SalesSlice::in(const QString& statement) const
{
    return statement.arg(
        to.isEmpty() ? TillStatements::betweenRows() : TillStatements::betweenMoments());
}

QVariantList SalesSlice::values() const
{
    return to.isEmpty() ? QVariantList{from, afterRow, throughRow} : QVariantList{from, to};
}

void SalesWalk::go(const QString& from, const QString& to, const Read& read, const Note& note)
{
    moment_ = from;
    row_ = beforeAllRows;
    bool hasMore = from < to;
    while (hasMore) {
        pace_.run(database_.isTillAtWork(), [&] { hasMore = step(to, read); });
        note(hasMore ? moment_ : to);
    }
}

QVariant SalesWalk::first(const QString& sql, const QVariantList& values)
{
    QVariant found;
    database_.read(
        sql, values, [&](const QSqlQuery& row) { found = row.value(0); }, reading_);
    return found;
}

/// Reads one slice; returns whether there may be more.
bool SalesWalk::step(const QString& to, const Read& read)
{
    if (row_ == beforeAllRows) {
        const QVariant next = first(TillStatements::momentBehind(), {moment_, to, pace_.rows()});
        if (next.isNull()) {
            read({moment_, to});
            return false;
        }
        if (next.toString() != moment_) {
            read({moment_, next.toString()});
            moment_ = next.toString();
            return true;
        }
    }
    stepInMoment(to, read);
    return !moment_.isEmpty();
}

/// One moment has more lines than a slice: some of them.
void SalesWalk::stepInMoment(const QString& to, const Read& read)
{
    const QVariant through = first(TillStatements::rowBehind(), {moment_, row_, pace_.rows() - 1});
    const qint64 throughRow = through.isNull() ? lastRow : through.toLongLong();
    read({moment_, {}, row_, throughRow});
    row_ = throughRow;
    if (through.isNull()) {
        moment_ = first(TillStatements::nextMoment(), {moment_, to}).toString();
        row_ = beforeAllRows;
    }
}
