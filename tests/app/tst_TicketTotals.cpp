// SPDX-License-Identifier: MIT
#include "app/TicketTotals.h"
#include "tests/support/Rows.h"
#include "tests/support/TestProgram.h"

#include <vector>

class TestTicketTotals : public QObject
{
    Q_OBJECT

private slots:
    void areInSinglePrecision()
    {
        const Rows<QString, QString, QString, QString, QString, QString> rows{
            // Half a cent enters every tax. Halves fall where single precision puts them: 1.505,
            // 0.005 and -11.995 lie just inside, 9.005 and -1.995 just outside.
            {"20 per cent", "7.5", "20", "7.50", "20.00", "1.50", "9.01"},
            {"no tax still adds half a cent", "7.5", "0", "7.50", "0.00", "0.00", "7.51"},
            {"a whole sum at no tax", "10", "0", "10.00", "0.00", "0.00", "10.01"},
            {"10 at 20 per cent", "10", "20", "10.00", "20.00", "2.01", "12.01"},
            {"a rate with decimals", "100", "5.5", "100.00", "5.50", "5.51", "105.50"},
            {"negative", "-10", "20", "-10.00", "20.00", "-2.00", "-11.99"},
            {"just below a thousand", "999.99", "20", "999.99", "20.00", "200.00", "1,199.99"},
            {"a thousand counts as nothing", "1000", "20", "1,000.00", "20.00", "0.00", "0.00"},
            {"more than a thousand", "1234.5", "20", "1,234.50", "20.00", "0.00", "0.00"},
            {"less than minus a thousand", "-1234.5", "20", "-1,234.50", "20.00", "0.00", "0.00"},
            {"a rate that is no number", "7.5", "abc", "7.50", "0.00", "0.00", "7.51"},
            {"a rate of a thousand", "7.5", "1000", "7.50", "1,000.00", "0.00", "7.51"},
            {"a negative rate", "7.5", "-20", "7.50", "-20.00", "-1.50", "6.01"},
            {"a sum that is no number", "abc", "20", "0.00", "20.00", "0.00", "0.00"},
            {"an empty sum", "", "20", "0.00", "20.00", "0.00", "0.00"},
            {"six significant digits", "999.95", "33.33", "999.95", "33.33", "333.29", "1,333.24"},
            // Each of these is one cent off unless it is cut to six digits before its half cent
            // is rounded: 0.02 + 0.005 is just below 0.025 in single precision, the number read
            // from "0.025" just above.
            {"six digits of two cents", "0.02", "0", "0.02", "0.00", "0.00", "0.03"},
            {"six digits of nine cents", "0.09", "0", "0.09", "0.00", "0.00", "0.09"},
            {"six digits of many cents", "999.84", "0", "999.84", "0.00", "0.00", "999.84"},
            {"six digits at 5.5 per cent", "18.91", "5.5", "18.91", "5.50", "1.05", "19.95"},
            {"six digits at 10 per cent", "1.8", "10", "1.80", "10.00", "0.19", "1.99"},
            {"six digits at 20 per cent", "1.5", "20", "1.50", "20.00", "0.31", "1.80"},
            {"six digits of a tax at 5.5 per cent", "38", "5.5", "38.00", "5.50", "2.10", "40.10"},
            {"six digits of a tax at 10 per cent", "0.1", "10", "0.10", "10.00", "0.01", "0.12"},
            {"six digits of a tax at 20 per cent", "1.1", "20", "1.10", "20.00", "0.22", "1.33"},
        };
        for (const auto& [row, sum, rate, shownSum, shownRate, tax, grandTotal] : rows) {
            const InRow inRow(row);
            const TicketTotals totals = totalTicket(sum, {rate});
            QCOMPARE(totals.sum, shownSum);
            QCOMPARE(totals.taxes.size(), std::size_t{1});
            QCOMPARE(totals.taxes.at(0).rate, shownRate);
            QCOMPARE(totals.taxes.at(0).amount, tax);
            QCOMPARE(totals.grandTotal, grandTotal);
        }
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
