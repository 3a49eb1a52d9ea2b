// SPDX-License-Identifier: MIT
#include "forms/FormVendelSaisieStock.h"
#include "forms/FormVendelStockCalculation.h"
#include "tests/forms/OpenHistory.h"
#include "tests/forms/TestTable.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/Captured.h"
#include "tests/support/ListLook.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Translation.h"

#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QStandardItemModel>
#include <QStyle>
#include <QTableView>

#include <utility>
#include <vector>

/// How the history looks, what its keys do, and the windows that it opens.
class TestFormVendelHistoriqueWindow : public QObject
{
    Q_OBJECT

private slots:
    void everySlotHasItsSignal()
    {
        const Shop shop;
        const CapturedLog log;
        const FormVendelHistorique window;
        QCOMPARE(log.warnings(), QStringList());
        QCOMPARE(log.criticals(), QStringList());
    }

    void looksLikeTheHistory()
    {
        OpenHistory history;
        auto& window = history.window;
        QCOMPARE(window.objectName(), QString("FormVendelHistorique"));
        QCOMPARE(window.windowTitle(), QString("Vendel Historique"));
        QCOMPARE(window.windowModality(), Qt::WindowModal);
        const std::vector<std::pair<const char*, const char*>> captions{
            {"btn_View_Historical", "Afficher Historique"}, {"btn_Show_Date", "Afficher Date"},
            {"btn_Total", "Total"}, {"btn_Clear", "Purge"}, {"btn_Del_Seizure", "Effacer Saisie"},
            {"rb_First_Date", "Pre Date"}, {"rb_Second_Date", "Sec Date"},
            {"lbl_First_Date", "Première Date"}, {"lbl_Second_Date", "Seconde Date"}};
        for (const auto& [name, caption] : captions) {
            QCOMPARE(child<QWidget>(window, name).property("text").toString(), QString(caption));
        }
        QCOMPARE(child<QGroupBox>(window, "groupBox").title(), QString("Options"));
        QVERIFY(child<QRadioButton>(window, "rb_First_Date").isChecked());
        const auto& menu = child<QMenu>(window, "menuStock");
        QCOMPARE(menu.title(), QString("Stock"));
        QCOMPARE(menu.actions().size(), 2);
        QCOMPARE(menu.actions().at(0)->text(), QString("Saisie Stock"));
        QCOMPARE(menu.actions().at(1)->text(), QString("Calcul Stock"));
    }

    void listsAreLaidOutAndEmpty()
    {
        OpenHistory history;
        const std::vector<std::pair<const char*, QStringList>> lists{
            {"tableView1", {"Article", "Prix", "Date Heure"}}, {"tableView2", {"Date"}},
            {"tableView3", {"Qtité", "Article", "Prix", "Qtité * Prix"}}};
        for (const auto& [name, columns] : lists) {
            const auto& view = child<QTableView>(history.window, name);
            QCOMPARE(view.model()->rowCount(), 0);
            QCOMPARE(labels(view), columns);
            QVERIFY(qobject_cast<QStandardItemModel*>(view.model()) != nullptr);
            const int scrollBar = view.style()->pixelMetric(QStyle::PM_ScrollBarExtent);
            QVERIFY(view.viewport()->width() >= view.horizontalHeader()->length() + scrollBar);
        }
    }

    void fitsASmallScreen()
    {
        OpenHistory history;
        QVERIFY(history.window.width() <= 1366);
        QVERIFY(history.window.height() <= 730);
        const auto& sales = child<QTableView>(history.window, "tableView1");
        const int margins = 2 * (sales.style()->pixelMetric(QStyle::PM_FocusFrameHMargin) + 1) + 1;
        const auto fits = [&](const QString& text, int column) {
            return sales.fontMetrics().horizontalAdvance(text) + margins
                < sales.columnWidth(column);
        };
        QVERIFY(fits("1,234,567.89$", 1));
        QVERIFY(fits("05/01/2019 10:20:30.123", 2));
        QVERIFY(!sales.wordWrap());
        const auto& field = child<QLineEdit>(history.window, "txt_First_Date");
        QVERIFY(
            field.fontMetrics().horizontalAdvance("05/01/2019 10:20:30.123") < field.width() - 10);
    }

    void returnPressesNoButtonAndEscapeCloses()
    {
        OpenHistory history;
        const auto buttons = history.window.findChildren<QPushButton*>();
        for (const QPushButton* button : buttons) {
            QVERIFY(!button->autoDefault());
            QVERIFY(!button->isDefault());
        }
        const AnswerBox box;
        auto& field = child<QLineEdit>(history.window, "txt_First_Date");
        QTest::keyClick(&field, Qt::Key_Return);
        QVERIFY(!box.wasShown());
        QVERIFY(history.window.isVisible());
        QTest::keyClick(&field, Qt::Key_Escape);
        QVERIFY(!history.window.isVisible());
    }

    void tabGoesFromTheDatesToTheListsAndToThePurge()
    {
        OpenHistory history;
        QCOMPARE(tabOrder(history.window),
            QStringList({"txt_First_Date", "txt_Second_Date", "btn_View_Historical", "btn_Total",
                "btn_Show_Date", "rb_First_Date", "tableView1", "tableView2", "tableView3",
                "btn_Del_Seizure", "btn_Clear"}));
    }

    void aTranslationOfTheCatalogueChangesIt()
    {
        Translation english;
        english.add("FormVendelMessages", "Prix", "Price");
        english.add("FormVendelMessages", "Valide date", "Check the date");
        OpenHistory history("", "", "");
        QCOMPARE(labels(child<QTableView>(history.window, "tableView1")).at(1), QString("Price"));
        QVERIFY(history.push("btn_Total").at(0).startsWith("Check the date: "));
    }

    void saisieStockOpensTheStockEditor()
    {
        OpenHistory history;
        QCOMPARE(history.push("actionSaisie_Stock"), QStringList());
        const QPointer stock = history.window.findChild<FormVendelSaisieStock*>();
        QVERIFY(stock != nullptr);
        QVERIFY(stock->isVisible());
        QTest::keyClick(stock, Qt::Key_Escape);
        QTRY_VERIFY(stock.isNull());
    }

    void calculStockOpensWithTheDatesAsTyped()
    {
        OpenHistory history(
            "('Thé', 2, '2019-05-01 10:00:00.250')", " 05/01/2019 ", "05/01/2019 10:00:00.250  ");
        QCOMPARE(history.push("actionCalcul_Stock"), QStringList());
        const QPointer calculation = history.window.findChild<FormVendelStockCalculation*>();
        QVERIFY(calculation != nullptr);
        QVERIFY(calculation->isVisible());
        QCOMPARE(child<QLabel>(*calculation, "lbl_Period_Date1").text(), QString("05/01/2019"));
        QCOMPARE(
            child<QLabel>(*calculation, "lbl_To_Date2").text(), QString("05/01/2019 10:00:00.250"));
        calculation->close();
        QTRY_VERIFY(calculation.isNull());
        QCOMPARE(history.sales(), QStringList());
    }
};

VENDEL_TEST(TestFormVendelHistoriqueWindow)
#include "tst_FormVendelHistorique_window.moc"
