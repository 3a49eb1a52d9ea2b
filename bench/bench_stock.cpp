// SPDX-License-Identifier: MIT
// The consumption of a month among a million sales, against the same statements and a bare fill of
// the same rows.
#include "bench/Floor.h"
#include "bench/Support.h"
#include "db/Db.h"
#include "forms/FormVendelStockCalculation.h"
#include "store/Consumption.h"

#include <QApplication>
#include <QDir>
#include <QStandardItemModel>
#include <QTableView>
#include <QTemporaryDir>

#include <array>
#include <vector>

#include <benchmark/benchmark.h>

namespace {
constexpr double limit = 1.2;
constexpr std::array lists{"tableView1", "tableView2"};
const QString from = QStringLiteral("2022-06-01");
const QString to = QStringLiteral("2022-07-01");

constexpr auto detailsStatement
    = "select distinct compte, t.article, composition, dose, unite, compte * dose as calc, unite  "
      "from (select distinct count(article) as compte, article from Historique "
      "where date_heure between '2022-06-01' and '2022-07-01' group by article, prix) as t, "
      "(select c.article, composition, dose , unite from (select * from DoseStock) as b, "
      "(select * from ArticleStock) as c where b.id = c.id) as d  "
      "where t.article = d.article order by t.article";
constexpr auto totalsStatement
    = "select a.composition, a.calcul, a.unite , "
      "case a.unite when 'oz' then cast(a.calcul as real)/16 "
      "when 'fl. oz' then cast(a.calcul as real)/32 end calculconv, "
      "case a.unite when 'oz' then 'pound' when 'fl. oz' then 'quart' end calculunite "
      "from (select distinct c.composition,sum(c.calc) as calcul, c.unite "
      "from (select distinct compte, t.article, composition, dose, unite, "
      "compte * dose as calc, unite   "
      "from (select distinct count(article) as compte, article from Historique "
      "where date_heure between '2022-06-01' and '2022-07-01' group by article, prix) as t, "
      "(select c.article, composition, dose , unite from (select * from DoseStock) as b, "
      "(select * from ArticleStock) as c where b.id = c.id) as d "
      "where t.article = d.article order by t.article) as c group by c.composition) as a";

/// A bar's million sales from 2021 to 2023 of 40 articles at one or two prices, three compositions
/// in each recipe, in a temporary directory.
class Bar
{
public:
    Bar()
    {
        check(folder_.isValid() && QDir::setCurrent(folder_.path()), "temporary directory");
        Db::DbCreate();
        Db::DbLoad(
            "insert into Historique with recursive sale(n) as (select 0 union all select n "
            "+ 1 from sale where n < 999999) select n * 17 % 40, 'Boisson ' || (n * 17 % 40), "
            "2 + (n % 7 = 0), strftime('%Y-%m-%d %H:%M:%f', '2021-01-01', (n * 94.6) || ' "
            "seconds') from sale");
        Db::DbLoad("insert into ArticleStock with recursive article(n) as (select 0 union all "
                   "select n + 1 from article where n < 39) select n, 'Boisson ' || n from "
                   "article");
        Db::DbLoad(
            "insert into DoseStock (id, composition, dose, unite) select id, 'Composition ' "
            "|| ((id * 3 + part) % 25), 1.5 + part, case part when 0 then 'oz' else 'cl' end "
            "from ArticleStock, (select 0 as part union select 1 union select 2)");
        check(Consumption::details(from, to).size() >= 120, "a month's consumption");
    }
    ~Bar() { QDir::setCurrent(QStringLiteral("/")); }
    Bar(const Bar&) = delete;
    Bar& operator=(const Bar&) = delete;
    Bar(Bar&&) = delete;
    Bar& operator=(Bar&&) = delete;

private:
    QTemporaryDir folder_;
};

/// How SQLite finds the sales of the month.
std::string plan()
{
    return Db::DbLoad("explain query plan select distinct count(article) as compte, article from "
                      "Historique where date_heure between '2022-06-01' and '2022-07-01' group by "
                      "article, prix")
        .at(0)
        .at(3);
}

/// The consumption window of the month, its lists empty.
class Window
{
public:
    Window()
        : window_(QStringLiteral("06/01/2022"), QStringLiteral("07/01/2022"))
    {
        window_.show();
    }

    void compute()
    {
        QMetaObject::invokeMethod(&window_, "on_btn_Display_clicked", Qt::DirectConnection);
    }

    QTableView& list(const char* name)
    {
        return *window_.findChild<QTableView*>(QLatin1String(name));
    }

    void empty()
    {
        for (const char* name : lists) {
            list(name).model()->removeRows(0, list(name).model()->rowCount());
        }
    }

private:
    FormVendelStockCalculation window_;
};

void byProgram(benchmark::State& state)
{
    Window window;
    for ([[maybe_unused]] auto _ : state) {
        window.compute();
        state.PauseTiming();
        state.counters["rows"] = window.list("tableView1").model()->rowCount();
        window.empty();
        state.ResumeTiming();
    }
    state.counters["limit"] = limit;
    state.SetLabel(plan());
}

void byFloor(benchmark::State& state)
{
    Window window;
    window.compute();
    const DbRows details = textsOf(window.list("tableView1"));
    const DbRows totals = textsOf(window.list("tableView2"));
    const int height = window.list("tableView1").rowHeight(0);
    window.empty();
    for ([[maybe_unused]] auto _ : state) {
        const DbRows detailRows = loadByFloor(detailsStatement);
        const DbRows totalRows = loadByFloor(totalsStatement);
        benchmark::DoNotOptimize(detailRows.data());
        benchmark::DoNotOptimize(totalRows.data());
        fillByFloor(window.list("tableView1"), details, height);
        fillByFloor(window.list("tableView2"), totals, height);
        state.PauseTiming();
        state.counters["rows"] = window.list("tableView1").model()->rowCount();
        window.empty();
        state.ResumeTiming();
    }
    state.counters["limit"] = limit;
    state.SetLabel(plan());
}
} // namespace

int main(int argc, char* argv[])
{
    const BenchTill till(argc, argv);
    const Bar bar;
    benchmark::RegisterBenchmark("stock_month/floor", byFloor)->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("stock_month/program", byProgram)->Unit(benchmark::kMillisecond);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
