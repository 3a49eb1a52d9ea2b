// SPDX-License-Identifier: MIT
#include "forms/FormVendelSaisieStockComposition.h"
#include "tests/forms/OpenArticleEditor.h"
#include "tests/forms/OpenHistory.h"
#include "tests/forms/StockSample.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/TestProgram.h"

#include <QRadioButton>

namespace {
const auto rowKeys = {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space};

/// Tabs into \a list of a window that has the keyboard: its first row is current, not marked.
void tabInto(QTableView& list)
{
    list.clearFocus();
    list.setFocus(Qt::TabFocusReason);
    QCOMPARE(list.currentIndex().row(), 0);
    QVERIFY(!list.selectionModel()->hasSelection());
}
} // namespace

/// What a click or a double click on a row does in the shopkeeper's windows, a key does too.
class TestEveryRowKey : public QObject
{
    Q_OBJECT

private slots:
    void anArticleGoesIntoTheFields()
    {
        for (const auto key : rowKeys) {
            ListedMenu editor("('Cafe', 1.5), ('The', 2)");
            tabInto(editor.list);
            QTest::keyClick(&editor.list, key);
            QCOMPARE(editor.text("txt_Article"), QString("Cafe"));
            QCOMPARE(editor.text("txt_Montant"), QString("1.50"));
            QTest::keyClick(&editor.list, Qt::Key_Down);
            QTest::keyClick(&editor.list, key);
            QCOMPARE(editor.text("txt_Article"), QString("The"));
            QCOMPARE(editor.text("txt_Montant"), QString("2.00"));
        }
    }

    void daysAndMomentsAreDatesOfThePeriod()
    {
        for (const auto key : rowKeys) {
            ListedHistory history;
            auto& days = child<QTableView>(history.window, "tableView2");
            tabInto(days);
            QTest::keyClick(&days, Qt::Key_Down);
            QTest::keyClick(&days, key);
            QCOMPARE(history.first(), QString("05/09/2019"));
            child<QRadioButton>(history.window, "rb_Second_Date").setChecked(true);
            auto& sales = child<QTableView>(history.window, "tableView1");
            tabInto(sales);
            QTest::keyClick(&sales, key);
            QCOMPARE(history.second(), QString("05/01/2019 10:00:00.000"));
            // The total has no date.
            QTest::keyClick(&sales, Qt::Key_Down);
            QTest::keyClick(&sales, Qt::Key_Down);
            QTest::keyClick(&sales, key);
            QCOMPARE(history.second(), QString("05/01/2019 10:00:00.000"));
        }
    }

    void aStockArticleIsComposed()
    {
        for (const auto key : rowKeys) {
            OpenStock at;
            tabInto(at.left);
            QTest::keyClick(&at.left, Qt::Key_Down);
            QTest::keyClick(&at.left, key);
            auto* composition = at.window.findChild<FormVendelSaisieStockComposition*>();
            QVERIFY(composition != nullptr);
            QCOMPARE(recipe(at.window), QString("Menthe"));
        }
    }

    void aRecipeLineIsMarkedWithSpaceAndRemovedWithDelete()
    {
        OpenStock at;
        at.mark(0);
        const AnswerBox box;
        tabInto(at.right);
        QTest::keyClick(&at.right, Qt::Key_Delete);
        QCOMPARE(recipe(at.window), QString("Grains|Lait"));
        QTest::keyClick(&at.right, Qt::Key_Space);
        QTest::keyClick(&at.right, Qt::Key_Space);
        QCOMPARE(recipe(at.window), QString("Grains|Lait"));
        QTest::keyClick(&at.right, Qt::Key_Delete);
        QCOMPARE(recipe(at.window), QString("Lait"));
        QCOMPARE(at.lines(), QString("10,12"));
        QCOMPARE(at.right.currentIndex().row(), 0);
        QVERIFY(!at.right.selectionModel()->hasSelection());
        QVERIFY(!box.wasShown());
    }

    void aLineIsMovedToAnotherArticle()
    {
        for (const auto key : rowKeys) {
            OpenTransfer at;
            auto& articles = child<QTableView>(at.window, "tableView1");
            auto& lines = child<QTableView>(at.window, "tableView2");
            tabInto(articles);
            QTest::keyClick(&articles, key);
            QCOMPARE(recipe(at.window), QString("Menthe"));
            tabInto(lines);
            QTest::keyClick(&lines, key);
            QVERIFY(lines.selectionModel()->rowIntersectsSelection(0, QModelIndex()));
            const AnswerBox box(QMessageBox::Yes);
            auto& button = child<QWidget>(at.window, "btn_Modify");
            button.setFocus();
            QTest::keyClick(&button, Qt::Key_Space);
            QCOMPARE(box.titles(), QStringList("Modifier"));
            QCOMPARE(at.cell("select id from DoseStock where idlig = 12"), QString("1"));
        }
    }
};

VENDEL_TEST(TestEveryRowKey)
#include "tst_EveryRowKey.moc"
