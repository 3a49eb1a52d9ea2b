// SPDX-License-Identifier: MIT
#include "central/TillLines.h"
#include "tests/central/SoldTill.h"
#include "tests/support/TestProgram.h"

/// How a till's history is read for the book.
class TestCentralTillLines : public QObject
{
    Q_OBJECT

private slots:
    /// Each statement keeps the till from writing while it reads.
    void aLineWithoutAMonthIsLookedForInPortions()
    {
        const SoldTill till;
        till.sql("with recursive n(i) as (select 1 union all select i + 1 from n where i < 100000) "
                 "insert into Historique (id, article, prix, date_heure) "
                 "select 1, 'Thé', 2.5, '2026-03-05 10:00:00.000' from n");
        till.sell("hier", "Café");
        till.sell("hier", "Café");
        Timing timing = SoldTill::hasty();
        int clocks = 0;
        const auto elapsed = timing.elapsed;
        timing.elapsed = [&] {
            ++clocks;
            return elapsed();
        };
        TillLines lines(till.path(), {}, timing);
        lines.state();
        clocks = 0;
        std::vector<Line> found;
        lines.ofMonth("", 100002, [&](const std::vector<Line>& some) {
            found.insert(found.end(), some.begin(), some.end());
        });
        QCOMPARE(found.size(), std::size_t{2});
        QCOMPARE(found.at(0).name, std::string("Café"));
        QCOMPARE(found.at(0).ordinal, 1);
        QCOMPARE(found.at(1).ordinal, 2);
        // No portion has more than 20,000 rows, and the clock is read before and behind each.
        QVERIFY2(clocks >= 12, qPrintable(QString::number(clocks)));
    }

    /// A row that is only looked at takes a tenth of the time of one that is read.
    void aQuickLookMakesNoPortionLong()
    {
        const SoldTill till;
        till.sql("with recursive n(i) as (select 1 union all select i + 1 from n where i < 50000) "
                 "insert into Historique (id, article, prix, date_heure) "
                 "select 1, 'Thé', 2.5, '2026-03-05 10:00:00.000' from n");
        Timing timing = SoldTill::hasty();
        timing.elapsed = [] { return qint64{0}; };
        TillLines lines(till.path(), {}, timing);
        lines.state();
        lines.months(50000);
        lines.ofMonth("", 50000, [](const std::vector<Line>&) {});
        std::size_t first = 0;
        lines.ofMonth("2026-03", 50000,
            [&](const std::vector<Line>& some) { first = first == 0 ? some.size() : first; });
        QCOMPARE(first, std::size_t{250});
    }

    void anAnchorIsThereAsLongAsItsRowSaysTheSame()
    {
        const SoldTill till;
        till.sell("2026-03-05 10:00:00.000");
        TillLines lines(till.path(), {}, SoldTill::hasty());
        lines.state();
        const Anchor last = lines.last();
        QVERIFY(lines.has(last));
        QVERIFY(!lines.has(Anchor{}));
        till.sql("update Historique set prix = 3");
        QVERIFY(!lines.has(last));
        till.sql("delete from Historique");
        QVERIFY(!lines.has(last));
    }
};

VENDEL_TEST(TestCentralTillLines)
#include "tst_CentralTillLines.moc"
