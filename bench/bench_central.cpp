// SPDX-License-Identifier: MIT
// What a till notices of its sales' way into the central book.
#include "bench/BackofficeShop.h"
#include "bench/Support.h"
#include "central/Sender.h"
#include "db/Db.h"
#include "tests/central/BookServer.h"

#include <QCoreApplication>
#include <QDir>

#include <chrono>
#include <functional>
#include <string>

#include <benchmark/benchmark.h>

namespace {
constexpr double lockLimitMs = 50;
constexpr int million = 1000000;

/// Sends all that is new on the till of \a shop, which is not at work, to the book at \a uri.
void send(const BackofficeShop& shop, const std::string& uri, std::int64_t expected)
{
    shop.rest();
    TillLines lines(shop.path(), {}, Timing::ofTheMachine());
    lines.state();
    Book book(uri, "identity", "Caisse");
    Sender sender(book, lines);
    sender.sendLines(Sender::Depth::All);
    sender.sendMenu();
    check(book.added() == expected, "the lines in the book");
}

void longestLock(benchmark::State& state, const BackofficeShop& shop, bool isSent)
{
    for ([[maybe_unused]] auto _ : state) {
        const std::string uri = BookServer::get().uri(BookServer::get().newBook());
        if (isSent) {
            send(shop, uri, million);
        }
        const LongestStatement statement;
        send(shop, uri, isSent ? 0 : million);
        state.SetIterationTime(LongestStatement::seconds());
    }
    state.counters["limit_ms"] = lockLimitMs;
}
} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const BackofficeShop shop(million);
    shop.enter();
    // What has no date of its own is looked for in the whole history.
    Db::DbLoad("insert into Historique values (1, 'Boisson', 2, 'hier')");
    for (const bool isSent : {false, true}) {
        benchmark::RegisterBenchmark(isSent ? "central_longest_lock_with_nothing_new/program"
                                            : "central_longest_lock_of_a_first_sending/program",
            longestLock, std::ref(shop), isSent)
            ->Iterations(1)
            ->Repetitions(1)
            ->UseManualTime()
            ->Unit(benchmark::kMillisecond);
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    QDir::setCurrent(QStringLiteral("/"));
    return 0;
}
