// SPDX-License-Identifier: MIT
#include "forms/FormVendelSaisieStockComposition.h"
#include "tests/forms/StockSample.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/ListLook.h"
#include "tests/support/TestProgram.h"

#include <QLineEdit>

#include <utility>

namespace {
/// The stock editor, with Limonade (4) between Café and Sirop.
struct OpenRecipes : OpenStock
{
    OpenRecipes()
        : OpenStock("insert into ArticleStock values (4, 'Limonade');"
                    "insert into DoseStock values (13, 4, 'Eau', 20, 'cl')")
    { }
};
} // namespace

/// The recipe in the stock editor.
class TestFormVendelSaisieStockRecipe : public QObject
{
    Q_OBJECT

private slots:
    void aClickShowsTheRecipe()
    {
        OpenStock at;
        at.mark(0);
        QCOMPARE(rows(at.window, "tableView2"),
            QStringList({"11|1|Grains|7.00|g", "10|1|Lait|1.50|cl"}));
        clickCell(at.window, "tableView1", 2, 2);
        QCOMPARE(rows(at.window, "tableView2"), QStringList());
        clickCell(at.window, "tableView1", 1, 0);
        QCOMPARE(rows(at.window, "tableView2"), QStringList("12|3|Menthe|3.00|cl"));
    }

    void anUnselectedArticleShowsNothing()
    {
        OpenStock at;
        at.mark(0);
        const QModelIndex withdrawn = at.left.model()->index(1, 1);
        QVERIFY(QMetaObject::invokeMethod(
            &at.window, "on_tableView1_clicked", Q_ARG(QModelIndex, withdrawn)));
        at.left.selectionModel()->setCurrentIndex(withdrawn, QItemSelectionModel::NoUpdate);
        QCOMPARE(rowCount(at.window, "tableView2"), 2);
    }

    void dosesAreShownWithTwoDecimals()
    {
        OpenStock at;
        for (const auto& [stored, shown] : {std::pair("1.5", "1.50"), {"12", "12.00"},
                 {"1234.5", "1,234.50"}, {"16777217.25", "16,777,217.25"}, {"-0.25", "-0.25"},
                 {"'une pincée'", "une pincée"}}) {
            at.fill(QByteArray("update DoseStock set dose = ") + stored + " where idlig = 12");
            at.window.Display_DoseStock("3");
            QCOMPARE(rows(at.window, "tableView2"),
                QStringList(QString("12|3|Menthe|%1|cl").arg(shown)));
        }
    }

    void clearListEmptiesTheRecipe()
    {
        OpenStock at;
        at.window.Display_DoseStock("1");
        at.window.Clear_List();
        QCOMPARE(rowCount(at.window, "tableView2"), 0);
        compareList(at.right, 12, {50, 50, 180, 90, 50}, "1");
    }

    void readAgainNoArticleIsMarked()
    {
        OpenRecipes at;
        at.mark(0);
        click(at.window, "btn_Display");
        QVERIFY(!at.left.selectionModel()->hasSelection());
        QCOMPARE(recipe(at.window), QString());
    }

    void theReturnKeyMarksTheArticleThatItComposes()
    {
        OpenRecipes at;
        at.right.setFocus();
        // The first row becomes the current one, and no row is marked.
        at.left.setFocus(Qt::TabFocusReason);
        QVERIFY(!at.left.selectionModel()->hasSelection());
        QCOMPARE(recipe(at.window), QString());
        QTest::keyClick(&at.left, Qt::Key_Return);
        QVERIFY(at.window.findChild<FormVendelSaisieStockComposition*>() != nullptr);
        QVERIFY(at.left.selectionModel()->rowIntersectsSelection(0, QModelIndex()));
        QCOMPARE(recipe(at.window), QString("Grains|Lait"));
    }

    void anUpdateLeavesNoRecipeBehind()
    {
        OpenRecipes at;
        at.sql("insert into Article (id, article, prix) values (9, 'Vin', 3)");
        at.mark(0);
        QCOMPARE(recipe(at.window), QString("Grains|Lait"));
        click(at.window, "btn_Update");
        click(*at.window.findChild<FormVendelSaisieStockMaj*>(), "btn_Update");
        QCOMPARE(rowCount(at.window, "tableView1"), 5);
        QVERIFY(!at.left.selectionModel()->hasSelection());
        QCOMPARE(recipe(at.window), QString());
    }

    void aMovedLineLeavesNoRecipeBehind()
    {
        OpenRecipes at;
        at.mark(1);
        QCOMPARE(recipe(at.window), QString("Eau"));
        click(at.window, "btn_Cut_Paste");
        auto& transfer = *at.window.findChild<FormVendelSaisieStockCutPaste*>();
        clickCell(transfer, "tableView1", 0, 1);
        clickCell(transfer, "tableView2", 0, 2);
        saidAtClick(transfer, "btn_Modify", QMessageBox::Yes);
        QCOMPARE(at.cell("select id from DoseStock where idlig = 13"), QString("1"));
        QCOMPARE(rowCount(transfer, "tableView2"), 0);
        QCOMPARE(recipe(at.window), QString());
        transfer.close();
        at.mark(0);
        QCOMPARE(recipe(at.window), QString("Eau|Grains|Lait"));
    }

    void theArticleThatIsComposedIsMarked()
    {
        OpenRecipes at;
        at.mark(0);
        // Ctrl takes the mark off again before the second press.
        doubleClickCell(at.window, "tableView1", 1, 1, Qt::ControlModifier);
        auto* composition = at.window.findChild<FormVendelSaisieStockComposition*>();
        QVERIFY(composition != nullptr);
        QCOMPARE(recipe(at.window), QString("Eau"));
        child<QLineEdit>(*composition, "txt_Composition").setText("Sucre");
        child<QLineEdit>(*composition, "txt_Dose").setText("5");
        click(*composition, "btn_Add");
        QCOMPARE(recipe(at.window), QString("Eau|Sucre"));
        QCOMPARE(at.left.selectionModel()->currentIndex().row(), 1);
        QVERIFY(at.left.selectionModel()->rowIntersectsSelection(1, QModelIndex()));
    }
};

VENDEL_TEST(TestFormVendelSaisieStockRecipe)
#include "tst_FormVendelSaisieStock_recipe.moc"
