// SPDX-License-Identifier: MIT
// The back office's pages over the central book of 100 tills that sold for a year.
#include "backoffice/reports/Report.h"
#include "backoffice/sales/BookSource.h"
#include "tests/central/BookServer.h"

#include <QCoreApplication>

#include <chrono>
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

namespace {
constexpr double pageLimitMs = 2000;
constexpr double lookLimitMs = 50;
constexpr int tills = 100;
constexpr int daysInAYear = 365;

using Clock = std::chrono::steady_clock;

double secondsSince(Clock::time_point begin)
{
    return std::chrono::duration<double>(Clock::now() - begin).count();
}

/// What tills know: 120 articles with recipes, in each till its own: doses, units and every fourth
/// composition. In the recipes of one till a composition has one unit.
constexpr const char* shops = R"sql(
insert into vendel.till (identity, name, tax_rate)
select 'till ' || t, 'Caisse ' || t, 20 from generate_series(1, 100) t;
insert into vendel.progress (till, number, reached) select id, 1, now() from vendel.till;
insert into vendel.name (name, folded)
select 'Article ' || a, 'article ' || a from generate_series(1, 120) a;
insert into vendel.menu
select t.id, a, 'Article ' || a, 20000 + 500 * a from vendel.till t, generate_series(1, 120) a;
insert into vendel.stock_article
select t.id, a, 'Article ' || a from vendel.till t, generate_series(1, 120) a;
insert into vendel.dose
select t.id, 3 * a + c, a,
    'Composition ' || part || case when part % 4 = 0 then ' de la caisse ' || t.id else '' end,
    2.5 * (c + 1) + 0.25 * t.id, (array['cl', 'g', 'oz'])[1 + (part + t.id) % 3]
from vendel.till t, generate_series(1, 120) a, generate_series(0, 2) c,
    lateral (select (a * 7 + c) % 40 as part) as parts)sql";

/// Gives what the first article is made of a second unit in the recipes of the first TILLS tills,
/// and in no other.
constexpr const char* mixed = R"sql(
update vendel.dose
set unit = case when till <= TILLS then unit || ' net' else replace(unit, ' net', '') end
where stock_article = 1 and (unit like '% net') <> (till <= TILLS))sql";

/// A month of LINES sales a day of each till, from eight to seven; on Fridays some are cheaper.
constexpr const char* month = R"sql(
select vendel.make_month('MONTH');
insert into vendel.line (till, moment, article, name, price, ordinal)
select t, d + interval '8 hours' + i * interval '39600 seconds' / LINES, a, a,
    20000 + 500 * a - case when extract(isodow from d) = 5 and i % 7 = 0 then 5000 else 0 end, 1
from generate_series(1, 100) t,
    generate_series(timestamp 'MONTH', timestamp 'MONTH' + interval '1 month -1 day', '1 day') d,
    generate_series(0, LINES - 1) i,
    lateral (select 1 + (i * 7 + t + extract(doy from d)::integer) % 120 as a) as sold;
insert into vendel.hour_sales
select moment::date, till, extract(hour from moment), count(*), sum(price) from vendel.PLACE
group by 1, 2, 3 order by 1, 2, 3;
insert into vendel.day_sales
select moment::date, till, name, price, count(*) from vendel.PLACE
group by 1, 2, 3, 4 order by 1, 2, 3, 4;
insert into vendel.month_sales
select date 'MONTH', till, name, price, sum(lines) from vendel.day_sales
where day >= date 'MONTH' group by 2, 3, 4 order by 2, 3, 4;
insert into vendel.day_use
select day, till, folded, sum(distinct lines) from vendel.day_sales
join vendel.name n on n.id = vendel.day_sales.name where day >= date 'MONTH' group by 1, 2, 3 order by 1, 2, 3;
insert into vendel.month_use
select date 'MONTH', till, folded, sum(lines) from vendel.day_use
where day >= date 'MONTH' group by 2, 3 order by 2, 3)sql";

