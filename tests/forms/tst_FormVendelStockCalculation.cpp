// SPDX-License-Identifier: MIT
#include "forms/FormVendelStockCalculation.h"
#include "tests/forms/ConsumptionSample.h"
#include "tests/forms/StockSample.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/ListLook.h"
#include "tests/support/Translation.h"
#include "tests/support/TestProgram.h"
#include "tests/support/WindowFailures.h"
#include "tests/support/Widgets.h"

#include <QLabel>
#include <QPushButton>
#include <QTableView>

class TestFormVendelStockCalculation : public QObject
{
    Q_OBJECT

private slots:
    void looksLikeTheConsumptionWindow()
    {
        const Shop shop;
        const CapturedLog log;
        const QString to = QString("06/01/2019 10:00:00.000");
        FormVendelStockCalculation window(mayFirst, to, nullptr);
        QCOMPARE(window.size(), QSize(751, 566));
        QCOMPARE(window.minimumSize(), QSize(751, 566));
        QCOMPARE(window.maximumSize(), QSize(751, 566));
        QCOMPARE(window.windowModality(), Qt::WindowModal);
        QCOMPARE(window.windowTitle(), QString("Calcul Stock"));
        QCOMPARE(child<QPushButton>(window, "btn_Display").text(), QString("Afficher"));
        QCOMPARE(child<QLabel>(window, "lbl_Period").text(), QString("Pèriode du"));
        QCOMPARE(child<QLabel>(window, "lbl_Period_Date1").text(), mayFirst);
        QCOMPARE(child<QLabel>(window, "lbl_To").text(), QString("au"));
        QCOMPARE(child<QLabel>(window, "lbl_To_Date2").text(), to);
        QVERIFY(!anyAutoDefault(window));
        const auto& details = child<QTableView>(window, "tableView1");
        QCOMPARE(labels(details),
            cells({"Qtité", "Article", "Composition", "Dose Unitaire", "Qtité * Dose"}));
        QCOMPARE(widths(details), std::vector({50, 180, 150, 130, 100}));
        QVERIFY(looksLikeAList(details));
        const auto& totals = child<QTableView>(window, "tableView2");
        QCOMPARE(
            labels(totals), cells({"Composition", "Consommation", "Unité", "Conversion", "Unité"}));
        QCOMPARE(widths(totals), std::vector({150, 140, 100, 140, 100}));
        QVERIFY(looksLikeAList(totals));
        QCOMPARE(log.warnings(), QStringList());
    }

    void computesNothingUntilAsked()
    {
        const Bar bar;
        bar.sell("Café", 3);
        FormVendelStockCalculation window(mayFirst, juneFirst, nullptr);
        window.show();
        QCOMPARE(rowCount(window, "tableView1"), 0);
        QCOMPARE(rowCount(window, "tableView2"), 0);
    }

    void aPeriodWithoutSalesSaysSo()
    {
        const Bar bar;
        bar.sell("Café", 3, "2", "2019-06-01 00:00:00.000");
        const AnswerBox box;
        Consumed at;
        QCOMPARE(box.text(),
            QString("Composition est vide\nAller dans le menu Stock Saisie Stock\nDoubleClick "
                    "sur article et composez"));
        QCOMPARE(box.title(), QString("Calcul Stock"));
        QCOMPARE(box.buttons(), QMessageBox::Ok);
        QCOMPARE(box.parent(), &at.window);
        QCOMPARE(box.strays(), 0);
        QCOMPARE(at.details(), 0);
        QCOMPARE(at.totals(), 0);
    }

    void salesWithoutARecipeSaySo()
    {
        const Bar bar;
        bar.sell("Thé", 3);
        const AnswerBox box;
        Consumed at;
        QCOMPARE(box.title(), QString("Calcul Stock"));
        QCOMPARE(at.details(), 0);
    }

