// SPDX-License-Identifier: MIT
#include "forms/FormVendelSaisieStock.h"
#include "forms/FormVendelSaisieStockCutPaste.h"
#include "tests/forms/OpenArticleEditor.h"
#include "tests/forms/StockSample.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Widgets.h"

#include <QTableView>

#include <array>

namespace {
void clickFirst(QTableView& list, Qt::KeyboardModifiers modifiers)
{
    QTest::mouseClick(list.viewport(), Qt::LeftButton, modifiers,
        list.visualRect(list.model()->index(0, 2)).center());
}

/// Walks with Tab from widget to widget until \a list has the focus.
void tabInto(QTableView& list)
{
    QWidget& window = *list.window();
    for (int step = 0; step < 30 && !list.hasFocus(); ++step) {
        QTest::keyClick(
            window.focusWidget() == nullptr ? &window : window.focusWidget(), Qt::Key_Tab);
    }
}

void ctrlAndClickTwice(QTableView& list)
{
    clickFirst(list, Qt::ControlModifier);
    clickFirst(list, Qt::ControlModifier);
}

void ctrlAndClickAfterAClick(QTableView& list)
{
    clickFirst(list, Qt::NoModifier);
    clickFirst(list, Qt::ControlModifier);
}

void ctrlAndSpace(QTableView& list)
{
    clickFirst(list, Qt::NoModifier);
    QTest::keyClick(&list, Qt::Key_Space, Qt::ControlModifier);
}

/// A way to make the first row of a list the current one without marking it.
struct Way
{
    const char* name;
    void (*unmark)(QTableView& list);
};

constexpr std::array<Way, 4> ways{
    {{"Tab into the list", tabInto}, {"twice Ctrl and click", ctrlAndClickTwice},
        {"a click, then Ctrl and click", ctrlAndClickAfterAClick},
        {"a click, then Ctrl and space", ctrlAndSpace}}};

void waysToUnmark()
{
    QTest::addColumn<std::size_t>("way");
    for (std::size_t way = 0; way < ways.size(); ++way) {
        QTest::newRow(ways.at(way).name) << way;
    }
}

/// Whether the way of the running row leads to a first row of \a list that is current, not marked.
bool leadsToAFrameWithoutAMark(QTableView& list)
{
    QFETCH(const std::size_t, way);
    ways.at(way).unmark(list);
    return list.hasFocus() && list.currentIndex().row() == 0
        && !list.selectionModel()->hasSelection();
}
} // namespace

/// A button means the row that the user has marked, never one that only has the keyboard's frame.
class TestChosenRow : public QObject
{
    Q_OBJECT

private slots:
    void removingAnArticleNeedsAMarkedRow_data()
    {
        waysToUnmark();
    }

    void removingAnArticleNeedsAMarkedRow()
    {
        OpenArticleEditor editor("('Cafe', 1), ('The', 2)");
        click(editor.window, "btn_Afficher");
        QVERIFY(leadsToAFrameWithoutAMark(child<QTableView>(editor.window, "tableView")));
        const AnswerBox box(QMessageBox::Yes);
        click(editor.window, "btn_Supprimer");
        QCOMPARE(box.text(), QString("Selectionner un/des article(s) dans le menu"));
        QCOMPARE(box.strays(), 0);
        QCOMPARE(editor.stored(), QString("1 Cafe 1; 2 The 2"));
    }

    void renamingAnArticleNeedsAMarkedRow_data()
    {
        waysToUnmark();
    }

    void renamingAnArticleNeedsAMarkedRow()
    {
        OpenArticleEditor editor("('Cafe', 1), ('The', 2)");
        click(editor.window, "btn_Afficher");
        editor.type("txt_Article", "Eau");
        editor.type("txt_Montant", "4");
        QVERIFY(leadsToAFrameWithoutAMark(child<QTableView>(editor.window, "tableView")));
        const AnswerBox box(QMessageBox::Yes);
        click(editor.window, "btn_Renommer");
        QCOMPARE(box.text(), QString("Selectionner 1 article dans le menu à renommer"));
        QCOMPARE(box.strays(), 0);
        QCOMPARE(editor.stored(), QString("1 Cafe 1; 2 The 2"));
    }

    void removingAStockArticleNeedsAMarkedRow_data()
    {
        waysToUnmark();
    }

    void removingAStockArticleNeedsAMarkedRow()
    {
        const StockSample shop;
        FormVendelSaisieStock stock;
        QVERIFY(showActive(stock));
        stock.Display(true);
        child<QWidget>(stock, "btn_Display").setFocus();
        QVERIFY(leadsToAFrameWithoutAMark(child<QTableView>(stock, "tableView1")));
        const AnswerBox box(QMessageBox::Yes);
        click(stock, "btn_Remove");
        QCOMPARE(box.text(), QString("Selectionner un/des article(s) dans le menu"));
        QCOMPARE(box.strays(), 0);
        QCOMPARE(shop.cell("select group_concat(id) from ArticleStock"), QString("1,2,3"));
    }

    void movingALineNeedsAMarkedRow_data()
    {
        waysToUnmark();
    }

    void movingALineNeedsAMarkedRow()
    {
        const StockSample shop;
        FormVendelSaisieStockCutPaste window;
        QVERIFY(showActive(window));
        clickCell(window, "tableView1", 0, 1);
        QVERIFY(leadsToAFrameWithoutAMark(child<QTableView>(window, "tableView2")));
        const AnswerBox box(QMessageBox::Yes);
        click(window, "btn_Modify");
        QCOMPARE(box.text(), QString("Selectionner un/des composition(s) / dose(s) dans la list"));
        QCOMPARE(box.strays(), 0);
        QCOMPARE(shop.cell("select id from DoseStock where idlig = 12"), QString("3"));
    }

    void theDeleteKeyNeedsAMarkedLine_data()
    {
        waysToUnmark();
    }

    void theDeleteKeyNeedsAMarkedLine()
    {
        const StockSample shop;
        FormVendelSaisieStock stock;
        QVERIFY(showActive(stock));
        stock.Display(true);
        clickCell(stock, "tableView1", 0, 1);
        auto& recipe = child<QTableView>(stock, "tableView2");
        QVERIFY(leadsToAFrameWithoutAMark(recipe));
        QTest::keyClick(&recipe, Qt::Key_Delete);
        QCOMPARE(shop.cell("select group_concat(idlig) from DoseStock"), QString("10,11,12"));
    }
};

VENDEL_TEST(TestChosenRow)
#include "tst_ChosenRow.moc"
