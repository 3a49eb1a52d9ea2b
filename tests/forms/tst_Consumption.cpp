// SPDX-License-Identifier: MIT
#include "tests/forms/ConsumptionSample.h"
#include "tests/forms/StockSample.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/ListLook.h"
#include "tests/support/TestProgram.h"

/// What counts as consumed, read off the window.
class TestConsumption : public QObject
{
    Q_OBJECT

private slots:
    void threeSalesConsumeThreeDoses()
    {
        const Bar bar;
        bar.sell("Café", 3);
        const AnswerBox box;
        Consumed at;
        QVERIFY(!box.wasShown());
        QCOMPARE(at.details(), 1);
        QCOMPARE(at.detail(0), cells({"3", "Café", "Lait", "2.50 cl", "7.50 cl"}));
        QCOMPARE(at.totals(), 1);
        QCOMPARE(at.total(0), cells({"Lait", "7.50", "cl", "", ""}));
    }

    void largerUnitsAreConverted_data()
    {
        QTest::addColumn<QString>("update");
        QTest::addColumn<QStringList>("detail");
        QTest::addColumn<QStringList>("total");
        QTest::newRow("oz") << QString("dose = 8, unite = 'oz'")
                            << cells({"3", "Café", "Lait", "8.00 oz", "24.00 oz"})
                            << cells({"Lait", "24.00", "oz", "1.500", "pound"});
        QTest::newRow("fl. oz") << QString("dose = 2.6666666666666665, unite = 'fl. oz'")
                                << cells({"3", "Café", "Lait", "2.67 fl. oz", "8.00 fl. oz"})
                                << cells({"Lait", "8.00", "fl. oz", "0.250", "quart"});
        QTest::newRow("many oz") << QString("dose = 16000, unite = 'oz'")
                                 << cells({"3", "Café", "Lait", "16,000.00 oz", "48,000.00 oz"})
                                 << cells({"Lait", "48,000.00", "oz", "3,000.000", "pound"});
        QTest::newRow("g") << QString("dose = 7, unite = 'g'")
                           << cells({"3", "Café", "Lait", "7.00 g", "21.00 g"})
                           << cells({"Lait", "21.00", "g", "", ""});
        QTest::newRow("OZ is no oz") << QString("dose = 8, unite = 'OZ'")
                                     << cells({"3", "Café", "Lait", "8.00 OZ", "24.00 OZ"})
                                     << cells({"Lait", "24.00", "OZ", "", ""});
    }

    void largerUnitsAreConverted()
    {
        QFETCH(const QString, update);
        QFETCH(const QStringList, detail);
        QFETCH(const QStringList, total);
        const Bar bar;
        bar.sql((QLatin1String("update DoseStock set ") + update).toUtf8().constData());
        bar.sell("Café", 3);
        Consumed at;
        QCOMPARE(at.detail(0), detail);
        QCOMPARE(at.total(0), total);
    }

    void theSecondDateItselfIsNotCounted()
    {
        const Bar bar;
        bar.sell("Café", 1, "2", "2019-04-30 23:59:59.999");
        bar.sell("Café", 2, "2", "2019-05-01 00:00:00.000");
        bar.sell("Café", 3, "2", "2019-05-31 23:59:59.999");
        bar.sell("Café", 4, "2", "2019-06-01 00:00:00.000");
        QCOMPARE(Consumed().detail(0).at(0), QString("5"));
        QCOMPARE(Consumed(mayFirst, QString("06/02/2019")).detail(0).at(0), QString("9"));
    }

    void aTimeOfDayBoundsThePeriod()
    {
        const Bar bar;
        bar.sell("Café", 1, "2", "2019-05-10 09:59:59.999");
        bar.sell("Café", 2, "2", "2019-05-10 10:00:00.000");
        bar.sell("Café", 3, "2", "2019-05-10 12:30:00.250");
        bar.sell("Café", 4, "2", "2019-05-10 12:30:00.251");
        Consumed at(QString("05/10/2019 10:00:00.000"), QString("05/10/2019 12:30:00.250"));
        QCOMPARE(at.detail(0), cells({"5", "Café", "Lait", "2.50 cl", "12.50 cl"}));
        Consumed mixed(QString("05/10/2019"), QString("05/10/2019 10:00:00.000"));
        QCOMPARE(mixed.detail(0).at(0), QString("3"));
    }

    void twoPricesWithDifferentCountsAreBothCounted()
    {
        const Bar bar;
        bar.sell("Café", 3, "2");
        bar.sell("Café", 2, "2.5");
        Consumed at;
        QCOMPARE(at.details(), 2);
        QStringList counts{at.detail(0).at(0), at.detail(1).at(0)};
        counts.sort();
        QCOMPARE(counts, cells({"2", "3"}));
        QCOMPARE(at.totals(), 1);
        QCOMPARE(at.total(0), cells({"Lait", "12.50", "cl", "", ""}));
    }

