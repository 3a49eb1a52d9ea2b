// SPDX-License-Identifier: MIT
#include "common/Money.h"
#include "tests/support/TestProgram.h"

class TestMoney : public QObject
{
    Q_OBJECT

private slots:
    void amountsHaveTwoDecimals()
    {
        QCOMPARE(formatAmount(0.0F), QString("0.00"));
        QCOMPARE(formatAmount(2.5F), QString("2.50"));
        QCOMPARE(formatAmount(-2.5F), QString("-2.50"));
        QCOMPARE(formatAmount(999.5F), QString("999.50"));
        QCOMPARE(formatAmount(1234.5F), QString("1,234.50"));
        QCOMPARE(formatAmount(1234567.0F), QString("1,234,567.00"));
        QCOMPARE(formatAmount(-1234.5F), QString("-1,234.50"));
        // The nearest numbers in single precision are just below and just above a half cent.
        QCOMPARE(formatAmount(1.505F), QString("1.50"));
        QCOMPARE(formatAmount(9.005F), QString("9.01"));
    }

    void decimalsMayBeAsked()
    {
        QCOMPARE(formatAmount(1234.5678F, 0), QString("1,235"));
        QCOMPARE(formatAmount(0.125F, 3), QString("0.125"));
    }

    void storedTextIsReadInSinglePrecision()
    {
        QCOMPARE(formatAmount("2.5"), QString("2.50"));
        QCOMPARE(formatAmount("1234"), QString("1,234.00"));
        QCOMPARE(formatAmount("1.0e+05"), QString("100,000.00"));
        QCOMPARE(formatAmount("abc"), QString("0.00"));
        QCOMPARE(formatAmount(""), QString("0.00"));
        QCOMPARE(formatAmount("16777217"), QString("16,777,216.00"));
    }

    void listsPutTheSignBehind()
    {
        QCOMPARE(formatMoney(12.5F), QString("12.50$"));
        QCOMPARE(formatMoney(1234.5F), QString("1,234.50$"));
        QCOMPARE(formatMoney(-2.5F), QString("-2.50$"));
    }

    void cellsShowNumbersAsMoney()
    {
        QCOMPARE(formatCell("12.5"), QString("12.50$"));
        QCOMPARE(formatCell("Thé"), QString("Thé"));
        QCOMPARE(formatCell("33 cl"), QString("33 cl"));
        QCOMPARE(formatCell("12,5"), QString("12,5"));
        QCOMPARE(formatCell(""), QString());
        // An article may be named by a number.
        QCOMPARE(formatCell("33"), QString("33.00$"));
        QCOMPARE(formatCell("1e5"), QString("100,000.00$"));
    }

    void exactCellsKeepTheirCents()
    {
        QCOMPARE(formatExactCell("12.5"), QString("12.50$"));
        QCOMPARE(formatExactCell("1234567.91"), QString("1,234,567.91$"));
        QCOMPARE(formatExactCell("Thé"), QString("Thé"));
        QCOMPARE(formatExactCell(""), QString());
    }

    void quantitiesHaveTwoDecimalsWhereTheyAreNumbers()
    {
        QCOMPARE(formatQuantity("1.5"), QString("1.50"));
        QCOMPARE(formatQuantity("0"), QString("0.00"));
        QCOMPARE(formatQuantity("2.999"), QString("3.00"));
        QCOMPARE(formatQuantity("1234567.891"), QString("1,234,567.89"));
        QCOMPARE(formatQuantity("123456789.25"), QString("123,456,789.25"));
        QCOMPARE(formatQuantity("1e3"), QString("1,000.00"));
        QCOMPARE(formatQuantity("-7"), QString("-7.00"));
        QCOMPARE(formatQuantity("1,5"), QString("1,5"));
        QCOMPARE(formatQuantity("fl. oz"), QString("fl. oz"));
        QCOMPARE(formatQuantity(""), QString());
        QCOMPARE(formatQuantity("0.25", 3), QString("0.250"));
        QCOMPARE(formatQuantity("1234.5", 3), QString("1,234.500"));
        QCOMPARE(formatQuantity("quart", 3), QString("quart"));
    }

    void aShownAmountIsReadBack()
    {
        QCOMPARE(readBack("7.50"), 7.5F);
        QCOMPARE(readBack("7,50"), 7.5F);
        QCOMPARE(readBack("999.99"), 999.99F);
        QCOMPARE(readBack("1,000.00"), 0.0F);
        QCOMPARE(readBack("-1,234.50"), 0.0F);
        QCOMPARE(readBack("abc"), 0.0F);
    }

    void commasBecomePoints()
    {
        QCOMPARE(withPoint("12,5"), QString("12.5"));
        QCOMPARE(withPoint("1,2,3"), QString("1.2.3"));
        QCOMPARE(withPoint("12.5"), QString("12.5"));
    }
};

VENDEL_TEST(TestMoney)
#include "tst_Money.moc"
