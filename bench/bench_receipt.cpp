// SPDX-License-Identifier: MIT
#include "app/Receipt.h"
#include "app/ReceiptBytes.h"

#include <string>

#include <benchmark/benchmark.h>

namespace {
constexpr double limitMs = 2;
constexpr int lines = 200;

Sale longSale()
{
    Sale sale;
    for (int line = 0; line < lines; ++line) {
        sale.items.push_back({QStringLiteral("3"), QStringLiteral("Thé à l'été %1").arg(line),
            QStringLiteral("2.5"), QStringLiteral("7.5")});
    }
    sale.sum = QStringLiteral("999.5");
    sale.taxRates = {QStringLiteral("20")};
    sale.header = QStringLiteral("titre:Chez Paul\n12 rue du Port\n");
    sale.footer = QStringLiteral("Merci de votre visite\ntitre:À bientôt\n");
    sale.time = QDateTime({2019, 3, 5}, {14, 7, 31});
    return sale;
}

void composeAndConvert(benchmark::State& state)
{
    const Sale sale = longSale();
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(receiptBytes(composeReceipt(sale)).size());
    }
    state.counters["limit_ms"] = limitMs;
}
} // namespace

BENCHMARK(composeAndConvert)->Name("receipt_of_200_lines/program")->Unit(benchmark::kMillisecond);