/// The book, made before the first measurement.
class Book100
{
public:
    Book100()
        : name_(BookServer::get().newBook())
    {
        const auto begin = Clock::now();
        constexpr long all = 33000000;
        const char* wanted = std::getenv("VENDEL_BENCH_LINES");
        const long lines = wanted == nullptr ? all : std::atol(wanted);
        const long daily = std::max(1L, (lines + tills * daysInAYear / 2) / tills / daysInAYear);
        run(shops);
        constexpr int months = 12;
        for (int number = 1; number <= months; ++number) {
            const QDate first(year, number, 1);
            QString sql(QString::fromLatin1(month));
            sql.replace(QLatin1String("MONTH"), first.toString(Qt::ISODate));
            sql.replace(QLatin1String("LINES"), QString::number(daily));
            sql.replace(QLatin1String("PLACE"), first.toString(QStringLiteral("'line_'yyyy'_'MM")));
            run(sql.toStdString());
        }
        run("vacuum analyze");
        std::fprintf(
            stderr, "%ld lines made in %.0f s\n", daily * tills * daysInAYear, secondsSince(begin));
        for (const QString& size : BookServer::get().rows(name_,
                 "select regexp_replace(relname, '_[0-9].*', '') as name, "
                 "sum(pg_total_relation_size(c.oid)) / 1000000 || ' MB' from pg_class c "
                 "join pg_namespace n on n.oid = relnamespace and nspname = 'vendel' "
                 "where relkind = 'r' group by 1 order by 1")) {
            std::fprintf(stderr, "%s\n", qPrintable(size));
        }
    }

    /// The book, in which \a mixedTills tills have recipes with a composition in two units.
    BookSource open(int mixedTills) const
    {
        QString sql(QString::fromLatin1(mixed));
        run(sql.replace(QLatin1String("TILLS"), QString::number(mixedTills)).toStdString());
        return BookSource(QString::fromStdString(BookServer::get().uri(name_)));
    }

    static constexpr int year = 2026;

private:
    void run(const std::string& sql) const { BookServer::get().rows(name_, sql); }

    std::string name_;
};

const Book100& book()
{
    static const Book100 made;
    return made;
}

/// Which tills a page is of.
struct Tills
{
    const char* name;
    bool isOne = false;
    int mixed = 0;
};

void readPage(benchmark::State& state, Page page, const DayRange& range, const Tills& which)
{
    BookSource source = book().open(which.mixed);
    ReportOrder order;
    order.page = page;
    order.range = range;
    order.today = QDate(Book100::year + 1, 1, 1);
    order.locale = QLocale(QLocale::French, QLocale::France);
    if (which.isOne) {
        order.tills = {QStringLiteral("Caisse 7")};
    }
    source.choose(order.tills);
    for ([[maybe_unused]] auto _ : state) {
        const auto begin = Clock::now();
        benchmark::DoNotOptimize(makeReport(order, source, {}));
        state.SetIterationTime(secondsSince(begin));
    }
    state.counters["limit_ms"] = pageLimitMs;
}

/// What a window asks twice a second.
void look(benchmark::State& state)
{
    BookSource source = book().open(0);
    source.isChanged();
    for ([[maybe_unused]] auto _ : state) {
        const auto begin = Clock::now();
        benchmark::DoNotOptimize(source.isChanged());
        state.SetIterationTime(secondsSince(begin));
    }
    state.counters["limit_ms"] = lookLimitMs;
}
} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const std::vector<std::pair<const char*, Page>> pages{{"sales", Page::Sales},
        {"articles", Page::Articles}, {"hours", Page::Hours}, {"uses", Page::Uses},
        {"closing", Page::Closing}};
    const std::vector<std::pair<const char*, DayRange>> ranges{
        {"a_day", {QDate(Book100::year, 6, 5), QDate(Book100::year, 6, 5)}},
        {"a_month", {QDate(Book100::year, 6, 1), QDate(Book100::year, 6, 30)}},
        {"two_months", {QDate(Book100::year, 6, 1), QDate(Book100::year, 7, 31)}},
        {"a_year", {QDate(Book100::year, 1, 1), QDate(Book100::year, 12, 31)}}};
    const std::vector<Tills> all{
        {"100_tills", false, 0}, {"one_till", true, 0}, {"95_tills_and_5_mixed_ones", false, 5}};
    for (const auto& [pageName, page] : pages) {
        for (const auto& [rangeName, range] : ranges) {
            for (const Tills& which : all) {
                if (which.mixed > 0 && page != Page::Uses) {
                    continue;
                }
                const std::string name = std::string("book_") + pageName + "_of_" + rangeName
                    + "_of_" + which.name + "/program";
                benchmark::RegisterBenchmark(name.c_str(), readPage, page, range, which)
                    ->UseManualTime()
                    ->Unit(benchmark::kMillisecond);
            }
        }
    }
    benchmark::RegisterBenchmark("book_look_for_new_sales/program", look)
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
