// SPDX-License-Identifier: MIT
#include "tests/backoffice/sales/GestionShop.h"
#include "tests/support/StatementLog.h"
#include "tests/support/TestProgram.h"

#include <QFile>

namespace {
constexpr auto hoursStatement = "select substr(date_heure, 1, 13)";
constexpr auto traceStatement = "select count(*) from Historique where date_heure";

/// Four days of November 2026 with 600 sales at 2 of Café each, from midnight on, a second apart.
struct BusyShop : GestionShop
{
    BusyShop()
    {
        sql("insert into Historique with recursive sale(n) as (select 0 union all select n + 1 from "
            "sale where n < 2399) select 1, 'Café', 2, strftime('%Y-%m-%d %H:%M:%f', '2026-11-17', "
            "(n / 600) || ' days', (n % 600) || ' seconds') from sale");
    }
};

const DayRange november = days("2026-11-01", "2026-11-30");

QStringList hoursOf(TillSource& source) { return shown(source.hours(november, {})); }

/// What a source says that has kept nothing.
QStringList freshHours(const GestionShop& shop)
{
    TillSource source(shop.path(), smallPortions());
    return hoursOf(source);
}
} // namespace

/// What was read is kept as long as it is true.
class TestGestionTillSourceKept : public QObject
{
    Q_OBJECT

private slots:
    void oneMoreSaleReadsItsDayOnly()
    {
        const BusyShop shop;
        const StatementLog log;
        TillSource source(shop.path(), smallPortions());
        hoursOf(source);
        QVERIFY(log.count(hoursStatement) >= 10);
        QCOMPARE(log.count(traceStatement), 0L);
        const long before = log.count(hoursStatement);
        shop.sell("2026-11-20 20:00:00.000", "Thé", "3.5");
        QCOMPARE(hoursOf(source),
            QStringList({"2026-11-17 0h 600 12000000", "2026-11-18 0h 600 12000000",
                "2026-11-19 0h 600 12000000", "2026-11-20 0h 600 12000000",
                "2026-11-20 20h 1 35000"}));
        // 601 lines in portions of 250, and a look at whether the days before are as they were.
        QCOMPARE(log.count(hoursStatement) - before, 3L);
        QCOMPARE(log.count(traceStatement), 1L);
    }

    void anUnchangedDatabaseIsNotLookedThrough()
    {
        const BusyShop shop;
        const StatementLog log;
        TillSource source(shop.path(), smallPortions());
        hoursOf(source);
        hoursOf(source);
        QCOMPARE(log.count(traceStatement), 0L);
    }

    void articlesAndUsesAreKeptLikewise()
    {
        const BusyShop shop;
        shop.fill("insert into ArticleStock values (1, 'Café');"
                  "insert into DoseStock values (1, 1, 'Lait', 2.5, 'cl')");
        TillSource source(shop.path(), smallPortions());
        source.articles(november, {});
        source.uses(november, {});
        shop.sell("2026-11-20 20:00:00.000", "cafÉ", "3.5");
        shop.sell("2026-11-20 20:00:00.000", "CAFé", "3.5");
        shop.sql("update DoseStock set dose = 1");
        QCOMPARE(shown(source.articles(november, {})),
            QStringList({"cafÉ 1 35000", "CAFé 2401 48035000"}));
        QCOMPARE(shown(source.uses(november, {})),
            QStringList({"* Lait 2401 cl", "2026-11-17 Lait 600 cl", "2026-11-18 Lait 600 cl",
                "2026-11-19 Lait 600 cl", "2026-11-20 Lait 601 cl"}));
    }

    void aNewDayAddsTheOneBefore()
    {
        const BusyShop shop;
        TillSource source(shop.path(), smallPortions());
        hoursOf(source);
        shop.sell("2026-11-21 08:00:00.000", "Thé", "1");
        hoursOf(source);
        const StatementLog log;
        shop.sell("2026-11-21 08:30:00.000", "Thé", "1");
        QCOMPARE(hoursOf(source).mid(3),
            QStringList({"2026-11-20 0h 600 12000000", "2026-11-21 8h 2 20000"}));
    }

    void aPurgeIsNoticed()
    {
        const BusyShop shop;
        TillSource source(shop.path(), smallPortions());
        hoursOf(source);
        shop.sql("delete from Historique where date_heure between '2026-11-18 00:05:00.000' and "
                 "'2026-11-18 00:05:59.999'");
        QCOMPARE(hoursOf(source),
            QStringList({"2026-11-17 0h 600 12000000", "2026-11-18 0h 540 10800000",
                "2026-11-19 0h 600 12000000", "2026-11-20 0h 600 12000000"}));
    }

