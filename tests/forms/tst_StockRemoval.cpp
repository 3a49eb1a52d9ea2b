// SPDX-License-Identifier: MIT
#include "forms/FormVendelSaisieStock.h"
#include "tests/forms/StockSample.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/Captured.h"
#include "tests/support/ListLook.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Widgets.h"

#include <QTableView>

namespace {
void open(FormVendelSaisieStock& stock)
{
    stock.show();
    stock.Display(true);
}
} // namespace

/// Removing articles and lines of recipes in the stock editor.
class TestStockRemoval : public QObject
{
    Q_OBJECT

private slots:
    void anEmptyListAsksForAnUpdate()
    {
        const StockSample shop;
        FormVendelSaisieStock stock;
        stock.show();
        const AnswerBox box;
        click(stock, "btn_Remove");
        QCOMPARE(box.text(), QString("Aucun Article\nFaite Mise à jour"));
        QCOMPARE(box.title(), QString("Afficher"));
        QCOMPARE(box.buttons(), QMessageBox::Ok);
        QCOMPARE(box.strays(), 0);
    }

    void withoutASelectionItAsksForOne()
    {
        const StockSample shop;
        FormVendelSaisieStock stock;
        open(stock);
        const AnswerBox box;
        click(stock, "btn_Remove");
        QCOMPARE(box.text(), QString("Selectionner un/des article(s) dans le menu"));
        QCOMPARE(box.title(), QString("Supprimer"));
        QCOMPARE(box.buttons(), QMessageBox::Ok);
        QCOMPARE(box.strays(), 0);
        QCOMPARE(shop.cell("select count(*) from ArticleStock"), QString("3"));
    }

    void aSelectionWithoutACurrentRowCountsAsNone()
    {
        const StockSample shop;
        FormVendelSaisieStock stock;
        open(stock);
        auto& articles = child<QTableView>(stock, "tableView1");
        articles.selectAll();
        articles.selectionModel()->setCurrentIndex(QModelIndex(), QItemSelectionModel::NoUpdate);
        const AnswerBox box(QMessageBox::Yes);
        CapturedOutput output;
        click(stock, "btn_Remove");
        QCOMPARE(box.text(), QString("Selectionner un/des article(s) dans le menu"));
        QCOMPARE(diagnostics(output), QByteArray());
    }

    void theQuestionNamesArticleAndValidity()
    {
        const StockSample shop;
        FormVendelSaisieStock stock;
        open(stock);
        clickCell(stock, "tableView1", 1, 1);
        const AnswerBox box(QMessageBox::No);
        click(stock, "btn_Remove");
        QCOMPARE(box.text(), QString("Voulez-vous supprimer : Sirop, Périmé ..."));
        QCOMPARE(box.title(), QString("Supprimer"));
        QCOMPARE(box.buttons(), QMessageBox::Yes | QMessageBox::No);
        QCOMPARE(box.icon(), QMessageBox::Information);
        QCOMPARE(box.parent(), &stock);
    }

    void namesAreAskedForAsTheyAre()
    {
        const StockSample shop;
        shop.sql("update ArticleStock set article = '<i>l''eau</i>' where id = 1");
        FormVendelSaisieStock stock;
        open(stock);
        clickCell(stock, "tableView1", 0, 2);
        const AnswerBox box(QMessageBox::No);
        click(stock, "btn_Remove");
        QCOMPARE(box.text(), QString("Voulez-vous supprimer : <i>l'eau</i>, Valide ..."));
        QCOMPARE(box.format(), Qt::PlainText);
    }

    void noKeepsTheArticle()
    {
        const StockSample shop;
        FormVendelSaisieStock stock;
        open(stock);
        clickCell(stock, "tableView1", 0, 1);
        const AnswerBox box(QMessageBox::No);
        click(stock, "btn_Remove");
        QCOMPARE(box.strays(), 0);
        QCOMPARE(shop.cell("select count(*) from ArticleStock"), QString("3"));
        QCOMPARE(shop.cell("select count(*) from DoseStock"), QString("3"));
        QCOMPARE(rowCount(stock, "tableView1"), 3);
        QCOMPARE(rowCount(stock, "tableView2"), 2);
    }

