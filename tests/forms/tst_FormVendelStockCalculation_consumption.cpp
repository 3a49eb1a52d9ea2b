// SPDX-License-Identifier: MIT
#include "tests/forms/ConsumptionSample.h"
#include "tests/forms/OpenDialog.h"
#include "tests/forms/StockSample.h"
#include "tests/forms/TestTable.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/Captured.h"
#include "tests/support/TestProgram.h"

#include <vector>

namespace {
/// The sales of an article at one price, all on 10 May 2019.
struct Sold
{
    const char* article;
    int count;
    const char* price = "2";
};

using Sales = std::vector<Sold>;
} // namespace
Q_DECLARE_METATYPE(Sales)

/// What counts as consumed, read off the window.
class TestFormVendelStockCalculationConsumption : public QObject
{
    Q_OBJECT

private slots:
    void dosesAreCountedAndAddedUp_data()
    {
        textColumns({"change"});
        QTest::addColumn<Sales>("sales");
        QTest::addColumn<QStringList>("details");
        QTest::addColumn<QStringList>("totals");
        const auto row = [](const char* name, const char* change, const Sales& sales,
                             const QStringList& details, const QStringList& totals) {
            tableRow(name, change, sales, details, totals);
        };
        row("three sales of a dose", "", {{"Café", 3}}, {"3|Café|Lait|2.50 cl|7.50 cl"},
            {"Lait|7.50|cl||"});
        row("oz make a pound", "update DoseStock set dose = 8, unite = 'oz'", {{"Café", 3}},
            {"3|Café|Lait|8.00 oz|24.00 oz"}, {"Lait|24.00|oz|1.500|pound"});
        row("fl. oz make a quart",
            "update DoseStock set dose = 2.6666666666666665, unite = 'fl. oz'", {{"Café", 3}},
            {"3|Café|Lait|2.67 fl. oz|8.00 fl. oz"}, {"Lait|8.00|fl. oz|0.250|quart"});
        row("many oz", "update DoseStock set dose = 16000, unite = 'oz'", {{"Café", 3}},
            {"3|Café|Lait|16,000.00 oz|48,000.00 oz"}, {"Lait|48,000.00|oz|3,000.000|pound"});
        row("g are not converted", "update DoseStock set dose = 7, unite = 'g'", {{"Café", 3}},
            {"3|Café|Lait|7.00 g|21.00 g"}, {"Lait|21.00|g||"});
        row("OZ is no oz", "update DoseStock set dose = 8, unite = 'OZ'", {{"Café", 3}},
            {"3|Café|Lait|8.00 OZ|24.00 OZ"}, {"Lait|24.00|OZ||"});
        row("two prices with equal counts count once", "", {{"Café", 3}, {"Café", 3, "2.5"}},
            {"3|Café|Lait|2.50 cl|7.50 cl"}, {"Lait|7.50|cl||"});
        row("sales follow the name, not the id",
            "update ArticleStock set article = 'Noir' where id = 1", {{"Café", 3}, {"Noir", 2}},
            {"2|Noir|Lait|2.50 cl|5.00 cl"}, {"Lait|5.00|cl||"});
        row("capitals do not matter to the name", "", {{"cAFé", 2}},
            {"2|cAFé|Lait|2.50 cl|5.00 cl"}, {"Lait|5.00|cl||"});
        row("quotes and tags are shown",
            "update ArticleStock set article = 'Jus d''orange' where id = 1;"
            "update DoseStock set composition = '<b>l''eau</b>'",
            {{"Jus d''orange", 2}}, {"2|Jus d'orange|<b>l'eau</b>|2.50 cl|5.00 cl"},
            {"<b>l'eau</b>|5.00|cl||"});
        row("numbers are formatted wherever they are",
            "update DoseStock set composition = '7';"
            "insert into DoseStock values (2, 2, 'Sel', 'une pincée', 'g')",
            {{"Café", 1234}, {"Thé", 2}},
            {"1234|Café|7|2.50 cl|3,085.00 cl", "2|Thé|Sel|une pincée|0.00 g"},
            {"7.00|3,085.00|cl||", "Sel|0.00|g||"});
    }

    void dosesAreCountedAndAddedUp()
    {
        QFETCH(QString, change);
        QFETCH(Sales, sales);
        const Bar bar;
        bar.fill(change.toUtf8().constData());
        for (const Sold& sold : sales) {
            bar.sell(sold.article, sold.count, sold.price);
        }
        const AnswerBox box;
        Consumed at;
        QVERIFY(!box.wasShown());
        QTEST(rows(at.window, "tableView1"), "details");
        QTEST(rows(at.window, "tableView2"), "totals");
    }

