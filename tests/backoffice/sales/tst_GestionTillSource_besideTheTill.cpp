// SPDX-License-Identifier: MIT
#include "store/History.h"
#include "tests/backoffice/sales/GestionShop.h"
#include "tests/support/TestProgram.h"

#include <QFile>

#include <algorithm>
#include <thread>

namespace {
const DayRange november = days("2026-11-01", "2026-11-30");

/// Ten thousand sales of November 2026.
struct LargeShop : GestionShop
{
    LargeShop()
    {
        sql("insert into Historique with recursive sale(n) as (select 0 union all select n + 1 from "
            "sale where n < 9999) select 1, 'Article ' || (n % 37), 2, strftime('%Y-%m-%d "
            "%H:%M:%f', '2026-11-01', (n * 250) || ' seconds') from sale");
    }
};

/// The till's clocks noted: how long it was left alone.
Timing noted(qint64& slept)
{
    Timing timing = Timing::ofTheMachine();
    timing.sleep = [&slept](qint64 time) { slept += time; };
    return timing;
}
} // namespace

/// What happens while the till sells.
class TestGestionTillSourceBesideTheTill : public QObject
{
    Q_OBJECT

private slots:
    void noSaleIsRefused()
    {
        const LargeShop shop;
        constexpr int sales = 40;
        int recorded = 0;
        std::atomic<bool> isClosed = false;
        std::thread till([&] {
            for (int sale = 0; sale < sales; ++sale) {
                recorded
                    += History::record({{{}, "1", "Thé", "1.5"}, {{}, "2", "Eau", "1"}}) ? 1 : 0;
            }
            isClosed = true;
        });
        std::size_t reports = 0;
        while (!isClosed || reports == 0) {
            TillSource source(shop.path());
            source.hours(november, {});
            source.uses(november, {});
            ++reports;
        }
        till.join();
        QCOMPARE(recorded, sales);
        QCOMPARE(shop.cell("select count(*) from Historique"), QString("10080"));
        QCOMPARE(shop.cell("pragma integrity_check"), QString("ok"));
    }

    void aTillAtWorkIsLeftMostOfTheTime()
    {
        const LargeShop shop;
        qint64 slept = 0;
        TillSource source(shop.path(), noted(slept));
        source.hours(november, {});
        QVERIFY(slept > 0);
    }

    void aTillThatRestsIsNotWaitedFor()
    {
        const LargeShop shop;
        qint64 slept = 0;
        Timing timing = noted(slept);
        timing.now = afterClosing().now;
        TillSource source(shop.path(), timing);
        source.hours(november, {});
        QCOMPARE(slept, qint64{0});
    }

    void aJournalShowsThatTheTillIsAtWork()
    {
        const LargeShop shop;
        TillDatabase database(shop.path(), afterClosing());
        QVERIFY(!database.isTillAtWork());
        shop.write("Vendel.db-journal", {});
        QVERIFY(database.isTillAtWork());
    }

    void progressGrowsToTheEnd()
    {
        const LargeShop shop;
        std::vector<double> shares;
        TillSource source(shop.path(), smallPortions());
        const Reading reading{[&](double done) { shares.push_back(done); }, nullptr};
        source.articles(november, reading);
        QVERIFY(shares.size() >= 40);
        QVERIFY(std::is_sorted(shares.begin(), shares.end()));
        QCOMPARE(shares.front(), 0.0);
        QCOMPARE(shares.back(), 1.0);
    }

    void readingStopsBetweenTwoPortions()
    {
        const LargeShop shop;
        int portions = 0;
        std::atomic<bool> isStopped = false;
        const auto stopAfterThree = [&](double) { isStopped = ++portions == 3; };
        TillSource source(shop.path(), smallPortions());
        const Reading reading{stopAfterThree, &isStopped};
        QVERIFY_EXCEPTION_THROWN(source.hours(november, reading), ReadingStopped);
        QCOMPARE(portions, 3);
        isStopped = false;
        portions = 10;
        QCOMPARE(source.hours(november, reading).size(), std::size_t{695});
    }
};

VENDEL_TEST(TestGestionTillSourceBesideTheTill)
#include "tst_GestionTillSource_besideTheTill.moc"
