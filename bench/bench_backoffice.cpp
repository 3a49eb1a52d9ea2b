// SPDX-License-Identifier: MIT
// The pages of the back office against their bare statements, its opening, and what the till
// notices of it.
#include "backoffice/reports/Report.h"
#include "backoffice/sales/TillSource.h"
#include "backoffice/window/MainWindow.h"
#include "bench/BackofficeShop.h"
#include "bench/Support.h"
#include "store/History.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QProcess>
#include <QSettings>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <functional>
#include <memory>
#include <optional>
#include <thread>
#include <vector>

#include <benchmark/benchmark.h>
#include <malloc.h>
#include <sqlite3.h>
#include <unistd.h>

namespace {
constexpr double ratioLimit = 1.3;
/// A day is read in a millisecond: what is asked of the file around it, and that the first portions
/// are small whatever the disk is like, is a good part of that.
constexpr double dayRatioLimit = 2;
constexpr double paymentRatioLimit = 1.1;
constexpr double lockLimitMs = 50;
/// Two seconds but the half that pass until a change is looked for.
constexpr double newSaleLimitMs = 1500;
constexpr double bytesALineLimit = 16;
constexpr int million = 1000000;
constexpr double openingLimitMs = 500;

using Bar = BackofficeShop;
using Clock = std::chrono::steady_clock;

double secondsSince(Clock::time_point begin)
{
    return std::chrono::duration<double>(Clock::now() - begin).count();
}

using Bare = std::size_t (BareSales::*)(const DayRange&);

Report pageOf(Page page, const BackofficeShop& shop, TillSource& source)
{
    ReportOrder order;
    order.page = page;
    order.range = shop.days();
    order.today = QDate::currentDate();
    order.locale = QLocale(QLocale::French, QLocale::France);
    return makeReport(order, source, {});
}

double limitOf(Page page) { return page == Page::Closing ? dayRatioLimit : ratioLimit; }

/// Of an open source that has read nothing yet: the opening is measured by itself.
void byProgram(benchmark::State& state, const Bar& bar, Page page)
{
    bar.enter();
    bar.rest();
    for ([[maybe_unused]] auto _ : state) {
        state.PauseTiming();
        std::optional<TillSource> source(std::in_place, bar.path());
        source->isChanged();
        state.ResumeTiming();
        const Report report = pageOf(page, bar, *source);
        check(!report.file().rows.empty(), "a page with figures");
        state.PauseTiming();
        source.reset();
        state.ResumeTiming();
    }
    state.counters["limit"] = limitOf(page);
}

void byFloor(benchmark::State& state, const Bar& bar, Page page, Bare bare)
{
    bar.enter();
    for ([[maybe_unused]] auto _ : state) {
        state.PauseTiming();
        std::optional<BareSales> sales(std::in_place);
        state.ResumeTiming();
        benchmark::DoNotOptimize((*sales.*bare)(bar.days()));
        state.PauseTiming();
        sales.reset();
        state.ResumeTiming();
    }
    state.counters["limit"] = limitOf(page);
}

/// The pages of a million sales, once: the memory that their source holds.
void memory(benchmark::State& state, const Bar& bar)
{
    bar.enter();
    bar.rest();
    malloc_trim(0);
    const double before = residentBytes();
    for ([[maybe_unused]] auto _ : state) {
        TillSource source(bar.path());
        for (const Page page :
            {Page::Sales, Page::Articles, Page::Hours, Page::Uses, Page::Closing}) {
            pageOf(page, bar, source);
        }
        malloc_trim(0);
        state.counters["bytes"] = (residentBytes() - before) / bar.sales();
    }
    state.counters["limit_bytes"] = bytesALineLimit;
}

/// Another process that reads reports of \a bar one after the other.
class OtherProcess
{
public:
    explicit OtherProcess(const Bar& bar)
    {
        process_.start(
            QCoreApplication::applicationFilePath(), {QStringLiteral("--reports"), bar.path()});
        check(process_.waitForStarted(), "a second process");
        check(process_.waitForReadyRead(), "a report");
    }
    ~OtherProcess() { end(); }
    OtherProcess(const OtherProcess&) = delete;
    OtherProcess& operator=(const OtherProcess&) = delete;
    OtherProcess(OtherProcess&&) = delete;
    OtherProcess& operator=(OtherProcess&&) = delete;

    /// Lets it read for \a milliseconds, and returns the seconds of its longest statement.
    double longestStatement(int milliseconds)
    {
        process_.waitForFinished(milliseconds);
        end();
        return process_.readAll().trimmed().toDouble();
    }

private:
    void end()
    {
        process_.closeWriteChannel();
        process_.waitForFinished();
    }

    QProcess process_;
};

/// Ends the program once the figures of a page are painted.
class FiguresPainted : public QObject
{
public:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const auto* label
            = event->type() == QEvent::Paint ? qobject_cast<QLabel*>(watched) : nullptr;
        if (label != nullptr && label->objectName() == QLatin1String("value")
            && !label->text().isEmpty()) {
            // What else is to be painted is so by then.
            QMetaObject::invokeMethod(qApp, "quit", Qt::QueuedConnection);
        }
        return false;
    }
};

