// SPDX-License-Identifier: MIT
#include "app/FormVendel.h"
#include "forms/FormVendelSaisieStock.h"
#include "forms/FormVendelStockCalculation.h"
#include "tests/forms/OpenHistory.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/Captured.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Translation.h"

#include <QAction>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QStandardItemModel>
#include <QTableView>
#include <QToolTip>

#include <vector>

namespace {
const auto afterTheTip = QString("\nPour sélectionner la date dans première date ou seconde "
                                 "date\nClick Options Pre date ou Sec date");

QWidget* shownTip()
{
    const auto widgets = QApplication::topLevelWidgets();
    for (QWidget* widget : widgets) {
        if (widget->inherits("QTipLabel") && widget->isVisible()) {
            return widget;
        }
    }
    return nullptr;
}

void moveMouse(FormVendelHistorique& window, const char* view, QPoint point)
{
    QWidget* viewport = child<QTableView>(window, view).viewport();
    QMouseEvent move(QEvent::MouseMove, point, viewport->mapToGlobal(point), Qt::NoButton,
        Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(viewport, &move);
}

QPoint cellCentre(FormVendelHistorique& window, const char* view, int row, int column)
{
    auto& table = child<QTableView>(window, view);
    return table.visualRect(table.model()->index(row, column)).center();
}
} // namespace

class TestFormVendelHistorique : public QObject
{
    Q_OBJECT

private slots:
    void everySlotHasItsSignal()
    {
        CapturedLog log;
        const Shop shop;
        const FormVendelHistorique window;
        QCOMPARE(log.warnings(), QStringList());
        QCOMPARE(log.criticals(), QStringList());
    }

    void captionsAreTheCatalogues()
    {
        OpenHistory history;
        auto& window = history.window;
        QCOMPARE(window.objectName(), QString("FormVendelHistorique"));
        QCOMPARE(window.windowTitle(), QString("Vendel Historique"));
        QCOMPARE(window.windowModality(), Qt::WindowModal);
        const auto button
            = [&](const char* name) { return child<QPushButton>(window, name).text(); };
        QCOMPARE(button("btn_View_Historical"), QString("Afficher Historique"));
        QCOMPARE(button("btn_Show_Date"), QString("Afficher Date"));
        QCOMPARE(button("btn_Total"), QString("Total"));
        QCOMPARE(button("btn_Clear"), QString("Purge"));
        QCOMPARE(button("btn_Del_Seizure"), QString("Effacer Saisie"));
        QCOMPARE(child<QLabel>(window, "lbl_First_Date").text(), QString("Première Date"));
        QCOMPARE(child<QLabel>(window, "lbl_Second_Date").text(), QString("Seconde Date"));
        QCOMPARE(child<QGroupBox>(window, "groupBox").title(), QString("Options"));
        QCOMPARE(child<QRadioButton>(window, "rb_First_Date").text(), QString("Pre Date"));
        QCOMPARE(child<QRadioButton>(window, "rb_Second_Date").text(), QString("Sec Date"));
        QVERIFY(child<QRadioButton>(window, "rb_First_Date").isChecked());
        auto* menu = window.findChild<QMenu*>(QString("menuStock"));
        QVERIFY(menu != nullptr);
        QCOMPARE(menu->title(), QString("Stock"));
        QCOMPARE(menu->actions().size(), 2);
        QCOMPARE(menu->actions().at(0)->text(), QString("Saisie Stock"));
        QCOMPARE(menu->actions().at(1)->text(), QString("Calcul Stock"));
    }

