// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

#include <vector>

/// Every statement that the back office runs on the central book. Tills are an array of their keys.
/// Days are from the first to before the last; where months are asked for, they are the whole ones
/// among these days.
namespace BookStatements {
/// The version of the book's schema that these statements read.
inline constexpr int schemaVersion = 2;

/// What a connection is told first. What a page asks for is quicker than the making of machine code
/// for it.
inline QString settings()
{
    return QStringLiteral("set session characteristics as transaction read only; "
                          "set statement_timeout = '60s'; set lock_timeout = '10s'; "
                          "set datestyle = 'ISO'; set jit = off; set work_mem = '64MB'");
}

/// Between these two, every statement reads the book as the first one did.
inline QString begin() { return QStringLiteral("begin isolation level repeatable read"); }
inline QString end() { return QStringLiteral("rollback"); }

/// \a keys as PostgreSQL writes an array.
inline QString array(const std::vector<int>& keys)
{
    QStringList texts;
    for (const int key : keys) {
        texts += QString::number(key);
    }
    return QLatin1Char('{') + texts.join(QLatin1Char(',')) + QLatin1Char('}');
}

inline QString version() { return QStringLiteral("select version from vendel.version"); }

inline QString tills()
{
    return QStringLiteral(
        "select id, name, tax_rate from vendel.till order by lower(name), name, id");
}

/// One row that is another one after every change: of the sales of the tills, and of what every
/// till is.
inline QString state()
{
    return QStringLiteral(
        "select coalesce(sum(number) filter (where id = any (cast(? as integer[]))), 0)::bigint, "
        "md5(string_agg(concat_ws(' ', id, tax_rate, menu, name), ', ' order by id)) "
        "from vendel.till left join vendel.progress on till = id");
}

/// Day, hour, lines, takings of all tills together. Values: days, tills.
inline QString hours()
{
    return QStringLiteral(
        "select day, hour, sum(lines)::bigint, sum(takings)::bigint from vendel.hour_sales "
        "where day >= ? and day < ? and till = any (cast(? as integer[])) "
        "group by 1, 2 order by 1, 2");
}

/// Till, day, hour, lines, takings, as in the two statements below it. Values: days, tills.
inline QString hoursOfTills()
{
    return QStringLiteral(
        "select till, day, hour, lines, takings from vendel.hour_sales "
        "where day >= ? and day < ? and till = any (cast(? as integer[])) order by 1, 2, 3");
}

inline QString daysOfTills()
{
    return QStringLiteral(
        "select till, day, 0, sum(lines)::bigint, sum(takings)::bigint from vendel.hour_sales "
        "where day >= ? and day < ? and till = any (cast(? as integer[])) "
        "group by 1, 2 order by 1, 2");
}

/// By the hour of the weekday, which its first day stands for. Values: the first day twice, days,
/// tills.
inline QString weekHoursOfTills()
{
    return QStringLiteral(
        "select till, cast(? as date) + (day - cast(? as date)) % 7, hour, sum(lines)::bigint, "
        "sum(takings)::bigint from vendel.hour_sales "
        "where day >= ? and day < ? and till = any (cast(? as integer[])) "
        "group by 1, 2, 3 order by 1, 2, 3");
}

/// The same by month. Values: months, tills, the first day, days before and behind the months,
/// tills.
inline QString monthsOfTills()
{
    return QStringLiteral(
        "select till, period, 0, sum(lines)::bigint, sum(takings)::bigint from ("
        "select till, month as period, lines, lines * price as takings from vendel.month_sales "
        "where month >= ? and month < ? and till = any (cast(? as integer[])) union all "
        "select till, greatest(date_trunc('month', day)::date, cast(? as date)), lines, takings "
        "from vendel.hour_sales where (day >= ? and day < ? or day >= ? and day < ?) "
        "and till = any (cast(? as integer[]))) as parts group by 1, 2 order by 1, 2");
}

/// Till, name, price, lines. Values: months, tills, days before and behind the months, tills.
inline QString parts()
{
    return QStringLiteral(
        "select till, name, price, lines from vendel.month_sales "
        "where month >= ? and month < ? and till = any (cast(? as integer[])) union all "
        "select till, name, price, lines from vendel.day_sales "
        "where (day >= ? and day < ? or day >= ? and day < ?) "
        "and till = any (cast(? as integer[]))");
}

/// Till, article, lines, takings. Values: those of parts().
inline QString articles()
{
    return QStringLiteral(
        "select till, min(vendel.name.name), sum(lines)::bigint, sum(takings)::bigint from ("
        "select till, name, sum(lines) as lines, sum(lines * price) as takings "
        "from (%1) as parts group by 1, 2) as sums "
        "join vendel.name on vendel.name.id = sums.name "
        "group by till, folded order by till, folded")
        .arg(parts());
}

/// Till, article, lines as the till's window of the consumption counts them: of the prices at which
/// an article was sold equally often, one. Values: those of parts().
inline QString uses()
{
    return QStringLiteral(
        "select till, folded, sum(distinct lines)::bigint from ("
        "select till, folded, price, sum(lines) as lines from ("
        "select till, name, price, sum(lines) as lines from (%1) as parts group by 1, 2, 3"
        ") as sums join vendel.name on vendel.name.id = sums.name group by 1, 2, 3"
        ") as prices group by 1, 2 order by 1, 2")
        .arg(parts());
}

/// More lines than a day or a month has.
inline constexpr qint64 linesEnd = qint64{1} << 40;

/// Till, article, and an array of the lines counted so on each day, to which the day's distance
/// from the first one times linesEnd is added; a month's are on its first day. With a second array
/// the server would need twice the memory, and look for it on its disk. Values: the first day, days
/// before and behind the months, tills, months, tills.
inline QString usesOfParts()
{
    return QStringLiteral(
        "select till, folded, array_agg((day - cast(? as date)) * %1 + lines) from ("
        "select till, folded, day, lines from vendel.day_use "
        "where (day >= ? and day < ? or day >= ? and day < ?) "
        "and till = any (cast(? as integer[])) union all "
        "select till, folded, month, lines from vendel.month_use "
        "where month >= ? and month < ? and till = any (cast(? as integer[]))"
        ") as parts group by 1, 2")
        .arg(linesEnd);
}

/// Till, article, price. Values: tills.
inline QString menu()
{
    return QStringLiteral("select till, article, price from vendel.menu "
                          "where till = any (cast(? as integer[])) order by till, article, id");
}

/// Till, key, article. Values: tills.
inline QString stockArticles()
{
    return QStringLiteral("select till, id, article from vendel.stock_article "
                          "where till = any (cast(? as integer[])) order by till, id");
}

/// Till, key, article's key, composition, dose, unit. Values: tills.
inline QString doses()
{
    return QStringLiteral(
        "select till, line, stock_article, composition, dose, unit from vendel.dose "
        "where till = any (cast(? as integer[])) order by till, line");
}
} // namespace BookStatements
