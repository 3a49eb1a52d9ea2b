// SPDX-License-Identifier: MIT
#include "app/FormVendel.h"
#include "app/FormVendelTicket.h"
#include "app/Payment.h"
#include "bench/Floor.h"
#include "bench/Support.h"
#include "widgets/OpenWindow.h"

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QStandardItemModel>
#include <QTableView>

#include <string>
#include <vector>

#include <benchmark/benchmark.h>

namespace {
constexpr int articles = 100;
constexpr double paymentLimit = 1.3;
constexpr double largestPaymentMs = 2000;

/// Puts \a lines of the first articles on the ticket, and nothing else.
void fillTicket(int lines)
{
    Db::DbLoad("delete from Ticket");
    Db::DbLoad(("insert into Ticket (id, article, prix) select id, article, prix from Article "
                "cross join (select 1 union all select 2) limit "
        + std::to_string(lines))
                   .c_str());
    check(Db::DbLoad("select * from Ticket").size() == static_cast<std::size_t>(lines), "a ticket");
}

template <class Widget> Widget& named(QWidget& window, const char* name)
{
    return *window.findChild<Widget*>(QLatin1String(name));
}

void sendReceiptAway()
{
    const auto windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows) {
        if (qobject_cast<FormVendelTicket*>(window) != nullptr) {
            window->close();
        }
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

/// "Payer" with a switch that asks for no receipt: the sale is recorded and the ticket stays.
void payByProgram(benchmark::State& state, int lines)
{
    FormVendel till;
    auto& button = named<QPushButton>(till, "btn_Payer");
    Db::DbLoad("update Config set valeur = 2 where param = 'Epson TM-T20II'");
    fillTicket(lines);
    for ([[maybe_unused]] auto _ : state) {
        Db::DbLoad("delete from Historique");
        const double begin = workedSeconds();
        button.click();
        state.SetIterationTime(workedSeconds() - begin);
        check(Db::DbLoad("select * from Historique").size() == static_cast<std::size_t>(lines),
            "a recorded sale");
    }
    state.counters["limit"] = paymentLimit;
}

void payByFloor(benchmark::State& state, int lines)
{
    fillTicket(lines);
    for ([[maybe_unused]] auto _ : state) {
        Db::DbLoad("delete from Historique");
        const double begin = workedSeconds();
        loadByFloor("select * from Ticket");
        std::vector<std::string> insertions;
        for (const auto& line : loadByFloor("select * from Ticket")) {
            insertions.push_back("insert into Historique (id, article, prix) values(" + line[1]
                + ", '" + line[2] + "', " + line[3] + ")");
        }
        transactByFloor(insertions);
        loadByFloor("select valeur from Config where param like 'Epson TM-T20II'");
        state.SetIterationTime(workedSeconds() - begin);
    }
    state.counters["limit"] = paymentLimit;
}

/// The receipt's window: it reads the ticket, shows it and empties it.
void showReceipt(benchmark::State& state, int lines)
{
    FormVendel till;
    for ([[maybe_unused]] auto _ : state) {
        fillTicket(lines);
        const double begin = workedSeconds();
        openWindow<FormVendelTicket>(&till, Payment::receipt());
        Ticket::clear();
        state.SetIterationTime(workedSeconds() - begin);
        check(Db::DbLoad("select * from Ticket").empty(), "an empty ticket");
        sendReceiptAway();
    }
}

/// "Payer" with the receipt on the screen, for a ticket of 20,000 lines, none like another.
void payLargestTicket(benchmark::State& state)
{
    constexpr int lines = 20'000;
    FormVendel till;
    auto& button = named<QPushButton>(till, "btn_Payer");
    Db::DbLoad("update Config set valeur = 0 where param = 'Epson TM-T20II'");
    for ([[maybe_unused]] auto _ : state) {
        Db::DbLoad(("with recursive n(i) as (select 1 union all select i + 1 from n where i < "
            + std::to_string(lines)
            + ") insert into Ticket (id, article, prix) select i, 'Article ' || i, i / 4.0 from n")
                       .c_str());
        const double begin = workedSeconds();
        button.click();
        QCoreApplication::processEvents();
        state.SetIterationTime(workedSeconds() - begin);
        check(Db::DbLoad("select * from Ticket").empty(), "an empty ticket");
        sendReceiptAway();
    }
    state.counters["limit_ms"] = largestPaymentMs;
}

void forgetLastLine()
{
    Db::DbLoad("delete from Ticket where idlig = (select max(idlig) from Ticket)");
}

/// A click on an article while \a lines stand on the ticket.
void addByProgram(benchmark::State& state, int lines)
{
    FormVendel till;
    named<QPushButton>(till, "btn_Afficher").click();
    auto& menu = named<QTableView>(till, "tableView1");
    fillTicket(lines);
    for ([[maybe_unused]] auto _ : state) {
        const double begin = workedSeconds();
        QMetaObject::invokeMethod(&menu, "clicked", Q_ARG(QModelIndex, menu.model()->index(3, 2)));
        state.SetIterationTime(workedSeconds() - begin);
        check(named<QTableView>(till, "tableView2").model()->rowCount() == lines + 1, "a new line");
        forgetLastLine();
    }
}

/// The statements of that click, and complete rows with their heights.
void addByFloor(benchmark::State& state, int lines)
{
    FormVendel till;
    auto& list = named<QTableView>(till, "tableView2");
    const int height = list.fontMetrics().height() + 4;
    fillTicket(lines);
    for ([[maybe_unused]] auto _ : state) {
        list.model()->removeRows(0, list.model()->rowCount());
        const double begin = workedSeconds();
        loadByFloor("select * from Article where id = 4 order by Article asc");
        loadByFloor("insert into Ticket (id, article, prix) values (4, 'Article 4', 1.0)");
        fillByFloor(list, loadByFloor("select * from Ticket"), height);
        state.SetIterationTime(workedSeconds() - begin);
        forgetLastLine();
    }
}

void digitByProgram(benchmark::State& state)
{
    FormVendel till;
    auto& button = named<QPushButton>(till, "btn_1");
    auto& clear = named<QPushButton>(till, "btn_Effacer_Saisie");
    for ([[maybe_unused]] auto _ : state) {
        clear.click();
        const double begin = workedSeconds();
        button.click();
        state.SetIterationTime(workedSeconds() - begin);
    }
}

void digitByFloor(benchmark::State& state)
{
    QWidget window;
    QLineEdit field(&window);
    QPushButton button(&window);
    QObject::connect(
        &button, &QPushButton::clicked, &field, [&] { field.insert(QStringLiteral("1")); });
    for ([[maybe_unused]] auto _ : state) {
        field.clear();
        const double begin = workedSeconds();
        button.click();
        state.SetIterationTime(workedSeconds() - begin);
    }
}

template <class Way> void compare(const std::string& work, Way program, Way floor, int lines)
{
    for (const auto& [side, way] : {std::pair("/floor", floor), std::pair("/program", program)}) {
        benchmark::RegisterBenchmark((work + side).c_str(), way, lines)
            ->Unit(benchmark::kMillisecond)
            ->UseManualTime();
    }
}
} // namespace

int main(int argc, char* argv[])
{
    const BenchTill till(argc, argv);
    Db::DbLoad(("with recursive n(i) as (select 1 union all select i + 1 from n where i < "
        + std::to_string(articles)
        + ") insert into Article (article, prix) select 'Article ' || i, i / 4.0 from n")
                   .c_str());
    compare("click_with_ticket_of_1", addByProgram, addByFloor, 1);
    compare("click_with_ticket_of_20", addByProgram, addByFloor, 20);
    compare("click_with_ticket_of_200", addByProgram, addByFloor, 200);
    compare("payment_of_1_line", payByProgram, payByFloor, 1);
    compare("payment_of_20_lines", payByProgram, payByFloor, 20);
    compare("payment_of_200_lines", payByProgram, payByFloor, 200);
    for (const int lines : {1, 20, 200}) {
        const std::string work = "receipt_window_of_" + std::to_string(lines) + "/program";
        benchmark::RegisterBenchmark(work.c_str(), showReceipt, lines)
            ->Unit(benchmark::kMillisecond)
            ->UseManualTime();
    }
    benchmark::RegisterBenchmark("payment_of_20000_lines/program", payLargestTicket)
        ->Unit(benchmark::kMillisecond)
        ->UseManualTime()
        ->Iterations(1);
    benchmark::RegisterBenchmark("click_on_digit/floor", digitByFloor)->UseManualTime();
    benchmark::RegisterBenchmark("click_on_digit/program", digitByProgram)->UseManualTime();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
