// SPDX-License-Identifier: MIT
// The back office's reading of the sales, against the bare statements; and what the till notices of
// it.
#include "backoffice/sales/TillSource.h"
#include "base/Handle.h"
#include "bench/OtherReports.h"
#include "bench/SalesOfYears.h"
#include "bench/Support.h"
#include "db/Db.h"
#include "store/Consumption.h"
#include "store/History.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>
#include <malloc.h>
#include <sqlite3.h>

namespace {
constexpr double ratioLimit = 1.3;
constexpr double paymentRatioLimit = 1.1;
constexpr double lockLimitMs = 50;
/// Two seconds but the half that pass until a change is looked for.
constexpr double newSaleLimitMs = 1500;
constexpr double bytesALineLimit = 16;
constexpr int million = 1000000;

using Bare = std::size_t (*)(const SalesOfYears&);
using Report = std::size_t (*)(TillSource&, const DayRange&);

std::size_t readHours(TillSource& source, const DayRange& days)
{
    const auto hours = source.hours(days, {});
    return hours.size();
}

std::size_t readArticles(TillSource& source, const DayRange& days)
{
    const auto articles = source.articles(days, {});
    return articles.size();
}

std::size_t readUses(TillSource& source, const DayRange& days)
{
    const auto uses = source.uses(days, {});
    return uses.size();
}

/// Statements on one connection, the least that reading them costs.
class BareReading
{
public:
    BareReading()
    {
        sqlite3* handle = nullptr;
        check(sqlite3_open_v2("Vendel.db", &handle, SQLITE_OPEN_READONLY, nullptr) == SQLITE_OK,
            "open");
        connection_.reset(handle);
    }

