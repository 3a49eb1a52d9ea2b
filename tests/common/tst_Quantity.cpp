// SPDX-License-Identifier: MIT
#include "common/Money.h"
#include "tests/support/TestProgram.h"

class TestQuantity : public QObject
{
    Q_OBJECT

private slots:
    void numbersAreEnglishWithTwoDecimals_data()
    {
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QString>("shown");
        const auto row = [](const char* stored, const char* shown) {
            QTest::newRow(stored) << QString::fromUtf8(stored) << QString::fromUtf8(shown);
        };
        row("1.5", "1.50");
        row("0", "0.00");
        row("2.999", "3.00");
        row("1234567.891", "1,234,567.89");
        row("123456789.25", "123,456,789.25");
        row("1e3", "1,000.00");
        row("-7", "-7.00");
        row("1,5", "1,5");
        row("fl. oz", "fl. oz");
        row("", "");
    }

    void numbersAreEnglishWithTwoDecimals()
    {
        QFETCH(const QString, stored);
        QFETCH(const QString, shown);
        QCOMPARE(formatQuantity(stored), shown);
    }

    void threeDecimalsOnRequest()
    {
        QCOMPARE(formatQuantity(QString("0.25"), 3), QString("0.250"));
        QCOMPARE(formatQuantity(QString("1234.5"), 3), QString("1,234.500"));
        QCOMPARE(formatQuantity(QString("quart"), 3), QString("quart"));
    }
};

VENDEL_TEST(TestQuantity)
#include "tst_Quantity.moc"
