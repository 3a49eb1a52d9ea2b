// SPDX-License-Identifier: MIT
#include "base/Handle.h"
#include "bench/Support.h"
#include "db/Db.h"
#include "forms/FormVendelHistorique.h"

#include <QApplication>
#include <QDate>
#include <QDir>
#include <QLineEdit>
#include <QStandardItemModel>
#include <QTableView>
#include <QTemporaryDir>

#include <array>
#include <functional>
#include <memory>
#include <vector>

#include <benchmark/benchmark.h>
#include <malloc.h>
#include <sqlite3.h>

namespace {
constexpr int salesOfAYear = 330000;
constexpr int salesOfTheBigDay = 2000;
constexpr int salesOfTheYearBetween = 340000;
constexpr QLatin1String bigDay("2022-06-15");
constexpr double ratioLimit = 1.3;
constexpr double rowLimitBytes = 1024;

/// Writes sales into the history in the order of a bar's days.
class SoldHistory
{
public:
    SoldHistory()
    {
        sqlite3* database = nullptr;
        check(sqlite3_open("Vendel.db", &database) == SQLITE_OK, "open");
        database_.reset(database);
        run("pragma synchronous = off");
        run("begin");
        sqlite3_stmt* insert = nullptr;
        check(sqlite3_prepare_v2(
                  database, "insert into Historique values (?, ?, ?, ?)", -1, &insert, nullptr)
                == SQLITE_OK,
            "prepare");
        insert_.reset(insert);
    }
    ~SoldHistory()
    {
        insert_.reset();
        sqlite3_exec(database_.get(), "commit", nullptr, nullptr, nullptr);
    }
    SoldHistory(const SoldHistory&) = delete;
    SoldHistory& operator=(const SoldHistory&) = delete;
    SoldHistory(SoldHistory&&) = delete;
    SoldHistory& operator=(SoldHistory&&) = delete;

    void sellThroughDay(const QDate& day, int sales)
    {
        constexpr int opensAtMs = 8 * 3600 * 1000;
        constexpr int openMs = 15 * 3600 * 1000;
        for (int sale = 0; sale < sales; ++sale) {
            const QTime time = QTime::fromMSecsSinceStartOfDay(
                opensAtMs + static_cast<int>(static_cast<qint64>(openMs) * sale / sales));
            const int article = article_ = (article_ * 17 + 5) % 40;
            const QByteArray name = "Boisson n° " + QByteArray::number(article);
            const QByteArray moment
                = (day.toString(Qt::ISODate) + time.toString(QStringLiteral(" HH:mm:ss.zzz")))
                      .toUtf8();
            sqlite3_stmt* const insert = insert_.get();
            sqlite3_bind_int(insert, 1, article);
            sqlite3_bind_text(insert, 2, name.constData(), -1, SQLITE_TRANSIENT);
            sqlite3_bind_double(insert, 3, 1.5 + article / 4.0);
            sqlite3_bind_text(insert, 4, moment.constData(), -1, SQLITE_TRANSIENT);
            check(sqlite3_step(insert) == SQLITE_DONE, "insert");
            sqlite3_reset(insert);
        }
    }

    void sellThroughYear(int year, int sales)
    {
        const int days = QDate(year, 1, 1).daysInYear();
        for (int day = 0; day < days; ++day) {
            sellThroughDay(QDate(year, 1, 1).addDays(day), sales / days + (day < sales % days));
        }
    }

    void run(const char* sql)
    {
        check(sqlite3_exec(database_.get(), sql, nullptr, nullptr, nullptr) == SQLITE_OK, sql);
    }

private:
    Handle<sqlite3, sqlite3_close> database_;
    Handle<sqlite3_stmt, sqlite3_finalize> insert_;
    int article_ = 0;
};

/// A million sales of three years, or a part of them, in a temporary directory; one day has two
/// thousand.
class Bar
{
public:
    explicit Bar(int part = 1)
    {
        enter();
        Db::DbCreate();
        SoldHistory history;
        const QDate between = QDate::fromString(bigDay, Qt::ISODate);
        history.sellThroughYear(2021, salesOfAYear / part);
        const int others = salesOfTheYearBetween / part - salesOfTheBigDay;
        int day = 0;
        for (QDate date(2022, 1, 1); date.year() == 2022; date = date.addDays(1)) {
            history.sellThroughDay(
                date, date == between ? salesOfTheBigDay : others / 364 + (day++ < others % 364));
        }
        history.sellThroughYear(2023, salesOfAYear / part);
    }
    ~Bar() { QDir::setCurrent(QStringLiteral("/")); }
    Bar(const Bar&) = delete;
    Bar& operator=(const Bar&) = delete;
    Bar(Bar&&) = delete;
    Bar& operator=(Bar&&) = delete;

