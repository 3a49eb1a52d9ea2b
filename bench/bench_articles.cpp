// SPDX-License-Identifier: MIT
// "Afficher" of the article editor, against the same statements through the C API and complete rows
// put into a bare list.
#include "bench/Floor.h"
#include "bench/Support.h"
#include "db/Db.h"
#include "forms/FormVendelSaisieArticle.h"

#include <QApplication>
#include <QDir>
#include <QPushButton>
#include <QTableView>
#include <QTemporaryDir>

#include <stdexcept>
#include <string>

#include <benchmark/benchmark.h>

namespace {
constexpr double limit = 1.3;

constexpr const char* articles = "select * from Article order by Article asc";
constexpr const char* duplicates
    = "select d.id, d.article from (select b.article,b.id from (select article,max(id) from "
      "Article group by article having count(article) > 1) as t, Article as b where t.article = "
      "b.article) as d where d.id not in (select max(id) as id from Article group by article "
      "having count(article) > 1)";
constexpr const char* duplicateCount
    = "select sum(z.art) as som from (select count(d.article) as art, d.article from (select "
      "b.article,b.id from (select article,max(id) from Article group by article having "
      "count(article) > 1) as t, Article as b where t.article = b.article) as d where d.id not in "
      "(select max(id) as id from Article group by article having count(article) > 1) group by "
      "article) as z";

/// A temporary directory with a menu of so many articles, each name once: no box wants an answer.
class Menu
{
public:
    explicit Menu(benchmark::IterationCount size)
    {
        if (!folder_.isValid() || !QDir::setCurrent(folder_.path())) {
            throw std::runtime_error("temporary directory");
        }
        Db::DbCreate();
        const std::string fill
            = "insert into Article (article, prix) with recursive n(i) as (select 1 union all "
              "select i + 1 from n where i < "
            + std::to_string(size) + ") select 'Article ' || i, i / 4.0 from n";
        Db::DbLoad(fill.c_str());
    }
    ~Menu() { QDir::setCurrent(QStringLiteral("/")); }
    Menu(const Menu&) = delete;
    Menu& operator=(const Menu&) = delete;
    Menu(Menu&&) = delete;
    Menu& operator=(Menu&&) = delete;

private:
    QTemporaryDir folder_;
};

void check(benchmark::State& state, benchmark::IterationCount rows)
{
    if (rows != state.range(0)) {
        state.SkipWithError("the menu was not read whole");
    }
}

void showMenuByFloor(benchmark::State& state)
{
    const Menu menu(state.range(0));
    FormVendelSaisieArticle editor;
    editor.show();
    auto* list = editor.findChild<QTableView*>(QStringLiteral("tableView"));
    const int height = list->fontMetrics().height() + 4;
    editor.findChild<QPushButton*>(QStringLiteral("btn_Afficher"))->click();
    const DbRows texts = textsOf(*list);
    for ([[maybe_unused]] auto _ : state) {
        list->model()->removeRows(0, list->model()->rowCount());
        loadByFloor(articles);
        loadByFloor(duplicates);
        loadByFloor(duplicateCount);
        fillByFloor(*list, texts, height);
        QCoreApplication::processEvents();
        check(state, list->model()->rowCount());
    }
    state.counters["limit"] = limit;
}

void showMenu(benchmark::State& state)
{
    const Menu menu(state.range(0));
    FormVendelSaisieArticle editor;
    editor.show();
    auto* button = editor.findChild<QPushButton*>(QStringLiteral("btn_Afficher"));
    const auto* list = editor.findChild<QTableView*>(QStringLiteral("tableView"));
    for ([[maybe_unused]] auto _ : state) {
        button->click();
        QCoreApplication::processEvents();
        check(state, list->model()->rowCount());
    }
    state.counters["limit"] = limit;
}
} // namespace

int main(int argc, char* argv[])
{
    const BenchTill till(argc, argv);
    for (const int size : {100, 300, 1000}) {
        constexpr auto ms = benchmark::kMillisecond;
        benchmark::RegisterBenchmark("article_editor/floor", showMenuByFloor)->Arg(size)->Unit(ms);
        benchmark::RegisterBenchmark("article_editor/program", showMenu)->Arg(size)->Unit(ms);
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
