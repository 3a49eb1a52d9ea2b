// SPDX-License-Identifier: MIT
#include "tests/forms/ConsumptionSample.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/ListLook.h"
#include "tests/support/TestProgram.h"

#include <QLabel>

#include <utility>

class TestFormVendelStockCalculation : public QObject
{
    Q_OBJECT

private slots:
    void showsItsPeriod()
    {
        const Shop shop;
        FormVendelStockCalculation window(mayFirst, "06/01/2019 10:00:00.000");
        QCOMPARE(child<QLabel>(window, "lbl_Period_Date1").text(), mayFirst);
        QCOMPARE(child<QLabel>(window, "lbl_To_Date2").text(), QString("06/01/2019 10:00:00.000"));
    }

    void computesNothingUntilAsked()
    {
        const Bar bar;
        bar.sell("Café", 3);
        FormVendelStockCalculation window(mayFirst, juneFirst);
        window.show();
        QCOMPARE(rowCount(window, "tableView1"), 0);
        QCOMPARE(rowCount(window, "tableView2"), 0);
    }

    void nothingConsumedSaysSo()
    {
        // No sale in the period, and no recipe.
        for (const auto& [article, when] :
            {std::pair("Café", "2019-06-01 00:00:00.000"), {"Thé", "2019-05-10 10:00:00.000"}}) {
            const Bar bar;
            bar.sell(article, 3, "2", when);
            const AnswerBox box;
            Consumed at;
            QCOMPARE(box.said(),
                QStringList("Calcul Stock: Composition est vide\nAller dans le menu Stock Saisie "
                            "Stock\nDoubleClick sur article et composez"));
            QVERIFY2(box.isNoticeOf(at.window), article);
            QCOMPARE(rowCount(at.window, "tableView1"), 0);
            QCOMPARE(rowCount(at.window, "tableView2"), 0);
        }
    }

    void aSecondPressWritesTheSameRows()
    {
        const Bar bar;
        bar.sell("Café", 3);
        Consumed at;
        click(at.window, "btn_Display");
        QCOMPARE(rows(at.window, "tableView1"), QStringList("3|Café|Lait|2.50 cl|7.50 cl"));
        QCOMPARE(rows(at.window, "tableView2"), QStringList("Lait|7.50|cl||"));
    }

    void aLaterPressOverwritesAndLeavesRowsBeyond()
    {
        const Bar bar;
        bar.sql("insert into DoseStock values (2, 2, 'Eau', 20, 'cl')");
        bar.sell("Café", 3);
        bar.sell("Thé", 1);
        Consumed at;
        QCOMPARE(rowCount(at.window, "tableView1"), 2);
        bar.sell("Café", 1);
        bar.sql("delete from Historique where article = 'Thé'");
        click(at.window, "btn_Display");
        QCOMPARE(rows(at.window, "tableView1"),
            QStringList({"4|Café|Lait|2.50 cl|10.00 cl", "1|Thé|Eau|20.00 cl|20.00 cl"}));
        QCOMPARE(rows(at.window, "tableView2").at(0), QString("Lait|10.00|cl||"));
        bar.sell("Thé", 2);
        bar.sell("Thé", 3, "4");
        click(at.window, "btn_Display");
        QCOMPARE(rowCount(at.window, "tableView1"), 3);
        QCOMPARE(rowCount(at.window, "tableView2"), 2);
        QCOMPARE(rows(at.window, "tableView2").at(0), QString("Eau|100.00|cl||"));
    }

    void anEmptyLaterPressLeavesTheLists()
    {
        const Bar bar;
        bar.sell("Café", 3);
        Consumed at;
        bar.sql("delete from Historique");
        QCOMPARE(saidAtClick(at.window, "btn_Display").size(), 1);
        QCOMPARE(rowCount(at.window, "tableView1"), 1);
        QCOMPARE(rowCount(at.window, "tableView2"), 1);
    }
};

VENDEL_TEST(TestFormVendelStockCalculation)
#include "tst_FormVendelStockCalculation.moc"
