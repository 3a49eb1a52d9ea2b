// SPDX-License-Identifier: MIT
#pragma once

/// The statements that carry lines into the book.
namespace Statements {
/// What each transaction begins with: its answer is the encoding of the book's texts. A server that
/// is stuck must not hold a till's sender, nor the next one; and what a till says is UTF-8,
/// whatever the machine's settings ask of PostgreSQL's client.
inline constexpr const char* begin
    = "set local statement_timeout = '60s'; set local lock_timeout = '30s'; "
      "set local idle_in_transaction_session_timeout = '120s'; set local datestyle = 'ISO'; "
      "set local client_encoding = 'UTF8'; select current_setting('server_encoding')";

inline constexpr const char* schemaVersion = "select version from vendel.version";

inline constexpr const char* findTill = "select id from vendel.till where identity = $1";
inline constexpr const char* lockTill
    = "select id from vendel.till where id = $1 and identity = $2 for update";
inline constexpr const char* hasSold = "select exists (select from vendel.month where till = $1) "
                                       "or exists (select from vendel.hour_sales where till = $1) "
                                       "or exists (select from vendel.odd_line where till = $1)";
inline constexpr const char* addTill = "insert into vendel.till (identity, name) values ($1, $2) "
                                       "on conflict (identity) do nothing";
inline constexpr const char* addProgress
    = "insert into vendel.progress (till) values ($1) on conflict do nothing";
inline constexpr const char* nameTill
    = "update vendel.till set name = $2 where id = $1 and name <> $2";

/// The tills that have sold some of these lines, with those lines' places, from 1. A line is
/// looked up by its key, for each till alone: a join might read the whole book.
inline constexpr const char* tillsWithSales = R"sql(
with sold as materialized (
    select place, moment, article, n.id as name, price, exact_price
    from unnest($1::timestamp[], $2::bigint[], $3::text[], $4::bigint[], $5::text[])
        with ordinality as asked(moment, article, text, price, exact_price, place)
    join vendel.name n on n.name = asked.text
)
select t.id, t.identity, t.name, sold.place from vendel.till t cross join sold
where (select true from vendel.line l
    where l.till = t.id and l.moment = sold.moment and l.article = sold.article
        and l.name = sold.name and l.price = sold.price and l.exact_price = sold.exact_price
    limit 1)
order by t.id, sold.place)sql";

/// A till that has sold nothing leaves the book.
inline constexpr const char* forgetProgress = "delete from vendel.progress where till = $1";
inline constexpr const char* forgetTill = "delete from vendel.till where id = $1";
/// A till whose machine has become another one keeps what it has sold, and nobody is it any more.
inline constexpr const char* leaveTill
    = "update vendel.till set identity = 'left ' || id where id = $1";
/// Whoever has the secret of $3 is the till $1 from now on, if nobody else was quicker.
inline constexpr const char* takeOver
    = "update vendel.till set identity = $3 where id = $1 and identity = $2";
/// All is to be read again, by whoever is the till then.
inline constexpr const char* restart
    = "update vendel.progress set number = number + 1, last_row = 0, last_content = '' "
      "where till = $1";
inline constexpr const char* forgetAllMonths = "delete from vendel.month where till = $1";

inline constexpr const char* progress
    = "select number, last_row, last_content from vendel.progress where till = $1";
inline constexpr const char* months
    = "select month, lines, digest from vendel.month where till = $1";

inline constexpr const char* knownNames
    = "select id, name from vendel.name where name = any ($1::text[])";
/// The till compares names without regard to the case of A to Z.
inline constexpr const char* addNames
    = "insert into vendel.name (name, folded) "
      "select wanted, translate(wanted, 'ABCDEFGHIJKLMNOPQRSTUVWXYZ', 'abcdefghijklmnopqrstuvwxyz')"
      " from unnest($1::text[]) wanted on conflict do nothing";

inline constexpr const char* makeMonth = "select vendel.make_month($1::date)";

/// Nobody else changes the till's progress, or the schema, until the transaction ends.
inline constexpr const char* lockProgress
    = "select number, (select version from vendel.version) from vendel.progress "
      "where till = $1 for update";

