// SPDX-License-Identifier: MIT
#include "backoffice/sales/TillSource.h"

#include "backoffice/sales/TillStatements.h"
#include "backoffice/sales/UseTables.h"

#include <algorithm>

namespace {
/// The share of the days of \a range before \a moment.
double shareBefore(const QString& moment, const DayRange& range)
{
    constexpr double hoursInADay = 24;
    const QDate day = dayOf(moment);
    const double hour = std::max(hourOf(moment), 0);
    const double passed = static_cast<double>(range.first.daysTo(day)) + hour / hoursInADay;
    return std::clamp(passed / static_cast<double>(range.days()), 0.0, 1.0);
}

QString text(QDate day) { return day.toString(QStringLiteral("yyyy-MM-dd")); }
} // namespace

void append(std::vector<ReadSlice>& slices, const ReadSlice& next)
{
    constexpr qint64 most = 10000;
    if (!slices.empty()) {
        ReadSlice& last = slices.back();
        const bool areNeighbours = !next.slice.to.isEmpty() && last.slice.to == next.slice.from;
        if (areNeighbours && last.lines + next.lines <= most) {
            last.slice.to = next.slice.to;
            last.lines += next.lines;
            return;
        }
    }
    slices.push_back(next);
}

TillSource::TillSource(const QString& folder, const Timing& timing)
    : database_(folder, timing)
    , hours_(timing)
    , articles_(timing)
    , counts_(timing)
{ }

std::vector<QString> TillSource::tills() const { return {tr("Caisse")}; }

/// Runs \a body, and again with the new file when the database is replaced meanwhile.
template <class Body> auto TillSource::again(Body body)
{
    for (;;) {
        try {
            return body();
        } catch (const TillDatabase::Replaced&) {
            // The next try opens the new file.
        }
    }
}

LastLine TillSource::lastLine(const Reading& reading)
{
    LastLine last;
    database_.read(
        TillStatements::lastRecorded(), {},
        [&](const QSqlQuery& row) {
            last = {row.value(0).toLongLong(), row.value(1).toString()};
        },
        reading);
    return last;
}

QVariant TillSource::value(const QString& sql, const QVariantList& values, const Reading& reading)
{
    QVariant found;
    database_.read(
        sql, values, [&](const QSqlQuery& row) { found = row.value(0); }, reading);
    return found;
}

/// Whether the database still has the lines that \a kept was read of, and no other ones in their
/// days. The till adds lines and purges them, and never changes one: with the last line of then
/// still there, all new lines come behind it, so that equal numbers of lines are the same lines.
template <class Figures>
bool TillSource::isAsRead(const KeptFigures<Figures>& kept, TillPace& pace, const Reading& reading)
{
    const LastLine& last = kept.last;
    if (last.moment.isEmpty()
        || value(TillStatements::momentOf(), {last.row}, reading).toString() != last.moment) {
        return false;
    }
    const QVariantList later{last.row, text(kept.range.first), text(kept.end)};
    if (value(TillStatements::laterLines(), later, reading).toLongLong() != 0) {
        return false;
    }
    return std::all_of(kept.slices.begin(), kept.slices.end(), [&](const ReadSlice& read) {
        qint64 lines = 0;
        pace.runAsIs(database_.isTillAtWork(), [&] {
            lines = value(read.slice.in(TillStatements::lines()), read.slice.values(), reading)
                        .toLongLong();
        });
        reading.advance(0);
        return lines == read.lines;
    });
}

/// Reads the days from into.end to before \a end. Throws without having changed \a into.
template <class Figures>
void TillSource::readDays(
    KeptFigures<Figures>& into, QDate end, TillPace& pace, const Reading& reading)
{
    Figures figures;
    std::vector<ReadSlice> slices;
    const auto read = [&](const SalesSlice& slice) {
        ReadSlice done{slice, 0};
        database_.read(
            slice.in(Figures::statement()), slice.values(),
            [&](const QSqlQuery& row) {
                figures.add(row);
                done.lines += row.value(Figures::columns).toLongLong();
            },
            reading);
        append(slices, done);
    };
    SalesWalk(database_, pace, reading)
        .go(text(into.end), text(end), read,
            [&](const QString& moment) { reading.advance(shareBefore(moment, into.range)); });
    into.figures.add(figures);
    std::for_each(
        slices.begin(), slices.end(), [&](const ReadSlice& slice) { append(into.slices, slice); });
    into.end = end;
}