    void twoPricesWithEqualCountsAreCountedOnce()
    {
        const Bar bar;
        bar.sell("Café", 3, "2");
        bar.sell("Café", 3, "2.5");
        Consumed at;
        QCOMPARE(at.details(), 1);
        QCOMPARE(at.detail(0), cells({"3", "Café", "Lait", "2.50 cl", "7.50 cl"}));
        QCOMPARE(at.total(0), cells({"Lait", "7.50", "cl", "", ""}));
    }

    void oneCompositionInTwoUnitsIsAddedUp()
    {
        const Bar bar;
        bar.sql("insert into DoseStock values (2, 2, 'lait', 10, 'g')");
        bar.sell("Café", 2);
        bar.sell("Thé", 3);
        Consumed at;
        QCOMPARE(at.details(), 2);
        QCOMPARE(at.detail(0), cells({"2", "Café", "Lait", "2.50 cl", "5.00 cl"}));
        QCOMPARE(at.detail(1), cells({"3", "Thé", "lait", "10.00 g", "30.00 g"}));
        QCOMPARE(at.totals(), 1);
        QCOMPARE(at.total(0).at(1), QString("35.00"));
        QVERIFY(cells({"cl", "g"}).contains(at.total(0).at(2)));
    }

    void articlesSharingACompositionAreAddedUp()
    {
        const Bar bar;
        bar.sql("insert into DoseStock values (2, 2, 'Lait', 1, 'cl'), (3, 2, 'Eau', 20, 'cl')");
        bar.sell("Thé", 4);
        bar.sell("Café", 2);
        Consumed at;
        QCOMPARE(at.details(), 3);
        QCOMPARE(at.detail(0), cells({"2", "Café", "Lait", "2.50 cl", "5.00 cl"}));
        QCOMPARE(at.detail(1).at(1), QString("Thé"));
        QCOMPARE(at.totals(), 2);
        QCOMPARE(at.total(0), cells({"Eau", "80.00", "cl", "", ""}));
        QCOMPARE(at.total(1), cells({"Lait", "9.00", "cl", "", ""}));
    }

    void salesFollowTheNameNotTheId()
    {
        const Bar bar;
        bar.sell("Café", 3);
        bar.sell("Noir", 2);
        bar.sql("update ArticleStock set article = 'Noir' where id = 1");
        Consumed at;
        QCOMPARE(at.details(), 1);
        QCOMPARE(at.detail(0), cells({"2", "Noir", "Lait", "2.50 cl", "5.00 cl"}));
    }

    void capitalsDoNotMatterToTheName()
    {
        const Bar bar;
        bar.sell("cAFé", 2);
        Consumed at;
        QCOMPARE(at.detail(0), cells({"2", "cAFé", "Lait", "2.50 cl", "5.00 cl"}));
    }

    void quotesInNamesAreShown()
    {
        const Bar bar;
        bar.sql("update ArticleStock set article = 'Jus d''orange' where id = 1");
        bar.sql("update DoseStock set composition = '<b>l''eau</b>'");
        bar.sell("Jus d''orange", 2);
        Consumed at;
        QCOMPARE(at.detail(0), cells({"2", "Jus d'orange", "<b>l'eau</b>", "2.50 cl", "5.00 cl"}));
        QCOMPARE(at.total(0), cells({"<b>l'eau</b>", "5.00", "cl", "", ""}));
    }

    void numbersAreFormattedWhereverTheyStand()
    {
        const Bar bar;
        bar.sql("update DoseStock set composition = '7'");
        bar.sql("insert into DoseStock values (2, 2, 'Sel', 'une pincée', 'g')");
        bar.sell("Café", 1234);
        bar.sell("Thé", 2);
        Consumed at;
        QCOMPARE(at.detail(0), cells({"1234", "Café", "7", "2.50 cl", "3,085.00 cl"}));
        QCOMPARE(at.detail(1), cells({"2", "Thé", "Sel", "une pincée", "0.00 g"}));
        QCOMPARE(at.total(0), cells({"7.00", "3,085.00", "cl", "", ""}));
        QCOMPARE(at.total(1), cells({"Sel", "0.00", "g", "", ""}));
    }

    void aQuoteInADateStaysText()
    {
        const Bar bar;
        bar.sell("Café", 3);
        const AnswerBox box;
        CapturedOutput output;
        Consumed at(QString("05/01/2019"), QString("06/01/2019 10:00:00'000"));
        const QByteArray said = diagnostics(output);
        QCOMPARE(said, QByteArray());
        QCOMPARE(at.detail(0).at(0), QString("3"));
    }

    void aDateOfAnotherLengthFindsNothing()
    {
        const Bar bar;
        bar.sell("Café", 3);
        const AnswerBox box;
        Consumed at(QString("5/1/2019"), QString("6/1/2019"));
        QCOMPARE(box.title(), QString("Calcul Stock"));
        QCOMPARE(at.details(), 0);
    }
};

VENDEL_TEST(TestConsumption)
#include "tst_Consumption.moc"
