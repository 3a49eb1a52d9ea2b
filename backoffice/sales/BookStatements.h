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

/// Group, day, article, lines counted so day by day, of groups of tills. Values: tills, the
/// group of each, days.
inline QString usesByDay()
{
    return QStringLiteral(
        "select part, day, folded, sum(lines)::bigint as lines from vendel.day_use join "
        "unnest(cast(? as integer[]), cast(? as integer[])) as parts (member, part) "
        "on member = till where day >= ? and day < ? group by 1, 2, 3");
}

/// The same, each month as its first day. Values: the first day, days before and behind the
/// months, months, tills, the group of each.
inline QString usesByMonth()
{
    return QStringLiteral(
        "select part, day, folded, sum(lines)::bigint as lines from ("
        "select till, folded, lines, greatest(date_trunc('month', day)::date, cast(? as date)) "
        "as day from vendel.day_use where day >= ? and day < ? or day >= ? and day < ? "
        "union all select till, folded, lines, month from vendel.month_use "
        "where month >= ? and month < ?) as days join "
        "unnest(cast(? as integer[]), cast(? as integer[])) as parts (member, part) "
        "on member = till group by 1, 2, 3");
}

/// The rows of \a sold, one of the two above, by day.
inline QString inOrder(const QString& sold) { return sold + QStringLiteral(" order by 2, 1, 3"); }

/// \a text as the till compares it, without regard to the case of A to Z.
inline QString foldedText(const QString& text)
{
    return QStringLiteral(
        "translate(%1, 'ABCDEFGHIJKLMNOPQRSTUVWXYZ', 'abcdefghijklmnopqrstuvwxyz')")
        .arg(text);
}

/// Day, composition, unit, amount, of what \a sold, one of the two above, was made of. The number
/// of a group is the key of a till whose recipes are its own. Values: those of \a sold.
inline QString composed(const QString& sold)
{
    return QStringLiteral(
        "with sold as materialized (%1), recipes as materialized ("
        "select distinct dose.till as part, %2 as folded, composition, dose, unit "
        "from vendel.dose join vendel.stock_article as stock "
        "on stock.till = dose.till and stock.id = stock_article "
        "where dose.till in (select part from sold)) "
        "select day, composition, unit, sum(lines * dose) from sold join recipes "
        "using (part, folded) group by 1, 2, 3 order by 1, %3, 2")
        .arg(
            sold, foldedText(QStringLiteral("article")), foldedText(QStringLiteral("composition")));
}

/// Till, article, price. Values: tills.
inline QString menu()
{
    return QStringLiteral("select till, article, price from vendel.menu "
                          "where till = any (cast(? as integer[])) order by till, article, id");
}

/// Till, a text that is equal for tills with the same recipes, and whether a composition stands in
/// them in several units or spellings. Values: tills.
inline QString recipes()
{
    return QStringLiteral(
        "select id, md5(concat((select string_agg(cast(row(s.id, article) as text), '' "
        "order by s.id) from vendel.stock_article s where s.till = all_tills.id), ' ', "
        "(select string_agg(cast(row(line, stock_article, composition, dose, unit) as text), '' "
        "order by line) from vendel.dose where till = all_tills.id))), "
        "exists (select from vendel.dose where till = all_tills.id group by %1 "
        "having count(distinct (composition, unit)) > 1) "
        "from vendel.till as all_tills where id = any (cast(? as integer[])) order by id")
        .arg(foldedText(QStringLiteral("composition")));
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
