// SPDX-License-Identifier: MIT
#include "central/Schema.h"

#include "central/BookError.h"
#include "central/Connection.h"
#include "central/Sentences.h"
#include "central/Statements.h"

#include <array>
#include <optional>
#include <string_view>

namespace Schema {
namespace {
constexpr std::string_view first = R"sql(
create schema vendel;

create table vendel.version (version integer not null);
insert into vendel.version values (0);

-- A till. Its secret is its own: the book knows only the secret's digest.
create table vendel.till (
    id integer generated always as identity primary key,
    identity text not null unique,
    name text not null,
    tax_rate double precision not null default 0,
    -- Of the menu and the recipes below.
    menu text not null default '',
    registered timestamptz not null default now()
);

-- How far a till has been read. "number" is another one after each change.
create table vendel.progress (
    till integer primary key references vendel.till,
    number bigint not null default 0,
    last_row bigint not null default 0,
    last_content text not null default '',
    reached timestamptz
) with (fillfactor = 50);

create table vendel.month (
    till integer not null references vendel.till,
    month text collate "C" not null,
    lines bigint not null,
    digest bigint not null,
    primary key (till, month)
) with (fillfactor = 50);

-- The names of articles. "folded" is equal for names that are one article's.
create table vendel.name (
    id integer generated always as identity primary key,
    name text collate "C" not null unique,
    folded text collate "C" not null
);
create index name_folded on vendel.name (folded);

-- What was sold. Prices are ten-thousandths.
create table vendel.line (
    moment timestamp(3) not null,
    article bigint not null,
    price bigint not null,
    till integer not null,
    name integer not null,
    ordinal integer not null,
    exact_price text collate "C" not null default '',
    primary key (till, moment, article, name, price, exact_price, ordinal)
) partition by range (moment);

-- Lines that no page can show, as they are.
create table vendel.odd_line (
    till integer not null references vendel.till,
    digest text collate "C" not null,
    ordinal integer not null,
    moment text not null,
    article text not null,
    name text not null,
    price bigint not null,
    exact_price text not null,
    primary key (till, digest, ordinal)
);

-- The primary keys are for all tills in a period, the other indexes for one till.
create table vendel.hour_sales (
    day date not null,
    till integer not null,
    hour smallint not null,
    lines bigint not null,
    takings bigint not null,
    primary key (day, till, hour)
) with (fillfactor = 80);
create index hour_sales_of_till on vendel.hour_sales (till, day);

create table vendel.day_sales (
    day date not null,
    till integer not null,
    name integer not null,
    price bigint not null,
    lines bigint not null,
    primary key (day, till, name, price)
) with (fillfactor = 80);
create index day_sales_of_till on vendel.day_sales (till, day);

-- "month" is its first day.
create table vendel.month_sales (
    month date not null,
    till integer not null,
    name integer not null,
    price bigint not null,
    lines bigint not null,
    primary key (month, till, name, price)
) with (fillfactor = 80);
create index month_sales_of_till on vendel.month_sales (till, month);

create table vendel.menu (
    till integer not null references vendel.till,
    id bigint not null,
    article text collate "C" not null,
    price bigint not null,
    primary key (till, id)
);

create table vendel.stock_article (
    till integer not null references vendel.till,
    id bigint not null,
    article text collate "C" not null,
    primary key (till, id)
);

create table vendel.dose (
    till integer not null references vendel.till,
    line bigint not null,
    stock_article bigint not null,
    composition text collate "C" not null,
    dose double precision not null,
    unit text collate "C" not null,
    primary key (till, line)
);

-- Makes the place of a month's lines. A sender needs no right to make tables. The place is made
-- beside the others and then joined to them, because that waits for nobody who reads or writes.
create function vendel.make_month(wanted date) returns void
language plpgsql security definer set search_path = pg_catalog, pg_temp as $body$
declare
    begins date := date_trunc('month', wanted);
    ends date := begins + interval '1 month';
    place text := 'line_' || to_char(begins, 'YYYY_MM');
begin
    if begins < date '1970-01-01' or begins >= date '2200-01-01' then
        raise exception 'no month of sales: %', wanted;
    end if;
    perform pg_advisory_xact_lock(8461, 2);
    if to_regclass('vendel.' || place) is null then
        execute format('create table vendel.%I (like vendel.line including all)', place);
        execute format('alter table vendel.line attach partition vendel.%I '
            'for values from (%L) to (%L)', place, begins, ends);
    end if;
end
$body$;
revoke all on function vendel.make_month(date) from public;
)sql";

/// What the till's window of the consumption shows of a day. No line is added while it is made.
constexpr std::string_view uses = R"sql(
lock table vendel.progress in exclusive mode;

-- Lines of a day as the till's own window of the consumption counts them: of the prices at which an
-- article was sold equally often, one. The days do not add up to a longer time's count.
create table vendel.day_use (
    day date not null,
    till integer not null,
    folded text collate "C" not null,
    lines bigint not null,
    primary key (day, till, folded)
) with (fillfactor = 80);

insert into vendel.day_use
select day, till, folded, sum(distinct lines) from (
    select day, till, folded, price, sum(lines) as lines
    from vendel.day_sales join vendel.name on id = day_sales.name group by 1, 2, 3, 4
) as prices group by 1, 2, 3 order by 1, 2, 3;
create index day_use_of_till on vendel.day_use (till, day);

-- The sums of the month's days.
create table vendel.month_use (
    month date not null,
    till integer not null,
    folded text collate "C" not null,
    lines bigint not null,
    primary key (month, till, folded)
) with (fillfactor = 80);

insert into vendel.month_use
select date_trunc('month', day)::date, till, folded, sum(lines)
from vendel.day_use group by 1, 2, 3 order by 1, 2, 3;
create index month_use_of_till on vendel.month_use (till, month);

-- Whoever has the sums of a day, or may read or write them, has or may do so with these.
do $body$
declare
    given record;
    place text;
begin
    for given in select privilege_type, case grantee when 0 then 'public' else
            quote_ident(pg_get_userbyid(grantee)) end as reader,
            case when is_grantable then ' with grant option' else '' end as further
        from pg_class, aclexplode(relacl)
        where oid = 'vendel.day_sales'::regclass and grantee <> relowner
    loop
        execute format('grant %s on vendel.day_use, vendel.month_use to %s%s',
            given.privilege_type, given.reader, given.further);
    end loop;
    foreach place in array array['day_use', 'month_use'] loop
        execute format('alter table vendel.%I owner to %s', place, (select relowner::regrole
            from pg_class where oid = 'vendel.day_sales'::regclass));
    end loop;
end
$body$;
)sql";
/// The statements that make each version from the one before it; the first makes all.
constexpr std::array<std::string_view, current> versions{first, uses};

