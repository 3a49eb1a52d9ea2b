// SPDX-License-Identifier: MIT
#include "forms/FormVendelSaisieStock.h"
#include "forms/FormVendelSaisieStockComposition.h"
#include "forms/FormVendelSaisieStockCutPaste.h"
#include "forms/FormVendelSaisieStockMaj.h"
#include "tests/forms/StockSample.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Widgets.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QTableView>

#include <functional>
#include <memory>

namespace {
/// A window with stock articles on its left and the recipe of the marked one on its right.
struct Opened
{
    std::unique_ptr<QDialog> window;
    /// The articles' names in the list's order, and the recipes' compositions parted by "|".
    QString first;
    QString second;

    QTableView& articles() const
    {
        return child<QTableView>(*window, "tableView1");
    }
    QString recipe() const
    {
        QStringList names;
        for (int row = 0; row < rowCount(*window, "tableView2"); ++row) {
            names << rowTexts(*window, "tableView2", row).at(2);
        }
        return names.join('|');
    }
    void clickRowNumber(int row) const
    {
        const QHeaderView& numbers = *articles().verticalHeader();
        const QPoint place(5, numbers.sectionViewportPosition(row) + numbers.sectionSize(row) / 2);
        QTest::mouseClick(numbers.viewport(), Qt::LeftButton, Qt::NoModifier, place);
    }
    void clickWith(Qt::KeyboardModifiers modifiers, int row) const
    {
        const QPoint place = articles().visualRect(articles().model()->index(row, 1)).center();
        QTest::mouseClick(articles().viewport(), Qt::LeftButton, modifiers, place);
    }
};

Opened openEditor()
{
    auto stock = std::make_unique<FormVendelSaisieStock>();
    stock->show();
    stock->Display(true);
    return {std::move(stock), QString("Grains|Lait"), QString("Eau")};
}

Opened openTransfer()
{
    auto transfer = std::make_unique<FormVendelSaisieStockCutPaste>();
    transfer->show();
    return {std::move(transfer), QString("Eau"), QString("Menthe")};
}

using Open = std::function<Opened()>;
} // namespace
Q_DECLARE_METATYPE(Open)

/// The recipe on the right always belongs to the marked article, or is empty: a double click on it
/// removes a line.
class TestStockMarkedRecipe : public QObject
{
    Q_OBJECT

private:
    static void windows()
    {
        QTest::addColumn<Open>("open");
        QTest::newRow("stock editor") << Open(openEditor);
        QTest::newRow("transfer") << Open(openTransfer);
    }

    /// The editor lists Café, Limonade, Sirop and Thé, the transfer Limonade and Sirop.
    struct Sample : StockSample
    {
        Sample()
        {
            sql("insert into ArticleStock values (4, 'Limonade')");
            sql("insert into DoseStock values (13, 4, 'Eau', 20, 'cl')");
        }
    };

private slots:
    void aClickOnARowNumberShowsItsRecipe_data()
    {
        windows();
    }
    void aClickOnARowNumberShowsItsRecipe()
    {
        QFETCH(const Open, open);
        const Sample shop;
        const Opened opened = open();
        clickCell(*opened.window, "tableView1", 0, 1);
        QCOMPARE(opened.recipe(), opened.first);
        opened.clickRowNumber(1);
        QCOMPARE(opened.recipe(), opened.second);
        opened.clickRowNumber(0);
        QCOMPARE(opened.recipe(), opened.first);
    }

    void selectRowShowsItsRecipe_data()
    {
        windows();
    }
    void selectRowShowsItsRecipe()
    {
        QFETCH(const Open, open);
        const Sample shop;
        const Opened opened = open();
        opened.articles().selectRow(1);
        QCOMPARE(opened.recipe(), opened.second);
        opened.articles().selectRow(0);
        QCOMPARE(opened.recipe(), opened.first);
    }

    void theKeyboardShowsTheRecipeOfTheRowItMarks_data()
    {
        windows();
    }
    void theKeyboardShowsTheRecipeOfTheRowItMarks()
    {
        QFETCH(const Open, open);
        const Sample shop;
        const Opened opened = open();
        QVERIFY(showActive(*opened.window));
        clickCell(*opened.window, "tableView1", 1, 1);
        QTest::keyClick(&opened.articles(), Qt::Key_Up);
        QCOMPARE(opened.recipe(), opened.first);
        QTest::keyClick(&opened.articles(), Qt::Key_Down);
        QCOMPARE(opened.recipe(), opened.second);
        // With Ctrl the row becomes the current one and the other stays marked.
        QTest::keyClick(&opened.articles(), Qt::Key_Up, Qt::ControlModifier);
        QCOMPARE(opened.recipe(), opened.second);
        QTest::keyClick(&opened.articles(), Qt::Key_Space, Qt::ControlModifier);
        QCOMPARE(opened.recipe(), opened.first);
    }

    void withoutAMarkedArticleThereIsNoRecipe_data()
    {
        windows();
    }
    void withoutAMarkedArticleThereIsNoRecipe()
    {
        QFETCH(const Open, open);
        const Sample shop;
        const Opened opened = open();
        clickCell(*opened.window, "tableView1", 0, 1);
        opened.clickWith(Qt::ControlModifier, 0);
        QVERIFY(!opened.articles().selectionModel()->hasSelection());
        QCOMPARE(opened.recipe(), QString());
        opened.articles().selectRow(1);
        opened.articles().clearSelection();
        QCOMPARE(opened.recipe(), QString());
    }

