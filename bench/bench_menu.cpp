// SPDX-License-Identifier: MIT
#include "app/FormVendel.h"
#include "bench/Floor.h"
#include "bench/Support.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QStandardItemModel>
#include <QTableView>
#include <QTimer>

#include <string>
#include <utility>

#include <benchmark/benchmark.h>

namespace {
constexpr double limit = 1.3;
constexpr int mostArticles = 10000;
/// Each fiftieth article is one that the menu holds already.
constexpr int articlesForOneDouble = 50;

constexpr auto menuSql = "select * from Article order by Article asc";
constexpr auto countSql
    = "select sum(z.art) as som from (select count(d.article) as art, d.article from (select "
      "b.article,b.id from (select article,max(id) from Article group by article having "
      "count(article) > 1) as t, Article as b where t.article = b.article) as d where d.id not in "
      "(select max(id) as id from Article group by article having count(article) > 1) group by "
      "article) as z";
constexpr auto idsSql
    = "select d.id, d.article from (select b.article,b.id from (select article,max(id) from "
      "Article group by article having count(article) > 1) as t, Article as b where t.article = "
      "b.article) as d where d.id not in (select max(id) as id from Article group by article "
      "having count(article) > 1)";

/// Sends message boxes away and keeps what they cost out of the measured work.
class Stopwatch : public QObject
{
public:
    Stopwatch() { qApp->installEventFilter(this); }

    void start() { begin_ = workedSeconds(); }

    double seconds() const { return workedSeconds() - begin_; }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        auto* box = qobject_cast<QMessageBox*>(watched);
        if (box != nullptr && event->type() == QEvent::Show) {
            boxBegin_ = workedSeconds();
            QTimer::singleShot(0, box, &QDialog::accept);
        } else if (box != nullptr && event->type() == QEvent::Hide) {
            begin_ += workedSeconds() - boxBegin_;
        }
        return false;
    }

private:
    double begin_ = 0;
    double boxBegin_ = 0;
};

/// The sales screen with its menu not shown yet.
struct Screen
{
    FormVendel form;
    QTableView& view = *form.findChild<QTableView*>(QStringLiteral("tableView1"));
    QStandardItemModel& model = static_cast<QStandardItemModel&>(*view.model());

    void empty() { model.removeRows(0, model.rowCount()); }
};

/// Makes the shop's menu one of \a articles, some of them duplicates.
void fillMenu(int articles)
{
    Db::DbLoad("delete from Article");
    const std::string count = std::to_string(articles);
    Db::DbLoad(("with recursive n(i) as (select 0 union all select i + 1 from n where i < " + count
        + " - 1) insert into Article (article, prix) select 'Article ' || (i % (" + count + " - "
        + std::to_string(articles / articlesForOneDouble) + ")), i / 4.0 from n")
                   .c_str());
}

/// A short menu costs less than the box about its duplicates, and has no limit.
void keepLimit(benchmark::State& state, int articles)
{
    if (articles == mostArticles) {
        state.counters["limit"] = limit;
    }
}

void showByProgram(benchmark::State& state, int articles)
{
    fillMenu(articles);
    Screen screen;
    auto& button = *screen.form.findChild<QPushButton*>(QStringLiteral("btn_Afficher"));
    Stopwatch watch;
    for ([[maybe_unused]] auto _ : state) {
        watch.start();
        button.click();
        state.SetIterationTime(watch.seconds());
        check(screen.model.rowCount() == articles, "all articles");
        screen.empty();
    }
    keepLimit(state, articles);
}

/// The least that shows the same: the statements, and complete rows with their heights.
void showByFloor(benchmark::State& state, int articles)
{
    fillMenu(articles);
    Screen screen;
    const int height = screen.view.fontMetrics().height() + 4;
    Stopwatch watch;
    for ([[maybe_unused]] auto _ : state) {
        watch.start();
        const DbRows rows = loadByFloor(menuSql);
        const DbRows count = loadByFloor(countSql);
        const DbRows marked = loadByFloor(idsSql);
        for (const auto& row : rows) {
            screen.model.appendRow({new QStandardItem(QString::fromStdString(row[0])),
                new QStandardItem(), new QStandardItem(QString::fromStdString(row[1])),
                new QStandardItem(QString::fromStdString(row[2]))});
            screen.view.setRowHeight(screen.model.rowCount() - 1, height);
        }
        state.SetIterationTime(watch.seconds());
        check(marked.size() == static_cast<std::size_t>(articles / articlesForOneDouble)
                && count[0][0] == std::to_string(articles / articlesForOneDouble),
            "duplicates");
        screen.empty();
    }
    keepLimit(state, articles);
}
} // namespace

int main(int argc, char* argv[])
{
    const BenchTill till(argc, argv);
    for (const int articles : {100, 1000, mostArticles}) {
        for (const auto& [side, way] :
            {std::pair("/floor", &showByFloor), std::pair("/program", &showByProgram)}) {
            const std::string name = "menu_of_" + std::to_string(articles) + side;
            benchmark::RegisterBenchmark(name.c_str(), way, articles)
                ->Unit(benchmark::kMillisecond)
                ->UseManualTime();
        }
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