    void aPurgeOfTheLastDayIsNoticed()
    {
        const BusyShop shop;
        TillSource source(shop.path(), smallPortions());
        hoursOf(source);
        shop.sql("delete from Historique where date_heure >= '2026-11-20'");
        QCOMPARE(hoursOf(source),
            QStringList({"2026-11-17 0h 600 12000000", "2026-11-18 0h 600 12000000",
                "2026-11-19 0h 600 12000000"}));
        shop.sql("delete from Historique");
        QVERIFY(hoursOf(source).isEmpty());
    }

    void linesInPlaceOfPurgedOnesAreNoticed()
    {
        const BusyShop shop;
        TillSource source(shop.path(), smallPortions());
        hoursOf(source);
        shop.sql("delete from Historique where date_heure = '2026-11-18 00:05:00.000'");
        shop.sell("2026-11-18 00:05:00.000", "Thé", "7");
        QCOMPARE(hoursOf(source).at(1), QString("2026-11-18 0h 600 12050000"));
    }

    void aLineWithThePurgedLastOnesNumberIsNoticed()
    {
        const BusyShop shop;
        TillSource source(shop.path(), smallPortions());
        hoursOf(source);
        shop.sql("delete from Historique where date_heure >= '2026-11-19 00:09:59.000'");
        shop.sell("2026-11-19 00:09:59.000", "Thé", "7");
        QCOMPARE(shop.cell("select max(rowid) from Historique"), QString("1800"));
        QCOMPARE(hoursOf(source),
            QStringList({"2026-11-17 0h 600 12000000", "2026-11-18 0h 600 12000000",
                "2026-11-19 0h 600 12050000"}));
    }

    void aClockSetBackIsNoticed()
    {
        const BusyShop shop;
        TillSource source(shop.path(), smallPortions());
        hoursOf(source);
        shop.sell("2026-11-17 12:00:00.000", "Thé", "7");
        const QStringList expected(
            {"2026-11-17 0h 600 12000000", "2026-11-17 12h 1 70000", "2026-11-18 0h 600 12000000",
                "2026-11-19 0h 600 12000000", "2026-11-20 0h 600 12000000"});
        QCOMPARE(hoursOf(source), expected);
        shop.sell("2026-11-20 12:00:00.000", "Thé", "7");
        QCOMPARE(hoursOf(source), expected + QStringList("2026-11-20 12h 1 70000"));
        QCOMPARE(hoursOf(source), freshHours(shop));
    }

    void aSaleOfTheFutureDoesNotMakeTheOthersSlow()
    {
        const BusyShop shop;
        shop.sell("2036-11-20 09:00:00.000", "Thé", "7");
        shop.sell("2026-11-20 10:00:00.000", "Thé", "1");
        TillSource source(shop.path(), smallPortions());
        hoursOf(source);
        const StatementLog log;
        shop.sell("2026-11-20 10:00:00.000", "Thé", "1");
        QCOMPARE(hoursOf(source).constLast(), QString("2026-11-20 10h 2 20000"));
    }

    void aRestoredCopyIsNoticed()
    {
        const BusyShop shop;
        const QByteArray copy = shop.read("Vendel.db");
        shop.sell("2026-11-20 20:00:00.000", "Thé", "7");
        TillSource source(shop.path(), smallPortions());
        QCOMPARE(hoursOf(source).size(), 5);
        QVERIFY(source.isChanged());
        QVERIFY(!source.isChanged());
        shop.write("restored", copy);
        QVERIFY(std::rename("restored", "Vendel.db") == 0);
        QVERIFY(source.isChanged());
        QVERIFY(!source.isChanged());
        QCOMPARE(hoursOf(source).size(), 4);
        shop.sell("2026-11-20 21:00:00.000", "Thé", "7");
        QVERIFY(source.isChanged());
        QCOMPARE(hoursOf(source).constLast(), QString("2026-11-20 21h 1 70000"));
    }

    void aStoppedReadingLosesNothing()
    {
        const BusyShop shop;
        TillSource source(shop.path(), smallPortions());
        std::atomic<bool> isStopped = false;
        const Reading stopping{[&](double done) { isStopped = done > 0.6; }, &isStopped};
        QVERIFY_EXCEPTION_THROWN(source.hours(november, stopping), ReadingStopped);
        QCOMPARE(hoursOf(source), freshHours(shop));
    }

    void manyRangesAreRemembered()
    {
        const BusyShop shop;
        TillSource source(shop.path(), smallPortions());
        for (int day = 1; day <= 17; ++day) {
            const DayRange range{QDate(2026, 11, day), QDate(2026, 11, 18)};
            QCOMPARE(source.hours(range, {}).size(), std::size_t{2});
        }
        QCOMPARE(hoursOf(source).size(), 4);
    }
};

VENDEL_TEST(TestGestionTillSourceKept)
#include "tst_GestionTillSource_kept.moc"