/// The window of the back office until it shows today's sales.
int showWindow(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    const QString folder = QFile::decodeName(argv[2]);
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder);
    FiguresPainted painted;
    application.installEventFilter(&painted);
    MainWindow window({[folder] { return std::make_unique<TillSource>(folder); }, makeReport,
        QLocale(QLocale::French, QLocale::France), &QDate::currentDate, folder});
    window.show();
    return QApplication::exec();
}

/// What the other process does until its standard input ends.
int readReports(const QString& folder)
{
    const LongestStatement statement;
    std::atomic<bool> isStopped = false;
    std::thread parent([&] {
        char byte = 0;
        while (read(STDIN_FILENO, &byte, 1) > 0) { }
        isStopped = true;
    });
    check(write(STDOUT_FILENO, "\n", 1) == 1, "the word that reading begins");
    constexpr int years = 4;
    const DayRange allDays{QDate::currentDate().addYears(-years), QDate::currentDate()};
    const Reading reading{{}, &isStopped};
    try {
        for (;;) {
            TillSource source(folder);
            source.hours(allDays, reading);
            source.articles(allDays, reading);
            source.uses(allDays, reading);
        }
    } catch (const ReadingStopped&) {
        parent.join();
        std::printf("%f\n", LongestStatement::seconds());
    }
    return 0;
}

/// The longest that the other process holds the database within some seconds.
void longestLock(benchmark::State& state, const Bar& bar)
{
    constexpr int watchedMs = 6000;
    bar.rest();
    for ([[maybe_unused]] auto _ : state) {
        OtherProcess reports(bar);
        state.SetIterationTime(reports.longestStatement(watchedMs));
    }
    state.counters["limit_ms"] = lockLimitMs;
}

qint64 linesOf(const Report& report)
{
    const auto lines = std::find_if(report.figures.begin(), report.figures.end(),
        [](const KeyFigure& figure) { return figure.kind == CellKind::Count; });
    check(lines != report.figures.end(), "the number of lines");
    return lines->value.toLongLong();
}

/// A sale is paid: how long it takes until a page of all days shows it, from when the page notices.
void newSale(benchmark::State& state, const Bar& bar)
{
    bar.enter();
    bar.rest();
    TillSource source(bar.path());
    source.isChanged();
    qint64 lines = linesOf(pageOf(Page::Sales, bar, source));
    const std::vector<TicketLine> sale{
        {{}, QStringLiteral("1"), QStringLiteral("Café"), QStringLiteral("1.5")}};
    for ([[maybe_unused]] auto _ : state) {
        check(History::record(sale), "a sale");
        const auto begin = Clock::now();
        check(source.isChanged(), "a change");
        const Report report = pageOf(Page::Sales, bar, source);
        state.SetIterationTime(secondsSince(begin));
        check(linesOf(report) == ++lines, "the sale on the page");
    }
    state.counters["limit_ms"] = newSaleLimitMs;
}

/// The command from its start until today's figures are painted, and its end.
void opening(benchmark::State& state, const Bar& bar)
{
    bar.enter();
    bar.rest();
    for ([[maybe_unused]] auto _ : state) {
        QProcess window;
        const auto begin = Clock::now();
        window.start(
            QCoreApplication::applicationFilePath(), {QStringLiteral("--window"), bar.path()});
        check(window.waitForFinished() && window.exitCode() == 0, "a window");
        state.SetIterationTime(secondsSince(begin));
    }
    state.counters["limit_ms"] = openingLimitMs;
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

void pay(benchmark::State& state, const Bar& bar, bool areReportsRead)
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
    if (argc == 3 && qstrcmp(argv[1], "--window") == 0) {
        return showWindow(argc, argv);
    }
    const QCoreApplication application(argc, argv);
    if (argc == 3 && qstrcmp(argv[1], "--reports") == 0) {
        return readReports(QFile::decodeName(argv[2]));
    }
    const Bar hundredth(million / 100);
    const Bar tenth(million / 10);
    const Bar bar(million);
    constexpr auto ms = benchmark::kMillisecond;
    const auto compare = [](const std::string& work, const Bar& sales, Page page, Bare bare) {
        const std::string name
            = "backoffice_" + work + "_of_" + std::to_string(sales.sales()) + "_sales";
        benchmark::RegisterBenchmark(
            (name + "/floor").c_str(), byFloor, std::ref(sales), page, bare)
            ->Unit(ms);
        benchmark::RegisterBenchmark((name + "/program").c_str(), byProgram, std::ref(sales), page)
            ->Unit(ms);
    };
    for (const Bar* sales : {&hundredth, &tenth, &bar}) {
        compare("sales", *sales, Page::Sales, &BareSales::hours);
        compare("articles", *sales, Page::Articles, &BareSales::articles);
        compare("hours", *sales, Page::Hours, &BareSales::hours);
        compare("uses", *sales, Page::Uses, &BareSales::uses);
        compare("closing", *sales, Page::Closing, &BareSales::closing);
    }
    benchmark::RegisterBenchmark("backoffice_reports_held/program", memory, std::ref(bar))
        ->Iterations(1)
        ->Unit(ms);
    benchmark::RegisterBenchmark("backoffice_new_sale/program", newSale, std::ref(bar))
        ->Iterations(3)
        ->UseManualTime()
        ->Unit(ms);
    benchmark::RegisterBenchmark("backoffice_opening/program", opening, std::ref(bar))
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