    void twoPricesWithDifferentCountsAreBothCounted()
    {
        const Bar bar;
        bar.sell("Café", 3, "2");
        bar.sell("Café", 2, "2.5");
        Consumed at;
        QStringList details = rows(at.window, "tableView1");
        details.sort();
        QCOMPARE(
            details, QStringList({"2|Café|Lait|2.50 cl|5.00 cl", "3|Café|Lait|2.50 cl|7.50 cl"}));
        QCOMPARE(rows(at.window, "tableView2"), QStringList("Lait|12.50|cl||"));
    }

    void articlesSharingACompositionAreAddedUp()
    {
        const Bar bar;
        bar.sql("insert into DoseStock values (2, 2, 'Lait', 1, 'cl'), (3, 2, 'Eau', 20, 'cl')");
        bar.sell("Thé", 4);
        bar.sell("Café", 2);
        Consumed at;
        QStringList details = rows(at.window, "tableView1");
        QCOMPARE(details.takeFirst(), QString("2|Café|Lait|2.50 cl|5.00 cl"));
        details.sort();
        QCOMPARE(
            details, QStringList({"4|Thé|Eau|20.00 cl|80.00 cl", "4|Thé|Lait|1.00 cl|4.00 cl"}));
        QCOMPARE(rows(at.window, "tableView2"), QStringList({"Eau|80.00|cl||", "Lait|9.00|cl||"}));
    }

    void oneCompositionInTwoUnitsIsAddedUp()
    {
        const Bar bar;
        bar.sql("insert into DoseStock values (2, 2, 'lait', 10, 'g')");
        bar.sell("Café", 2);
        bar.sell("Thé", 3);
        Consumed at;
        QCOMPARE(rows(at.window, "tableView1"),
            QStringList({"2|Café|Lait|2.50 cl|5.00 cl", "3|Thé|lait|10.00 g|30.00 g"}));
        QCOMPARE(at.totals(), 1);
        QCOMPARE(at.total(0).at(1), QString("35.00"));
        QVERIFY(QStringList({"cl", "g"}).contains(at.total(0).at(2)));
    }

    void theSecondDateItselfIsNotCounted()
    {
        const Bar bar;
        bar.sell("Café", 1, "2", "2019-04-30 23:59:59.999");
        bar.sell("Café", 2, "2", "2019-05-01 00:00:00.000");
        bar.sell("Café", 3, "2", "2019-05-31 23:59:59.999");
        bar.sell("Café", 4, "2", "2019-06-01 00:00:00.000");
        QCOMPARE(Consumed().detail(0).at(0), QString("5"));
        QCOMPARE(Consumed("05/01/2019", "06/02/2019").detail(0).at(0), QString("9"));
    }

    void aTimeOfDayBoundsThePeriod()
    {
        const Bar bar;
        bar.sell("Café", 1, "2", "2019-05-10 09:59:59.999");
        bar.sell("Café", 2, "2", "2019-05-10 10:00:00.000");
        bar.sell("Café", 3, "2", "2019-05-10 12:30:00.250");
        bar.sell("Café", 4, "2", "2019-05-10 12:30:00.251");
        Consumed at("05/10/2019 10:00:00.000", "05/10/2019 12:30:00.250");
        QCOMPARE(rows(at.window, "tableView1"), QStringList("5|Café|Lait|2.50 cl|12.50 cl"));
        QCOMPARE(Consumed("05/10/2019", "05/10/2019 10:00:00.000").detail(0).at(0), QString("3"));
    }

    void aQuoteInADateStaysText()
    {
        const Bar bar;
        bar.sell("Café", 3);
        CapturedOutput output;
        Consumed at("05/01/2019", "06/01/2019 10:00:00'000");
        QCOMPARE(diagnostics(output), QByteArray());
        QCOMPARE(at.detail(0).at(0), QString("3"));
    }

    void aDateOfAnotherLengthFindsNothing()
    {
        const Bar bar;
        bar.sell("Café", 3);
        const AnswerBox box;
        Consumed at("5/1/2019", "6/1/2019");
        QCOMPARE(box.title(), QString("Calcul Stock"));
        QCOMPARE(at.details(), 0);
    }
};

VENDEL_TEST(TestFormVendelStockCalculationConsumption)
#include "tst_FormVendelStockCalculation_consumption.moc"