    void aSecondPressWritesTheSameRows()
    {
        const Bar bar;
        bar.sell("Café", 3);
        Consumed at;
        click(at.window, "btn_Display");
        QCOMPARE(at.details(), 1);
        QCOMPARE(at.detail(0), cells({"3", "Café", "Lait", "2.50 cl", "7.50 cl"}));
        QCOMPARE(at.totals(), 1);
        QCOMPARE(at.total(0), cells({"Lait", "7.50", "cl", "", ""}));
    }

    void aLaterPressOverwritesAndLeavesRowsBeyond()
    {
        const Bar bar;
        bar.sql("insert into DoseStock values (2, 2, 'Eau', 20, 'cl')");
        bar.sell("Café", 3);
        bar.sell("Thé", 1);
        Consumed at;
        QCOMPARE(at.details(), 2);
        bar.sell("Café", 1);
        bar.sql("delete from Historique where article = 'Thé'");
        click(at.window, "btn_Display");
        QCOMPARE(at.details(), 2);
        QCOMPARE(at.detail(0), cells({"4", "Café", "Lait", "2.50 cl", "10.00 cl"}));
        QCOMPARE(at.detail(1), cells({"1", "Thé", "Eau", "20.00 cl", "20.00 cl"}));
        QCOMPARE(at.total(0), cells({"Lait", "10.00", "cl", "", ""}));
        bar.sell("Thé", 2);
        bar.sell("Thé", 3, "4");
        click(at.window, "btn_Display");
        QCOMPARE(at.details(), 3);
        QCOMPARE(at.totals(), 2);
        QCOMPARE(at.total(0), cells({"Eau", "100.00", "cl", "", ""}));
    }

    void anEmptyLaterPressLeavesTheLists()
    {
        const Bar bar;
        bar.sell("Café", 3);
        Consumed at;
        bar.sql("delete from Historique");
        const AnswerBox box;
        click(at.window, "btn_Display");
        QVERIFY(box.wasShown());
        QCOMPARE(box.strays(), 0);
        QCOMPARE(at.details(), 1);
        QCOMPARE(at.totals(), 1);
    }

    void returnPressesNoButton()
    {
        const Bar bar;
        FormVendelStockCalculation window(mayFirst, juneFirst, nullptr);
        QVERIFY(showActive(window));
        const AnswerBox box;
        for (const char* name : {"btn_Display", "tableView1", "tableView2"}) {
            child<QWidget>(window, name).setFocus();
            QTest::keyClick(&child<QWidget>(window, name), Qt::Key_Return);
        }
        QVERIFY(!box.wasShown());
        QVERIFY(window.isVisible());
    }

    void textsAreTranslatedInTheirContexts()
    {
        const Bar bar;
        {
            const MarkedContext captions("FormVendelStockCalculation");
            FormVendelStockCalculation window(mayFirst, juneFirst, nullptr);
            QCOMPARE(
                child<QLabel>(window, "lbl_To").text(), QString("FormVendelStockCalculation:au"));
        }
        const MarkedContext texts("FormVendelStockCalculationMessages");
        const AnswerBox box;
        Consumed at;
        QCOMPARE(box.title(), QString("FormVendelStockCalculationMessages:Calcul Stock"));
        QCOMPARE(labels(child<QTableView>(at.window, "tableView2")).at(3),
            QString("FormVendelStockCalculationMessages:Conversion"));
    }

    void troubleIsLogged()
    {
        const Bar bar;
        const CapturedLog log;
        {
            const FailingEvent trouble(QEvent::WindowTitleChange, "FormVendelStockCalculation");
            FormVendelStockCalculation broken(mayFirst, juneFirst, nullptr);
        }
        const FailingEvent trouble(QEvent::Show, "QMessageBox");
        Consumed at;
        QCOMPARE(log.criticals(),
            cells({"Errors FormVendelStockCalculation Constructor : trouble",
                "Errors FormVendelStockCalculation on_btn_Display_clicked : trouble"}));
    }
};

VENDEL_TEST(TestFormVendelStockCalculation)
#include "tst_FormVendelStockCalculation.moc"