/// Inserts the lines that are not there yet, and adds only those to the sums.
inline constexpr const char* addLines = R"sql(
with fresh as (
    insert into vendel.line (till, moment, article, name, price, exact_price, ordinal)
    select $1, * from unnest($2::timestamp[], $3::bigint[], $4::integer[], $5::bigint[],
        $6::text[], $7::integer[])
    on conflict do nothing
    returning moment, name, price
), hours as (
    insert into vendel.hour_sales as sums
    select moment::date, $1, extract(hour from moment), count(*), sum(price)
    from fresh group by 1, 3 order by 1, 3
    on conflict (day, till, hour) do update
    set lines = sums.lines + excluded.lines, takings = sums.takings + excluded.takings
), days as (
    insert into vendel.day_sales as sums
    select moment::date, $1, name, price, count(*) from fresh group by 1, 3, 4 order by 1, 3, 4
    on conflict (day, till, name, price) do update set lines = sums.lines + excluded.lines
), months as (
    insert into vendel.month_sales as sums
    select date_trunc('month', moment)::date, $1, name, price, count(*)
    from fresh group by 1, 3, 4 order by 1, 3, 4
    on conflict (month, till, name, price) do update set lines = sums.lines + excluded.lines
)
select count(*) from fresh)sql";

/// After addLines: counts the days of these lines again as the till's window does.
inline constexpr const char* countUses = R"sql(
with touched as (
    select distinct moment::date as day, folded
    from unnest($2::timestamp[], $3::integer[]) as sold(moment, name)
    join vendel.name on id = sold.name
), counted as (
    select day, folded, sum(distinct lines) as lines from (
        select sums.day, touched.folded, sums.price, sum(sums.lines) as lines
        from touched join vendel.name using (folded)
        join vendel.day_sales as sums on sums.day = touched.day and sums.till = $1
            and sums.name = vendel.name.id
        group by 1, 2, 3
    ) as prices group by 1, 2
), changed as (
    select day, folded, counted.lines, counted.lines - coalesce(known.lines, 0) as more
    from counted left join (select * from vendel.day_use where till = $1) as known
        using (day, folded)
    where counted.lines is distinct from known.lines
), days as (
    insert into vendel.day_use select day, $1, folded, lines from changed order by day, folded
    on conflict (day, till, folded) do update set lines = excluded.lines
)
insert into vendel.month_use as sums
select date_trunc('month', day)::date, $1, folded, sum(more) from changed
group by 1, 3 order by 1, 3
on conflict (month, till, folded) do update set lines = sums.lines + excluded.lines)sql";

inline constexpr const char* addOddLines
    = "insert into vendel.odd_line "
      "(till, digest, ordinal, moment, article, name, price, exact_price) "
      "select $1, * from unnest($2::text[], $3::integer[], $4::text[], $5::text[], $6::text[], "
      "$7::bigint[], $8::text[]) on conflict do nothing";

inline constexpr const char* setMonths
    = "insert into vendel.month as known (till, month, lines, digest) "
      "select $1, * from unnest($2::text[], $3::bigint[], $4::bigint[]) "
      "on conflict (till, month) do update set lines = excluded.lines, digest = excluded.digest "
      "where (known.lines, known.digest) <> (excluded.lines, excluded.digest)";
inline constexpr const char* forgetMonths
    = "delete from vendel.month where till = $1 and month = any ($2::text[])";
inline constexpr const char* setProgress
    = "update vendel.progress set number = number + 1, last_row = $2, last_content = $3, "
      "reached = now() where till = $1";

inline constexpr const char* knownMenu = "select menu from vendel.till where id = $1 for update";
inline constexpr const char* setMenu
    = "update vendel.till set menu = $2, tax_rate = $3 where id = $1";
inline constexpr const char* emptyMenu = "delete from vendel.menu where till = $1";
inline constexpr const char* emptyStock = "delete from vendel.stock_article where till = $1";
inline constexpr const char* emptyDoses = "delete from vendel.dose where till = $1";
inline constexpr const char* addMenu
    = "insert into vendel.menu (till, id, article, price) "
      "select $1, * from unnest($2::bigint[], $3::text[], $4::bigint[])";
inline constexpr const char* addStock = "insert into vendel.stock_article (till, id, article) "
                                        "select $1, * from unnest($2::bigint[], $3::text[])";
inline constexpr const char* addDoses
    = "insert into vendel.dose (till, line, stock_article, composition, dose, unit) "
      "select $1, * from unnest($2::bigint[], $3::bigint[], $4::text[], $5::float8[], $6::text[])";

/// Odd lines that are kept aside.
inline constexpr const char* countOddLines = "select count(*) from vendel.odd_line where till = $1";
} // namespace Statements