    void yesRemovesTheArticleWithItsLines()
    {
        const StockSample shop;
        FormVendelSaisieStock stock;
        open(stock);
        clickCell(stock, "tableView1", 0, 1);
        const AnswerBox box(QMessageBox::Yes);
        click(stock, "btn_Remove");
        QCOMPARE(box.text(), QString("Voulez-vous supprimer : Café, Valide ..."));
        QCOMPARE(box.strays(), 0);
        QCOMPARE(shop.cell("select group_concat(id) from ArticleStock"), QString("2,3"));
        QCOMPARE(shop.cell("select group_concat(idlig) from DoseStock"), QString("12"));
        QCOMPARE(shop.cell("select count(*) from Article"), QString("2"));
        QCOMPARE(rowCount(stock, "tableView1"), 2);
        QCOMPARE(rowCount(stock, "tableView2"), 0);
    }

    void theLastArticleLeavesTheEmptyMessage()
    {
        const Shop shop;
        shop.sql("insert into ArticleStock values (3, 'Sirop')");
        FormVendelSaisieStock stock;
        open(stock);
        clickCell(stock, "tableView1", 0, 1);
        const AnswerBox diary = AnswerBox::agreeing();
        click(stock, "btn_Remove");
        QCOMPARE(diary.said(),
            (QStringList{QString("Supprimer: Voulez-vous supprimer : Sirop, Périmé ..."),
                QString("Afficher: Aucun Article\nFaite Mise à jour")}));
        QCOMPARE(rowCount(stock, "tableView1"), 0);
    }

    void linesGoBeforeTheirArticle()
    {
        const StockSample shop;
        shop.sql("create trigger orphans before delete on ArticleStock when exists (select 1 from "
                 "DoseStock where id = old.id) begin select raise(abort, 'orphans'); end");
        FormVendelSaisieStock stock;
        open(stock);
        clickCell(stock, "tableView1", 0, 1);
        const AnswerBox box(QMessageBox::Yes);
        click(stock, "btn_Remove");
        QCOMPARE(shop.cell("select group_concat(id) from ArticleStock"), QString("2,3"));
    }

    void aRefusedRemovalChangesNothing_data()
    {
        QTest::addColumn<QByteArray>("table");
        QTest::newRow("its lines") << QByteArray("DoseStock");
        QTest::newRow("the article") << QByteArray("ArticleStock");
    }

    void aRefusedRemovalChangesNothing()
    {
        QFETCH(const QByteArray, table);
        const StockSample shop;
        shop.sql(("create trigger refused before delete on " + table
            + " begin select raise(abort, 'no'); end")
                     .constData());
        FormVendelSaisieStock stock;
        open(stock);
        clickCell(stock, "tableView1", 0, 1);
        const AnswerBox box(QMessageBox::Yes);
        CapturedOutput output;
        click(stock, "btn_Remove");
        QCOMPARE(
            diagnostics(output), databaseReport("delete from " + table + " where id = 1", "no"));
        QCOMPARE(shop.cell("select group_concat(id) from ArticleStock"), QString("1,2,3"));
        QCOMPARE(shop.cell("select group_concat(idlig) from DoseStock"), QString("10,11,12"));
        QCOMPARE(rowCount(stock, "tableView1"), 3);
        QCOMPARE(rowCount(stock, "tableView2"), 2);
        QVERIFY(child<QTableView>(stock, "tableView1").selectionModel()->hasSelection());
        QCOMPARE(box.strays(), 0);
    }

