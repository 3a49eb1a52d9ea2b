// SPDX-License-Identifier: MIT
#include "backoffice/sales/TillStatements.h"
#include "tests/backoffice/sales/GestionShop.h"
#include "tests/support/TestProgram.h"

#include <algorithm>
#include <numeric>
#include <set>

namespace {
/// The rows of each portion that a walk over all days hands out.
std::vector<std::vector<qint64>> portions(
    const GestionShop& shop, const char* from = "2026-01-01", const char* to = "2027-01-01")
{
    TillDatabase database(shop.path(), smallPortions());
    const Reading reading;
    database.state(reading);
    TillPace pace(smallPortions());
    std::vector<std::vector<qint64>> found;
    SalesWalk(database, pace, reading)
        .go(
            from, to,
            [&](const SalesSlice& slice) {
                found.emplace_back();
                database.read(
                    slice.in("select rowid from Historique where %1"), slice.values(),
                    [&](const QSqlQuery& row) {
                        found.back().push_back(row.value(0).toLongLong());
                    },
                    reading);
            },
            [](const QString&) {});
    return found;
}

qint64 largest(const std::vector<std::vector<qint64>>& portions)
{
    std::size_t most = 0;
    for (const auto& portion : portions) {
        most = std::max(most, portion.size());
    }
    return static_cast<qint64>(most);
}

/// Whether the portions have each of \a rows rows once.
bool haveEach(const std::vector<std::vector<qint64>>& portions, qint64 rows)
{
    std::set<qint64> once;
    qint64 all = 0;
    for (const auto& portion : portions) {
        once.insert(portion.begin(), portion.end());
        all += static_cast<qint64>(portion.size());
    }
    return all == rows && static_cast<qint64>(once.size()) == rows;
}

constexpr auto sales
    = "insert into Historique with recursive sale(n) as (select 0 union all select "
      "n + 1 from sale where n < %1 - 1) select 1, 'Café', 2, %2 from sale";

QByteArray manySales(int count, const char* moment)
{
    return QString(sales).arg(count).arg(moment).toUtf8();
}
} // namespace

/// The portions that the history is read in.
class TestGestionSalesWalk : public QObject
{
    Q_OBJECT

private slots:
    void everyLineIsReadOnceInSmallPortions()
    {
        const GestionShop shop;
        shop.sql(manySales(3000, "strftime('%Y-%m-%d %H:%M:%f', '2026-11-20', n || ' seconds')")
                     .constData());
        const auto found = portions(shop);
        QVERIFY(haveEach(found, 3000));
        QCOMPARE(largest(found), qint64{250});
        QCOMPARE(found.size(), std::size_t{12});
    }

    void manyLinesOfOneMomentAreReadInPortionsToo()
    {
        const GestionShop shop;
        shop.sell("2026-11-20 09:00:00.000", "Thé", "1");
        shop.sql(manySales(1001, "'2026-11-20 10:00:00.000'").constData());
        shop.sell("2026-11-20 11:00:00.000", "Thé", "1");
        const auto found = portions(shop);
        QVERIFY(haveEach(found, 1003));
        QVERIFY(largest(found) <= 250);
        QVERIFY(found.size() <= 8);
    }

    void aDayOfOneMomentIsReadWhole()
    {
        const GestionShop shop;
        shop.sql(manySales(500, "'2026-11-20 10:00:00.000'").constData());
        const auto found = portions(shop, "2026-11-20", "2026-11-21");
        QVERIFY(haveEach(found, 500));
        QCOMPARE(largest(found), qint64{250});
    }

    void someLinesOfEachMoment()
    {
        const GestionShop shop;
        shop.sql(
            manySales(2000, "strftime('%Y-%m-%d %H:%M:%f', '2026-11-20', (n / 100) || ' seconds')")
                .constData());
        const auto found = portions(shop);
        QVERIFY(haveEach(found, 2000));
        QVERIFY(largest(found) <= 250);
    }

    void momentsThatTheTillHasNotWrittenAreReadToo()
    {
        const GestionShop shop;
        for (const char* moment : {"2026", "2026-11-20", "2026-11-20T10:00", "2026-13-45 99:99",
                 "2026-11-20 é", "2026-12-31 23:59:60.000"}) {
            shop.sell(moment, "Thé", "1");
        }
        shop.sell("", "Thé", "1");
        shop.sell("2027-01-01", "Thé", "1");
        shop.sell("2026-01-01", "Thé", "1");
        // "2026" and "" come before the first day, "2027-01-01" is behind the last one.
        const auto found = portions(shop);
        QCOMPARE(found.size(), std::size_t{1});
        QCOMPARE(found.front().size(), std::size_t{6});
    }

    void nothingIsReadOfNoDays()
    {
        const GestionShop shop;
        shop.sell("2026-11-20 09:00:00.000", "Thé", "1");
        QVERIFY(portions(shop, "2026-11-20", "2026-11-20").empty());
        QCOMPARE(
            portions(shop, "2026-11-21", "2026-11-22"), (std::vector<std::vector<qint64>>{{}}));
    }
};

VENDEL_TEST(TestGestionSalesWalk)
#include "tst_GestionSalesWalk.moc"