    void theCurrentOfSeveralMarkedArticlesCounts_data()
    {
        windows();
    }
    void theCurrentOfSeveralMarkedArticlesCounts()
    {
        QFETCH(const Open, open);
        const Sample shop;
        const Opened opened = open();
        clickCell(*opened.window, "tableView1", 0, 1);
        opened.clickWith(Qt::ControlModifier, 1);
        QCOMPARE(opened.recipe(), opened.second);
        // Unmarked again, the current row leaves the other one marked.
        opened.clickWith(Qt::ControlModifier, 1);
        QCOMPARE(opened.recipe(), opened.first);
    }

    void readAgainNoArticleIsMarked()
    {
        const Sample shop;
        const Opened opened = openEditor();
        clickCell(*opened.window, "tableView1", 0, 1);
        click(*opened.window, "btn_Display");
        QVERIFY(!opened.articles().selectionModel()->hasSelection());
        QCOMPARE(opened.recipe(), QString());
    }

    void aDoubleClickRemovesALineOfTheMarkedArticle()
    {
        const Sample shop;
        const Opened opened = openEditor();
        clickCell(*opened.window, "tableView1", 0, 1);
        opened.clickRowNumber(1);
        doubleClickCell(*opened.window, "tableView2", 0, 2);
        QCOMPARE(shop.cell("select group_concat(idlig) from DoseStock"), QString("10,11,12"));
    }

    void theReturnKeyMarksTheArticleThatItComposes()
    {
        const Sample shop;
        const Opened opened = openEditor();
        QVERIFY(showActive(*opened.window));
        // The first row becomes the current one, and no row is marked.
        opened.articles().setFocus(Qt::TabFocusReason);
        QVERIFY(!opened.articles().selectionModel()->hasSelection());
        QCOMPARE(opened.recipe(), QString());
        QTest::keyClick(&opened.articles(), Qt::Key_Return);
        QVERIFY(opened.window->findChild<FormVendelSaisieStockComposition*>() != nullptr);
        QVERIFY(opened.articles().selectionModel()->rowIntersectsSelection(0, QModelIndex()));
        QCOMPARE(opened.recipe(), opened.first);
    }

    void anUpdateLeavesNoRecipeBehind()
    {
        const Sample shop;
        shop.sql("insert into Article (id, article, prix) values (9, 'Vin', 3)");
        const Opened opened = openEditor();
        clickCell(*opened.window, "tableView1", 0, 1);
        QCOMPARE(opened.recipe(), opened.first);
        click(*opened.window, "btn_Update");
        click(*opened.window->findChild<FormVendelSaisieStockMaj*>(), "btn_Update");
        QCOMPARE(rowCount(*opened.window, "tableView1"), 5);
        QVERIFY(!opened.articles().selectionModel()->hasSelection());
        QCOMPARE(opened.recipe(), QString());
    }

    void aMovedLineLeavesNoRecipeBehindInTheEditor()
    {
        const Sample shop;
        const Opened opened = openEditor();
        clickCell(*opened.window, "tableView1", 1, 1);
        QCOMPARE(opened.recipe(), opened.second);
        click(*opened.window, "btn_Cut_Paste");
        auto& transfer = *opened.window->findChild<FormVendelSaisieStockCutPaste*>();
        clickCell(transfer, "tableView1", 0, 1);
        clickCell(transfer, "tableView2", 0, 2);
        {
            const AnswerBox box(QMessageBox::Yes);
            click(transfer, "btn_Modify");
        }
        QCOMPARE(shop.cell("select id from DoseStock where idlig = 13"), QString("1"));
        QCOMPARE(rowCount(transfer, "tableView2"), 0);
        QCOMPARE(opened.recipe(), QString());
        transfer.close();
        clickCell(*opened.window, "tableView1", 0, 1);
        QCOMPARE(opened.recipe(), QString("Eau|Grains|Lait"));
    }

    void theArticleThatIsComposedIsMarked()
    {
        const Sample shop;
        const Opened opened = openEditor();
        clickCell(*opened.window, "tableView1", 0, 1);
        // Ctrl takes the mark off again before the second press.
        doubleClickCell(*opened.window, "tableView1", 1, 1, Qt::ControlModifier);
        auto* composition = opened.window->findChild<FormVendelSaisieStockComposition*>();
        QVERIFY(composition != nullptr);
        QCOMPARE(opened.recipe(), opened.second);
        child<QLineEdit>(*composition, "txt_Composition").setText(QString("Sucre"));
        child<QLineEdit>(*composition, "txt_Dose").setText(QString("5"));
        click(*composition, "btn_Add");
        QCOMPARE(opened.recipe(), QString("Eau|Sucre"));
        QCOMPARE(opened.articles().selectionModel()->currentIndex().row(), 1);
        QVERIFY(opened.articles().selectionModel()->rowIntersectsSelection(1, QModelIndex()));
    }
};

VENDEL_TEST(TestStockMarkedRecipe)
#include "tst_StockMarkedRecipe.moc"