    void onlyTheCurrentRowIsRemoved()
    {
        const StockSample shop;
        FormVendelSaisieStock stock;
        open(stock);
        auto& articles = child<QTableView>(stock, "tableView1");
        clickCell(stock, "tableView1", 0, 1);
        const QPoint last = articles.visualRect(articles.model()->index(2, 1)).center();
        QTest::mouseClick(articles.viewport(), Qt::LeftButton, Qt::ShiftModifier, last);
        QCOMPARE(articles.selectionModel()->selectedIndexes().size(), 3);
        const AnswerBox box(QMessageBox::Yes);
        click(stock, "btn_Remove");
        QCOMPARE(box.text(), QString("Voulez-vous supprimer : Thé, Valide ..."));
        QCOMPARE(box.strays(), 0);
        QCOMPARE(shop.cell("select group_concat(id) from ArticleStock"), QString("1,3"));
    }

    void aDoubleClickRemovesALineAtOnce()
    {
        const StockSample shop;
        FormVendelSaisieStock stock;
        open(stock);
        clickCell(stock, "tableView1", 0, 1);
        const AnswerBox box;
        doubleClickCell(stock, "tableView2", 0, 3);
        QVERIFY(!box.wasShown());
        QCOMPARE(shop.cell("select group_concat(idlig) from DoseStock"), QString("10,12"));
        QCOMPARE(rowCount(stock, "tableView2"), 1);
        QCOMPARE(rowTexts(stock, "tableView2", 0), cells({"10", "1", "Lait", "1.50", "cl"}));
    }

    void deleteRemovesTheCurrentLineOnly()
    {
        const StockSample shop;
        FormVendelSaisieStock stock;
        QVERIFY(showActive(stock));
        stock.Display(true);
        clickCell(stock, "tableView1", 0, 1);
        QTest::keyClick(&child<QTableView>(stock, "tableView1"), Qt::Key_Delete);
        QCOMPARE(shop.cell("select count(*) from DoseStock"), QString("3"));
        auto& recipe = child<QTableView>(stock, "tableView2");
        clickCell(stock, "tableView2", 0, 2);
        QTest::keyClick(&recipe, Qt::Key_Down, Qt::ShiftModifier);
        QCOMPARE(recipe.selectionModel()->selectedIndexes().size(), 2);
        QTest::keyClick(&recipe, Qt::Key_Delete);
        QCOMPARE(shop.cell("select group_concat(idlig) from DoseStock"), QString("11,12"));
        QCOMPARE(rowCount(stock, "tableView2"), 1);
    }

    void aHeldDeleteKeyRemovesOneLine()
    {
        const StockSample shop;
        FormVendelSaisieStock stock;
        QVERIFY(showActive(stock));
        stock.Display(true);
        clickCell(stock, "tableView1", 0, 1);
        auto& recipe = child<QTableView>(stock, "tableView2");
        clickCell(stock, "tableView2", 0, 2);
        constexpr bool isRepeat = true;
        qt_sendShortcutOverrideEvent(
            &recipe, 0, Qt::Key_Delete, Qt::NoModifier, QString(), isRepeat);
        QCOMPARE(shop.cell("select count(*) from DoseStock"), QString("3"));
        qt_sendShortcutOverrideEvent(&recipe, 0, Qt::Key_Delete, Qt::NoModifier);
        QCOMPARE(shop.cell("select count(*) from DoseStock"), QString("2"));
    }

    void anUnselectedLineStays()
    {
        const StockSample shop;
        FormVendelSaisieStock stock;
        open(stock);
        clickCell(stock, "tableView1", 0, 1);
        const QModelIndex line = child<QTableView>(stock, "tableView2").model()->index(0, 2);
        QVERIFY(QMetaObject::invokeMethod(
            &stock, "on_tableView2_doubleClicked", Q_ARG(QModelIndex, line)));
        QVERIFY(QMetaObject::invokeMethod(
            &stock, "on_tableView2_doubleClicked", Q_ARG(QModelIndex, QModelIndex())));
        QCOMPARE(shop.cell("select count(*) from DoseStock"), QString("3"));
    }
};

VENDEL_TEST(TestStockRemoval)
#include "tst_StockRemoval.moc"