    void listsAreLaidOutAndEmpty()
    {
        OpenHistory history;
        struct List
        {
            const char* name;
            QStringList labels;
            std::vector<int> widths;
        };
        const std::vector<List> lists{
            {"tableView1", texts({"Article", "Prix", "Date Heure"}), {210, 100, 250}},
            {"tableView2", texts({"Date"}), {150}},
            {"tableView3", texts({"Qtité", "Article", "Prix", "Qtité * Prix"}),
                {50, 210, 100, 100}},
        };
        for (const List& list : lists) {
            auto& view = child<QTableView>(history.window, list.name);
            QCOMPARE(view.model()->rowCount(), 0);
            QCOMPARE(view.model()->columnCount(), list.labels.size());
            for (int column = 0; column < list.labels.size(); ++column) {
                QCOMPARE(view.model()->headerData(column, Qt::Horizontal).toString(),
                    list.labels.at(column));
                QCOMPARE(
                    view.columnWidth(column), list.widths.at(static_cast<std::size_t>(column)));
                QVERIFY(!view.isColumnHidden(column));
            }
            QCOMPARE(view.horizontalHeader()->defaultAlignment(), Qt::Alignment(Qt::AlignLeft));
            QCOMPARE(view.styleSheet(),
                QString("alternate-background-color: LightBlue;background-color: White"));
            QVERIFY(qobject_cast<QStandardItemModel*>(view.model()) != nullptr);
        }
    }

    void fitsASmallScreen()
    {
        OpenHistory history;
        QVERIFY(history.window.width() <= 1366);
        QVERIFY(history.window.height() <= 730);
        for (const char* name : {"tableView1", "tableView2", "tableView3"}) {
            auto& view = child<QTableView>(history.window, name);
            const int scrollBar = view.style()->pixelMetric(QStyle::PM_ScrollBarExtent);
            QVERIFY(view.viewport()->width() >= view.horizontalHeader()->length() + scrollBar);
        }
        const auto& sales = child<QTableView>(history.window, "tableView1");
        const int margins = 2 * (sales.style()->pixelMetric(QStyle::PM_FocusFrameHMargin) + 1) + 1;
        const auto fits = [&](const QString& text, int column) {
            return sales.fontMetrics().horizontalAdvance(text) + margins
                < sales.columnWidth(column);
        };
        QVERIFY(fits(QString("1,234,567.89$"), 1));
        QVERIFY(fits(QString("05/01/2019 10:20:30.123"), 2));
        QVERIFY(!sales.wordWrap());
        auto& field = child<QLineEdit>(history.window, "txt_First_Date");
        QVERIFY(field.fontMetrics().horizontalAdvance(QString("05/01/2019 10:20:30.123"))
            < field.width() - 10);
    }

    void noButtonListensToReturn()
    {
        OpenHistory history;
        const auto buttons = history.window.findChildren<QPushButton*>();
        for (const QPushButton* button : buttons) {
            QVERIFY(!button->autoDefault());
            QVERIFY(!button->isDefault());
        }
        const AnswerBox box;
        QTest::keyClick(&child<QLineEdit>(history.window, "txt_First_Date"), Qt::Key_Return);
        QVERIFY(!box.wasShown());
        QVERIFY(history.window.isVisible());
    }