    /// The number of rows.
    std::size_t run(const std::string& sql, const char* first = nullptr, const char* last = nullptr)
    {
        if (sql != sql_) {
            sqlite3_stmt* handle = nullptr;
            check(sqlite3_prepare_v2(connection_.get(), sql.c_str(), -1, &handle, nullptr)
                    == SQLITE_OK,
                sqlite3_errmsg(connection_.get()));
            statement_.reset(handle);
            sql_ = sql;
        }
        sqlite3_bind_text(statement_.get(), 1, first, -1, SQLITE_TRANSIENT);
        sqlite3_bind_text(statement_.get(), 2, last, -1, SQLITE_TRANSIENT);
        std::size_t rows = 0;
        while (sqlite3_step(statement_.get()) == SQLITE_ROW) {
            for (int column = 0; column < sqlite3_column_count(statement_.get()); ++column) {
                benchmark::DoNotOptimize(sqlite3_column_text(statement_.get(), column));
            }
            ++rows;
        }
        sqlite3_reset(statement_.get());
        return rows;
    }

private:
    Handle<sqlite3, sqlite3_close> connection_;
    Handle<sqlite3_stmt, sqlite3_finalize> statement_;
    std::string sql_;
};

std::size_t bareHours(const SalesOfYears&)
{
    return BareReading().run("select substr(date_heure, 1, 13), count(*), "
                             "sum(cast(round(prix * 10000) as integer)) from Historique "
                             "where date_heure between ? and ? group by 1",
        "2021-01-01", "2024-01-01");
}

std::size_t bareArticles(const SalesOfYears&)
{
    return BareReading().run("select article, count(*), sum(cast(round(prix * 10000) as integer)) "
                             "from Historique where date_heure between ? and ? group by 1",
        "2021-01-01", "2024-01-01");
}

/// The till's own statement for all days and each of them.
std::size_t bareUses(const SalesOfYears& bar)
{
    static const std::string sql = Consumption::totalsStatement(
        QStringLiteral("select distinct count(article) as compte, article from Historique "
                       "where date_heure between ? and ? group by article, prix"))
                                       .toStdString();
    BareReading reading;
    std::size_t rows = reading.run(sql, "2021-01-01", "2024-01-01");
    const DayRange days = bar.days();
    for (QDate day = days.first; day <= days.last; day = day.addDays(1)) {
        const std::string text = day.toString(Qt::ISODate).toStdString();
        rows += reading.run(sql, text.c_str(), (text + " 23:59:59.999").c_str());
    }
    return rows;
}

void byProgram(benchmark::State& state, const SalesOfYears& bar, Report report)
{
    bar.enter();
    malloc_trim(0);
    const double before = residentBytes();
    double most = 0;
    for ([[maybe_unused]] auto _ : state) {
        TillSource source(bar.path());
        state.counters["rows"] = static_cast<double>(report(source, bar.days()));
        state.PauseTiming();
        most = std::max(most, residentBytes() - before);
        state.ResumeTiming();
    }
    state.counters["limit"] = ratioLimit;
    state.counters["held"] = most;
}

void byFloor(benchmark::State& state, const SalesOfYears& bar, Bare bare)
{
    bar.enter();
    for ([[maybe_unused]] auto _ : state) {
        state.counters["rows"] = static_cast<double>(bare(bar));
    }
    state.counters["limit"] = ratioLimit;
}

/// All three reports of a million sales, once: the memory that they hold.
void memory(benchmark::State& state, const SalesOfYears& bar)
{
    bar.enter();
    malloc_trim(0);
    const double before = residentBytes();
    for ([[maybe_unused]] auto _ : state) {
        TillSource source(bar.path());
        readHours(source, bar.days());
        readArticles(source, bar.days());
        readUses(source, bar.days());
        malloc_trim(0);
        state.counters["bytes"] = (residentBytes() - before) / bar.sales();
    }
    state.counters["limit_bytes"] = bytesALineLimit;
}

/// The longest that the other process holds the database within some seconds.
void longestLock(benchmark::State& state, const SalesOfYears& bar)
{
    constexpr int watchedMs = 6000;
    bar.rest();
    for ([[maybe_unused]] auto _ : state) {
        OtherProcess reports(bar);
        state.SetIterationTime(reports.longestStatement(watchedMs));
    }
    state.counters["limit_ms"] = lockLimitMs;
}

/// A sale is paid: how long it takes until a page of all days shows it, from when the page notices.
void newSale(benchmark::State& state, const SalesOfYears& bar)
{
    bar.enter();
    bar.rest();
    TillSource source(bar.path());
    readHours(source, bar.days());
    source.isChanged();
    const std::vector<TicketLine> sale{
        {{}, QStringLiteral("1"), QStringLiteral("Café"), QStringLiteral("1.5")}};
    for ([[maybe_unused]] auto _ : state) {
        check(History::record(sale), "a sale");
        const auto begin = Clock::now();
        check(source.isChanged(), "a change");
        readHours(source, bar.days());
        state.SetIterationTime(secondsSince(begin));
    }
    state.counters["limit_ms"] = newSaleLimitMs;
}

/// The median of 200 payments.
double payment()
{
    constexpr int payments = 200;
    std::vector<double> seconds;
    for (int count = 0; count < payments; ++count) {
        const auto begin = Clock::now();
        check(History::record(
                  {{{}, QStringLiteral("1"), QStringLiteral("Café"), QStringLiteral("1.5")},
                      {{}, QStringLiteral("2"), QStringLiteral("Thé"), QStringLiteral("2")}}),
            "a payment");
        seconds.push_back(secondsSince(begin));
    }
    std::sort(seconds.begin(), seconds.end());
    std::fprintf(stderr, "payments: median %.3f ms, longest %.3f ms\n",
        seconds[payments / 2] * 1000, seconds.back() * 1000);
    return seconds[payments / 2];
}

void pay(benchmark::State& state, const SalesOfYears& bar, bool areReportsRead)
{
    bar.enter();
    for ([[maybe_unused]] auto _ : state) {
        const auto reports = areReportsRead ? std::make_unique<OtherProcess>(bar)
                                            : std::unique_ptr<OtherProcess>();
        state.SetIterationTime(payment());
    }
    state.counters["limit"] = paymentRatioLimit;
}
} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    if (argc == 3 && qstrcmp(argv[1], "--reports") == 0) {
        return readReports(QFile::decodeName(argv[2]));
    }
    const SalesOfYears hundredth(million / 100);
    const SalesOfYears tenth(million / 10);
    const SalesOfYears bar(million);
    constexpr auto ms = benchmark::kMillisecond;
    const auto compare = [](const std::string& work, const SalesOfYears& sales, Report report,
                             Bare bare) {
        const std::string name
            = "backoffice_" + work + "_of_" + std::to_string(sales.sales()) + "_sales";
        benchmark::RegisterBenchmark((name + "/floor").c_str(), byFloor, std::ref(sales), bare)
            ->Unit(ms);
        benchmark::RegisterBenchmark(
            (name + "/program").c_str(), byProgram, std::ref(sales), report)
            ->Unit(ms);
    };
    for (const SalesOfYears* sales : {&hundredth, &tenth, &bar}) {
        compare("hours", *sales, readHours, bareHours);
        compare("articles", *sales, readArticles, bareArticles);
        compare("uses", *sales, readUses, bareUses);
    }
    benchmark::RegisterBenchmark("backoffice_reports_held/program", memory, std::ref(bar))
        ->Iterations(1)
        ->Unit(ms);
    benchmark::RegisterBenchmark("backoffice_new_sale/program", newSale, std::ref(bar))
        ->Iterations(3)
        ->UseManualTime()
        ->Unit(ms);
    benchmark::RegisterBenchmark("backoffice_longest_lock/program", longestLock, std::ref(bar))
        ->Iterations(1)
        ->UseManualTime()
        ->Unit(ms);
    for (const bool areReportsRead : {false, true}) {
        benchmark::RegisterBenchmark(
            areReportsRead ? "backoffice_payment/program" : "backoffice_payment/floor", pay,
            std::ref(bar), areReportsRead)
            ->Iterations(1)
            ->UseManualTime()
            ->Unit(ms);
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    QDir::setCurrent(QStringLiteral("/"));
    return 0;
}
