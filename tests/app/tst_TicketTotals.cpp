// SPDX-License-Identifier: MIT
#include "app/TicketTotals.h"
#include "tests/support/TestProgram.h"

#include <vector>

class TestTicketTotals : public QObject
{
    Q_OBJECT

private slots:
    void areInSinglePrecision_data()
    {
        QTest::addColumn<QString>("sum");
        QTest::addColumn<QString>("rate");
        QTest::addColumn<QString>("shownSum");
        QTest::addColumn<QString>("shownRate");
        QTest::addColumn<QString>("tax");
        QTest::addColumn<QString>("grandTotal");
        const auto row
            = [](const char* name, const char* sum, const char* rate, const char* shownSum,
                  const char* shownRate, const char* tax, const char* grandTotal) {
                  QTest::newRow(name) << sum << rate << shownSum << shownRate << tax << grandTotal;
              };
        // Half a cent enters every tax. Halves fall where single precision puts them: 1.505, 0.005
        // and -11.995 lie just inside, 9.005 and -1.995 just outside.
        row("20 per cent", "7.5", "20", "7.50", "20.00", "1.50", "9.01");
        row("no tax still adds half a cent", "7.5", "0", "7.50", "0.00", "0.00", "7.51");
        row("a whole sum at no tax", "10", "0", "10.00", "0.00", "0.00", "10.01");
        row("10 at 20 per cent", "10", "20", "10.00", "20.00", "2.01", "12.01");
        row("a rate with decimals", "100", "5.5", "100.00", "5.50", "5.51", "105.50");
        row("negative", "-10", "20", "-10.00", "20.00", "-2.00", "-11.99");
        row("just below a thousand", "999.99", "20", "999.99", "20.00", "200.00", "1,199.99");
        row("a thousand counts as nothing", "1000", "20", "1,000.00", "20.00", "0.00", "0.00");
        row("more than a thousand", "1234.5", "20", "1,234.50", "20.00", "0.00", "0.00");
        row("less than minus a thousand", "-1234.5", "20", "-1,234.50", "20.00", "0.00", "0.00");
        row("a rate that is no number", "7.5", "abc", "7.50", "0.00", "0.00", "7.51");
        row("a rate of a thousand", "7.5", "1000", "7.50", "1,000.00", "0.00", "7.51");
        row("a negative rate", "7.5", "-20", "7.50", "-20.00", "-1.50", "6.01");
        row("a sum that is no number", "abc", "20", "0.00", "20.00", "0.00", "0.00");
        row("an empty sum", "", "20", "0.00", "20.00", "0.00", "0.00");
        row("six significant digits", "999.95", "33.33", "999.95", "33.33", "333.29", "1,333.24");
        // Each of these is one cent off unless it is cut to six digits before its half cent is
        // rounded: 0.02 + 0.005 is just below 0.025 in single precision, the number read from
        // "0.025" just above.
        row("six digits of two cents", "0.02", "0", "0.02", "0.00", "0.00", "0.03");
        row("six digits of nine cents", "0.09", "0", "0.09", "0.00", "0.00", "0.09");
        row("six digits of many cents", "999.84", "0", "999.84", "0.00", "0.00", "999.84");
        row("six digits at 5.5 per cent", "18.91", "5.5", "18.91", "5.50", "1.05", "19.95");
        row("six digits at 10 per cent", "1.8", "10", "1.80", "10.00", "0.19", "1.99");
        row("six digits at 20 per cent", "1.5", "20", "1.50", "20.00", "0.31", "1.80");
        row("six digits of a tax at 5.5 per cent", "38", "5.5", "38.00", "5.50", "2.10", "40.10");
        row("six digits of a tax at 10 per cent", "0.1", "10", "0.10", "10.00", "0.01", "0.12");
        row("six digits of a tax at 20 per cent", "1.1", "20", "1.10", "20.00", "0.22", "1.33");
    }

    void areInSinglePrecision()
    {
        QFETCH(QString, sum);
        QFETCH(QString, rate);
        const TicketTotals totals = totalTicket(sum, {rate});
        QTEST(totals.sum, "shownSum");
        QCOMPARE(totals.taxes.size(), std::size_t{1});
        QTEST(totals.taxes.at(0).rate, "shownRate");
        QTEST(totals.taxes.at(0).amount, "tax");
        QTEST(totals.grandTotal, "grandTotal");
    }

    void withoutARateThereIsNoTax()
    {
        const TicketTotals totals = totalTicket("7.5", {});
        QCOMPARE(totals.sum, QString("7.50"));
        QVERIFY(totals.taxes.empty());
        QCOMPARE(totals.grandTotal, QString("7.50"));
    }

    void eachRateGivesItsTaxAndTheLastOneCounts()
    {
        const TicketTotals totals = totalTicket("10", {"20", "5.5"});
        QCOMPARE(totals.taxes.size(), std::size_t{2});
        QCOMPARE(totals.taxes.at(0).rate, QString("20.00"));
        QCOMPARE(totals.taxes.at(0).amount, QString("2.01"));
        QCOMPARE(totals.taxes.at(1).rate, QString("5.50"));
        QCOMPARE(totals.taxes.at(1).amount, QString("0.56"));
        QCOMPARE(totals.grandTotal, QString("10.56"));
    }
};

VENDEL_TEST(TestTicketTotals)
#include "tst_TicketTotals.moc"