/// The version of the book's schema; nothing when there is none.
std::optional<int> versionOf(pqxx::work& transaction)
{
    const auto table = transaction.exec("select to_regclass('vendel.version') is not null");
    if (!table.at(0).at(0).as<bool>()) {
        return std::nullopt;
    }
    return transaction.exec(Statements::schemaVersion).at(0).at(0).as<int>();
}
} // namespace

void refuseLater(int version)
{
    if (version > current) {
        throw BookError(CentralSentences::later, BookStatus::Later);
    }
}

void requireCurrent(pqxx::work& transaction)
{
    const auto version = versionOf(transaction);
    refuseLater(version.value_or(0));
    if (version != current) {
        throw BookError(CentralSentences::notPrepared, BookStatus::NotPrepared);
    }
}

void prepare(const std::string& uri)
{
    // A large book is upgraded for as long as it takes.
    Connection connection(uri, Connection::endless);
    connection.transact([](pqxx::work& transaction) {
        // Whoever else prepares it waits until it is done.
        transaction.exec("set local lock_timeout = 0; set local statement_timeout = 0; "
                         "select pg_advisory_xact_lock(8461, 1)");
        const int found = versionOf(transaction).value_or(0);
        refuseLater(found);
        for (int version = found; version < current; ++version) {
            transaction.exec(std::string(versions.at(static_cast<std::size_t>(version))));
        }
        if (found < current) {
            transaction.exec_params("update vendel.version set version = $1", current);
        }
    });
}
} // namespace Schema
