// SPDX-License-Identifier: MIT
#include "common/Money.h"
#include "tests/support/TestProgram.h"

class TestMoney : public QObject
{
    Q_OBJECT

private slots:
    void amountsHaveTwoDecimals_data()
    {
        QTest::addColumn<float>("value");
        QTest::addColumn<QString>("text");
        QTest::newRow("zero") << 0.0F << "0.00";
        QTest::newRow("cents") << 2.5F << "2.50";
        QTest::newRow("negative") << -2.5F << "-2.50";
        QTest::newRow("hundreds") << 999.5F << "999.50";
        QTest::newRow("grouped") << 1234.5F << "1,234.50";
        QTest::newRow("millions") << 1234567.0F << "1,234,567.00";
        QTest::newRow("negative grouped") << -1234.5F << "-1,234.50";
        QTest::newRow("just below a half cent") << 1.505F << "1.50";
        QTest::newRow("just above a half cent") << 9.005F << "9.01";
    }

    void amountsHaveTwoDecimals()
    {
        QFETCH(float, value);
        QTEST(formatAmount(value), "text");
    }

    void decimalsMayBeAsked()
    {
        QCOMPARE(formatAmount(1234.5678F, 0), QString("1,235"));
        QCOMPARE(formatAmount(0.125F, 3), QString("0.125"));
    }

    void storedTextIsReadInSinglePrecision_data()
    {
        QTest::addColumn<QByteArray>("stored");
        QTest::addColumn<QString>("text");
        QTest::newRow("a price") << QByteArray("2.5") << "2.50";
        QTest::newRow("an integer") << QByteArray("1234") << "1,234.00";
        QTest::newRow("an exponent") << QByteArray("1.0e+05") << "100,000.00";
        QTest::newRow("no number") << QByteArray("abc") << "0.00";
        QTest::newRow("empty") << QByteArray() << "0.00";
        QTest::newRow("more digits than single precision has")
            << QByteArray("16777217") << "16,777,216.00";
    }

    void storedTextIsReadInSinglePrecision()
    {
        QFETCH(QByteArray, stored);
        QTEST(formatAmount(QString::fromUtf8(stored)), "text");
    }

    void listsPutTheSignBehind()
    {
        QCOMPARE(formatMoney(12.5F), QString("12.50$"));
        QCOMPARE(formatMoney(1234.5F), QString("1,234.50$"));
        QCOMPARE(formatMoney(-2.5F), QString("-2.50$"));
    }

    void cellsShowNumbersAsMoney_data()
    {
        QTest::addColumn<QByteArray>("stored");
        QTest::addColumn<QString>("cell");
        QTest::newRow("a price") << QByteArray("12.5") << "12.50$";
        QTest::newRow("an article named by a number") << QByteArray("33") << "33.00$";
        QTest::newRow("an article named with an exponent") << QByteArray("1e5") << "100,000.00$";
        QTest::newRow("an article") << QByteArray("Thé") << QString("Thé");
        QTest::newRow("a number in a name") << QByteArray("33 cl") << "33 cl";
        QTest::newRow("a decimal comma") << QByteArray("12,5") << "12,5";
        QTest::newRow("empty") << QByteArray() << "";
    }

    void cellsShowNumbersAsMoney()
    {
        QFETCH(QByteArray, stored);
        QTEST(formatCell(QString::fromUtf8(stored)), "cell");
    }

    void exactCellsKeepTheirCents_data()
    {
        QTest::addColumn<QByteArray>("stored");
        QTest::addColumn<QString>("cell");
        QTest::newRow("a price") << QByteArray("12.5") << "12.50$";
        QTest::newRow("a year") << QByteArray("1234567.91") << "1,234,567.91$";
        QTest::newRow("an article") << QByteArray("Thé") << QString("Thé");
        QTest::newRow("empty") << QByteArray() << "";
    }

    void exactCellsKeepTheirCents()
    {
        QFETCH(QByteArray, stored);
        QTEST(formatExactCell(QString::fromUtf8(stored)), "cell");
    }

    void aShownAmountIsReadBack_data()
    {
        QTest::addColumn<QString>("shown");
        QTest::addColumn<float>("value");
        QTest::newRow("a point") << "7.50" << 7.5F;
        QTest::newRow("a comma") << "7,50" << 7.5F;
        QTest::newRow("just below the group separator") << "999.99" << 999.99F;
        QTest::newRow("a group separator") << "1,000.00" << 0.0F;
        QTest::newRow("negative with a group separator") << "-1,234.50" << 0.0F;
        QTest::newRow("no number") << "abc" << 0.0F;
    }

    void aShownAmountIsReadBack()
    {
        QFETCH(QString, shown);
        QTEST(readBack(shown), "value");
    }

    void commasBecomePoints()
    {
        QCOMPARE(withPoint(QString("12,5")), QString("12.5"));
        QCOMPARE(withPoint(QString("1,2,3")), QString("1.2.3"));
        QCOMPARE(withPoint(QString("12.5")), QString("12.5"));
    }
};

VENDEL_TEST(TestMoney)
#include "tst_Money.moc"