    void tabGoesFromTheDatesToTheLists()
    {
        OpenHistory history;
        history.window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&history.window));
        for (const char* name : {"txt_First_Date", "txt_Second_Date", "btn_Del_Seizure",
                 "rb_First_Date", "btn_Show_Date", "btn_View_Historical", "btn_Total", "btn_Clear",
                 "tableView1", "tableView2", "tableView3", "txt_First_Date"}) {
            QCOMPARE(history.window.focusWidget()->objectName(), QLatin1String(name));
            QTest::keyClick(history.window.focusWidget(), Qt::Key_Tab);
        }
    }

    void theMainMenuOpensIt()
    {
        const Shop shop;
        FormVendel till;
        child<QAction>(till, "actionHistorique").trigger();
        const QPointer<FormVendelHistorique> window = till.findChild<FormVendelHistorique*>();
        QVERIFY(window != nullptr);
        QVERIFY(window->isVisible());
        QTest::keyClick(window, Qt::Key_Escape);
        QTRY_VERIFY(window.isNull());
    }

    void aTranslationOfTheCatalogueChangesIt()
    {
        Translation english;
        const auto catalogue = QString("FormVendelMessages");
        english.add(catalogue, QString("Vendel Historique"), QString("History"));
        english.add(catalogue, QString("Prix"), QString("Price"));
        english.add(catalogue, QString("Valide date"), QString("Check the date"));
        english.add(QString("FormVendelHistorique"), QString("Purge"), QString("Delete"));
        OpenHistory history;
        QCOMPARE(history.window.windowTitle(), QString("History"));
        QCOMPARE(child<QTableView>(history.window, "tableView1")
                     .model()
                     ->headerData(1, Qt::Horizontal)
                     .toString(),
            QString("Price"));
        const AnswerBox box;
        click(history.window, "btn_Total");
        QCOMPARE(box.title(), QString("Check the date"));
        QCOMPARE(child<QPushButton>(history.window, "btn_Clear").text(), QString("Delete"));
    }

    void aDayGoesIntoTheChosenField()
    {
        OpenHistory history;
        history.sell("Thé", "2", "2019-05-01 10:00:00.000");
        history.sell("Thé", "2", "2019-05-02 10:00:00.000");
        click(history.window, "btn_Show_Date");
        clickCell(history.window, "tableView2", 0, 0);
        QCOMPARE(history.first(), QString("05/01/2019"));
        QCOMPARE(history.second(), QString());
        click(history.window, "rb_Second_Date");
        clickCell(history.window, "tableView2", 1, 0);
        QCOMPARE(history.first(), QString("05/01/2019"));
        QCOMPARE(history.second(), QString("05/02/2019"));
    }

    void aSaleGoesIntoTheChosenField()
    {
        OpenHistory history;
        history.sell("Thé", "2", "2019-05-01 10:00:00.250");
        history.sell("Thé", "2", "2019-05-01 11:00:00.500");
        history.type("05/01/2019", "05/02/2019");
        click(history.window, "btn_View_Historical");
        clickCell(history.window, "tableView1", 0, 0);
        QCOMPARE(history.first(), QString("05/01/2019 10:00:00.250"));
        QCOMPARE(history.second(), QString("05/02/2019"));
        click(history.window, "rb_Second_Date");
        clickCell(history.window, "tableView1", 1, 2);
        QCOMPARE(history.second(), QString("05/01/2019 11:00:00.500"));
    }

    void aClickOnNoRowLeavesTheFields()
    {
        OpenHistory history;
        history.type("05/01/2019", "05/02/2019");
        for (const char* slot : {"on_tableView1_clicked", "on_tableView2_clicked"}) {
            QVERIFY(QMetaObject::invokeMethod(
                &history.window, slot, Qt::DirectConnection, Q_ARG(QModelIndex, QModelIndex())));
            QCOMPARE(history.first(), QString("05/01/2019"));
            QCOMPARE(history.second(), QString("05/02/2019"));
        }
    }

    void effacerSaisieEmptiesBothFields()
    {
        OpenHistory history;
        history.type("05/01/2019", "05/02/2019 10:00:00.000");
        click(history.window, "btn_Del_Seizure");
        QCOMPARE(history.first(), QString());
        QCOMPARE(history.second(), QString());
    }

    void saisieStockOpensTheStockEditor()
    {
        OpenHistory history;
        const AnswerBox box;
        child<QAction>(history.window, "actionSaisie_Stock").trigger();
        const QPointer<FormVendelSaisieStock> stock
            = history.window.findChild<FormVendelSaisieStock*>();
        QVERIFY(stock != nullptr);
        QVERIFY(stock->isVisible());
        QVERIFY(!box.wasShown());
        stock->close();
        QTRY_VERIFY(stock.isNull());
    }

    void calculStockOpensWithTheDatesAsTyped()
    {
        OpenHistory history;
        history.sell("Thé", "2", "2019-05-01 10:00:00.250");
        history.type(" 05/01/2019 ", "05/01/2019 10:00:00.250  ");
        const AnswerBox box;
        child<QAction>(history.window, "actionCalcul_Stock").trigger();
        QVERIFY(!box.wasShown());
        const QPointer<FormVendelStockCalculation> calculation
            = history.window.findChild<FormVendelStockCalculation*>();
        QVERIFY(calculation != nullptr);
        QVERIFY(calculation->isVisible());
        QCOMPARE(child<QLabel>(*calculation, "lbl_Period_Date1").text(), QString("05/01/2019"));
        QCOMPARE(
            child<QLabel>(*calculation, "lbl_To_Date2").text(), QString("05/01/2019 10:00:00.250"));
        calculation->close();
        QTRY_VERIFY(calculation.isNull());
        QCOMPARE(rowCount(history.window, "tableView1"), 0);
    }

    void aSaleHasItsTip()
    {
        OpenHistory history;
        history.sell("Thé", "2", "2019-05-01 10:00:00.250");
        history.type("05/01/2019", "05/02/2019");
        click(history.window, "btn_Total");
        for (int column = 0; column < 3; ++column) {
            hoverCell(history.window, "tableView1", 0, column);
            QCOMPARE(QToolTip::text(),
                QString("Date Heure\nClick sur : 05/01/2019 10:00:00.250") + afterTheTip);
        }
        const QPoint mouse = cellCentre(history.window, "tableView1", 0, 0);
        moveMouse(history.window, "tableView1", mouse);
        // Qt itself puts a tip 2 pixels right of and a pointer's height below the point.
        QVERIFY(shownTip() != nullptr);
        QCOMPARE(shownTip()->pos(), mouse + QPoint(0, 80) + QPoint(2, 16));
        for (int column = 0; column < 3; ++column) {
            hoverCell(history.window, "tableView1", 1, column);
            QVERIFY(!QToolTip::text().contains(QString("<-")));
        }
        QTRY_VERIFY(shownTip() == nullptr);
    }

    void aDayHasItsTip()
    {
        OpenHistory history;
        history.sell("Thé", "2", "2019-05-01 10:00:00.250");
        click(history.window, "btn_Show_Date");
        const QPoint mouse = cellCentre(history.window, "tableView2", 0, 0);
        moveMouse(history.window, "tableView2", mouse);
        QCOMPARE(QToolTip::text(), QString("Date\nClick sur : 05/01/2019") + afterTheTip);
        QWidget* tip = shownTip();
        QVERIFY(tip != nullptr);
        // The offscreen screen ends before the tip does, which is why Qt shows it left of the
        // point.
        QCOMPARE(tip->pos(), mouse + QPoint(650, 80) + QPoint(2, 16) - QPoint(4 + tip->width(), 0));
    }

    void emptyPlacesHaveNoTip()
    {
        OpenHistory history;
        history.sell("Thé", "2", "2019-05-01 10");
        history.sell("Café", "2", "2019-05-01 10:00:00.000");
        history.type("05/01/2019", "05/02/2019");
        click(history.window, "btn_View_Historical");
        click(history.window, "btn_Show_Date");
        const auto showOne = [&] {
            hoverCell(history.window, "tableView1", 1, 0);
            QTRY_VERIFY(shownTip() != nullptr);
        };
        showOne();
        hoverCell(history.window, "tableView1", 0, 0);
        QTRY_VERIFY(shownTip() == nullptr);
        showOne();
        moveMouse(history.window, "tableView1", QPoint(20, 400));
        QTRY_VERIFY(shownTip() == nullptr);
        showOne();
        moveMouse(history.window, "tableView2", QPoint(0, 0));
        QTRY_VERIFY(shownTip() == nullptr);
        moveMouse(history.window, "tableView2", QPoint(0, 1));
        QTRY_VERIFY(shownTip() != nullptr);
        moveMouse(history.window, "tableView2", QPoint(20, 300));
        QTRY_VERIFY(shownTip() == nullptr);
    }
};

VENDEL_TEST(TestFormVendelHistorique)
#include "tst_FormVendelHistorique.moc"
