// SPDX-License-Identifier: MIT
#include "app/Application.h"
#include "app/FormVendel.h"
#include "bench/Floor.h"

#include <QApplication>
#include <QDir>
#include <QHeaderView>
#include <QMessageBox>
#include <QPushButton>
#include <QStandardItemModel>
#include <QTableView>
#include <QTemporaryDir>
#include <QTimer>

#include <stdexcept>

#include <benchmark/benchmark.h>
#include <time.h>

namespace {
constexpr double limit = 1.3;
constexpr int articles = 10000;
constexpr int doubles = 200;

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

void check(bool holds, const char* what)
{
    if (!holds) {
        throw std::runtime_error(what);
    }
}

/// Seconds of work that the process has done; what other processes do does not count.
double workedSeconds()
{
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
}

/// Sends message boxes away and keeps what they cost out of the measured work.
class Stopwatch : public QObject
{
public:
    Stopwatch()
    {
        qApp->installEventFilter(this);
    }

    void start()
    {
        begin_ = workedSeconds();
    }

    double seconds() const
    {
        return workedSeconds() - begin_;
    }

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

    void empty()
    {
        model.removeRows(0, model.rowCount());
    }
};

void showByProgram(benchmark::State& state)
{
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
    state.counters["limit"] = limit;
}

/// The least that shows the same: the statements, and complete rows with their heights.
void showByFloor(benchmark::State& state)
{
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
        check(marked.size() == doubles && count[0][0] == std::to_string(doubles), "doubles");
        screen.empty();
    }
    state.counters["limit"] = limit;
}
} // namespace

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    Application::setAttributes();
    QApplication application(argc, argv);
    Application::setUp(application);
    const QTemporaryDir folder;
    check(QDir::setCurrent(folder.path()), "a working directory");
    Db::DbCreate();
    Db::DbLoad("with recursive n(i) as (select 0 union all select i + 1 from n where i < 9999)"
               "insert into Article (article, prix) select 'Article ' || (i % 9800), i / 4.0 "
               "from n");
    constexpr auto ms = benchmark::kMillisecond;
    benchmark::RegisterBenchmark("menu_of_10000/floor", showByFloor)->Unit(ms)->UseManualTime();
    benchmark::RegisterBenchmark("menu_of_10000/program", showByProgram)->Unit(ms)->UseManualTime();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