template <class Figures>
Figures TillSource::figures(
    KeptRanges<Figures>& kept, const DayRange& range, const Reading& reading)
{
    return again([&] {
        const TillDatabase::State state = database_.state(reading);
        reading.advance(0);
        const LastLine last = lastLine(reading);
        KeptFigures<Figures>& past = kept.of(range);
        if (!(past.checked == state)) {
            if (past.checked.file != state.file || !isAsRead(past, kept.pace(), reading)) {
                past = {range, range.first, {}, {}, {}, {}};
            }
            past.checked = state;
            past.last = last;
        }
        const QDate behind = range.last.addDays(1);
        const QDate today = dayOf(last.moment);
        const QDate pastEnd = today.isValid() ? std::min(today, behind) : range.first;
        if (past.end < pastEnd) {
            readDays(past, pastEnd, kept.pace(), reading);
        }
        KeptFigures<Figures> all{range, past.end, past.figures, {}, {}, {}};
        readDays(all, behind, kept.pace(), reading);
        return all.figures;
    });
}

std::vector<HourSales> TillSource::hours(const DayRange& range, const Reading& reading)
{
    return figures(hours_, range, reading).result(range.first);
}

std::vector<ArticleSales> TillSource::articles(const DayRange& range, const Reading& reading)
{
    return figures(articles_, range, reading).result();
}

std::vector<Use> TillSource::uses(const DayRange& range, const Reading& reading)
{
    const CountFigures counts = figures(counts_, range, reading);
    return again([&] {
        database_.state(reading);
        UseTables tables;
        readRows(
            TillStatements::stockArticles(),
            [&](const QSqlQuery& row) {
                tables.addStockArticle({row.value(0), row.value(1)});
            },
            reading);
        readRows(
            TillStatements::doses(),
            [&](const QSqlQuery& row) {
                tables.addDose(
                    {row.value(0), row.value(1), row.value(2), row.value(3), row.value(4)});
            },
            reading);
        tables.addCounts(counts, range.first);
        return tables.uses(reading);
    });
}

/// Hands all rows of \a sql, which reads some behind a key, to \a row.
void TillSource::readRows(const QString& sql, const TillDatabase::Row& row, const Reading& reading)
{
    qint64 key = std::numeric_limits<qint64>::min();
    for (bool hasMore = true; hasMore;) {
        hasMore = false;
        database_.read(
            sql, {key},
            [&](const QSqlQuery& found) {
                key = found.value(0).toLongLong();
                hasMore = true;
                row(found);
            },
            reading);
        reading.advance(1);
    }
}

std::vector<MenuArticle> TillSource::menu()
{
    return again([&] {
        database_.state({});
        std::vector<MenuArticle> menu;
        readRows(TillStatements::menu(),
            [&](const QSqlQuery& row) {
                menu.push_back({row.value(1).toString(), row.value(2).toLongLong(), 0});
            },
            {});
        std::stable_sort(
            menu.begin(), menu.end(), [](const MenuArticle& one, const MenuArticle& other) {
                return folded(one.article) < folded(other.article);
            });
        return menu;
    });
}

double TillSource::taxRate()
{
    return again([&] {
        database_.state({});
        double rate = 0;
        database_.read(TillStatements::taxRate(), {},
            [&](const QSqlQuery& row) { rate = row.value(0).toDouble(); }, {});
        return rate;
    });
}

bool TillSource::isChanged()
{
    const TillDatabase::State state = database_.state({});
    const bool isOther = !seen_ || !(*seen_ == state);
    seen_ = state;
    return isOther;
}