    void enter() const { check(QDir::setCurrent(folder_.path()), "temporary directory"); }

private:
    QTemporaryDir folder_;
};

struct Dates
{
    const char* first;
    const char* second;
    const char* from;
    const char* to;
};
constexpr Dates day{"06/15/2022", "06/16/2022", "2022-06-15", "2022-06-16"};
constexpr Dates month{"06/01/2022", "07/01/2022", "2022-06-01", "2022-07-01"};
constexpr Dates year{"01/01/2021", "01/01/2022", "2021-01-01", "2022-01-01"};

DbRows load(const char* sql, const Dates& dates)
{
    return Db::DbLoad(QString::fromLatin1(sql)
                          .arg(QLatin1String(dates.from), QLatin1String(dates.to))
                          .toUtf8()
                          .constData());
}

constexpr auto salesSql
    = "select * from Historique where date_heure between '%1' and '%2' order by date_heure asc";
constexpr auto groupsSql
    = "select distinct compte, article, prix, compte * prix as calcul from (select distinct "
      "count(article) as compte, article, prix from Historique where date_heure between '%1' and "
      "'%2' group by article, prix)";
constexpr auto sumSql = "select sum(prix) from Historique where date_heure between '%1' and '%2'";

/// How SQLite finds the sales of a period.
std::string planOf(const Dates& dates)
{
    const DbRows plan = load((std::string("explain query plan ") + salesSql).c_str(), dates);
    return plan.at(0).at(3);
}

/// The history window with a period typed in.
class Window
{
public:
    explicit Window(const Dates& dates)
    {
        window_.show();
        window_.findChild<QLineEdit*>(QStringLiteral("txt_First_Date"))
            ->setText(QLatin1String(dates.first));
        window_.findChild<QLineEdit*>(QStringLiteral("txt_Second_Date"))
            ->setText(QLatin1String(dates.second));
    }

    QTableView& view(const char* name)
    {
        return *window_.findChild<QTableView*>(QLatin1String(name));
    }

    int sales() { return view("tableView1").model()->rowCount(); }

    void empty()
    {
        for (const char* name : {"tableView1", "tableView3"}) {
            QAbstractItemModel& model = *view(name).model();
            model.removeRows(0, model.rowCount());
        }
    }

    void press(const char* slot)
    {
        QMetaObject::invokeMethod(&window_, slot, Qt::DirectConnection);
    }

private:
    FormVendelHistorique window_;
};

void listByProgram(benchmark::State& state, const Bar& bar, const Dates& dates, const char* slot)
{
    bar.enter();
    Window window(dates);
    for ([[maybe_unused]] auto _ : state) {
        window.press(slot);
        state.PauseTiming();
        window.empty();
        state.ResumeTiming();
    }
    state.counters["limit"] = ratioLimit;
    state.SetLabel(planOf(dates));
}

void listByFloor(benchmark::State& state, const Bar& bar, const Dates& dates, const char* slot)
{
    bar.enter();
    Window window(dates);
    window.press(slot);
    QTableView& sales = window.view("tableView1");
    QTableView& groups = window.view("tableView3");
    const DbRows saleTexts = textsOf(sales);
    const DbRows groupTexts = textsOf(groups);
    const int height = sales.rowHeight(0);
    const bool withSum = qstrcmp(slot, "on_btn_Total_clicked") == 0;
    window.empty();
    for ([[maybe_unused]] auto _ : state) {
        const DbRows saleRows = load(salesSql, dates);
        const DbRows sums = withSum ? load(sumSql, dates) : DbRows();
        const DbRows groupRows = load(groupsSql, dates);
        benchmark::DoNotOptimize(saleRows.data());
        benchmark::DoNotOptimize(sums.data());
        benchmark::DoNotOptimize(groupRows.data());
        fillByFloor(sales, saleTexts, height);
        fillByFloor(groups, groupTexts, height);
        state.PauseTiming();
        window.empty();
        state.ResumeTiming();
    }
    state.counters["limit"] = ratioLimit;
    state.SetLabel(planOf(dates));
}

/// A whole year, once: the memory that it holds while it stands.
void openYear(benchmark::State& state, const Bar& bar)
{
    bar.enter();
    Window window(year);
    QCoreApplication::processEvents();
    malloc_trim(0);
    const double before = residentBytes();
    for ([[maybe_unused]] auto _ : state) {
        window.press("on_btn_View_Historical_clicked");
        QCoreApplication::processEvents();
    }
    check(window.sales() == salesOfAYear, "a year of sales");
    state.counters["bytes"] = (residentBytes() - before) / salesOfAYear;
    state.counters["limit_bytes"] = rowLimitBytes;
    state.SetLabel(planOf(year));
}
} // namespace

int main(int argc, char* argv[])
{
    const BenchTill till(argc, argv);
    const Bar bar;
    const Bar tenth(10);
    const Bar hundredth(100);
    constexpr auto ms = benchmark::kMillisecond;
    constexpr auto view = "on_btn_View_Historical_clicked";
    constexpr auto total = "on_btn_Total_clicked";
    benchmark::RegisterBenchmark("history_year/program", openYear, std::ref(bar))
        ->Iterations(1)
        ->Unit(ms);
    const auto compare
        = [&](const std::string& work, const Bar& sales, const Dates& dates, const char* slot) {
              benchmark::RegisterBenchmark(
                  (work + "/floor").c_str(), listByFloor, std::ref(sales), dates, slot)
                  ->Unit(ms);
              benchmark::RegisterBenchmark(
                  (work + "/program").c_str(), listByProgram, std::ref(sales), dates, slot)
                  ->Unit(ms);
          };
    compare("history_day", bar, day, view);
    compare("history_day_in_10000_sales", hundredth, day, view);
    compare("history_day_in_100000_sales", tenth, day, view);
    compare("history_month_total", bar, month, total);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
