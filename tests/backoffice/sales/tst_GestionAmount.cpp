// SPDX-License-Identifier: MIT
#include "backoffice/sales/Amount.h"
#include "tests/support/TestProgram.h"

/// Money.
class TestGestionAmount : public QObject
{
    Q_OBJECT

private slots:
    void halfACentGoesAwayFromZero()
    {
        QCOMPARE(cents(0), qint64{0});
        QCOMPARE(cents(49), qint64{0});
        QCOMPARE(cents(50), qint64{1});
        QCOMPARE(cents(149), qint64{1});
        QCOMPARE(cents(150), qint64{2});
        QCOMPARE(cents(-49), qint64{0});
        QCOMPARE(cents(-50), qint64{-1});
        QCOMPARE(cents(-150), qint64{-2});
        QCOMPARE(cents(123456789), qint64{1234568});
    }

    void taxIsWholeCents()
    {
        // 20 % of 12.34 is 2.468.
        QCOMPARE(taxOn(123400, 20), qint64{24700});
        // 5.5 % of 1.00 is 0.055, of 0.90 is 0.0495, of -1.00 is -0.055.
        QCOMPARE(taxOn(10000, 5.5), qint64{600});
        QCOMPARE(taxOn(9000, 5.5), qint64{500});
        QCOMPARE(taxOn(-10000, 5.5), qint64{-600});
        QCOMPARE(taxOn(10000, 0), qint64{0});
        // 8.875 % of 4.00 is 0.355.
        QCOMPARE(taxOn(40000, 8.875), qint64{3600});
        // 2.1 % of 50.00 is 1.05.
        QCOMPARE(taxOn(500000, 2.1), qint64{10500});
    }

    void halfACentOfTaxIsNotLostToTheRatesDigits()
    {
        // 0.29 % of 50.00 is 0.145, 1.005 % of 100.00 is 1.005, 4.35 % of 100.00 is 4.35.
        QCOMPARE(taxOn(500000, 0.29), qint64{1500});
        QCOMPARE(taxOn(1000000, 1.005), qint64{10100});
        QCOMPARE(taxOn(1000000, 4.35), qint64{43500});
    }
};

VENDEL_TEST(TestGestionAmount)
#include "tst_GestionAmount.moc"
