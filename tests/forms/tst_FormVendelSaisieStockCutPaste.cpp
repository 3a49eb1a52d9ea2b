// SPDX-License-Identifier: MIT
#include "forms/FormVendelSaisieStock.h"
#include "forms/FormVendelSaisieStockCutPaste.h"
#include "tests/forms/StockSample.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/ListLook.h"
#include "tests/support/Translation.h"
#include "tests/support/TestProgram.h"
#include "tests/support/WindowFailures.h"
#include "tests/support/Widgets.h"

#include <QComboBox>
#include <QPushButton>
#include <QTableView>

namespace {
/// The transfer window of the sample shop, the line of Sirop shown.
struct Moving
{
    Moving()
    {
        window.show();
        clickCell(window, "tableView1", 0, 1);
    }

    void chooseLine(int row = 0)
    {
        clickCell(window, "tableView2", row, 2);
    }

    StockSample shop;
    FormVendelSaisieStock stock{nullptr};
    FormVendelSaisieStockCutPaste window{&stock};
};
} // namespace

class TestFormVendelSaisieStockCutPaste : public QObject
{
    Q_OBJECT

private slots:
    void looksLikeTheTransferWindow()
    {
        const Shop shop;
        const CapturedLog log;
        FormVendelSaisieStockCutPaste window;
        QCOMPARE(window.size(), QSize(845, 393));
        QCOMPARE(window.minimumSize(), QSize(845, 393));
        QCOMPARE(window.maximumSize(), QSize(845, 393));
        QCOMPARE(window.windowModality(), Qt::WindowModal);
        QCOMPARE(window.windowTitle(), QString("Couper / Coller"));
        QCOMPARE(child<QPushButton>(window, "btn_Modify").text(), QString("Modifier"));
        QVERIFY(!anyAutoDefault(window));
        const auto& articles = child<QTableView>(window, "tableView1");
        QCOMPARE(labels(articles), cells({"#", "Article", "Validité"}));
        QCOMPARE(widths(articles), std::vector({50, 210, 110}));
        QVERIFY(looksLikeAList(articles));
        const auto& recipe = child<QTableView>(window, "tableView2");
        QCOMPARE(labels(recipe), cells({"#", "Id", "Composition", "Dose", "Unité"}));
        QCOMPARE(widths(recipe), std::vector({50, 180, 90, 50}));
        QVERIFY(recipe.isColumnHidden(1));
        QVERIFY(looksLikeAList(recipe));
        QCOMPARE(log.warnings(), QStringList());
    }

    void offersTheArticlesOfTheMenuAndListsTheOthers()
    {
        const StockSample shop;
        shop.sql("insert into ArticleStock values (5, 'Ancien'), (1000, 'hors menu')");
        FormVendelSaisieStockCutPaste window;
        const auto& targets = child<QComboBox>(window, "cbx_Article");
        QCOMPARE(targets.count(), 2);
        QCOMPARE(targets.itemText(0), QString("1, Café, Valide"));
        QCOMPARE(targets.itemText(1), QString("2, Thé, Valide"));
        QCOMPARE(rowCount(window, "tableView1"), 3);
        QCOMPARE(rowTexts(window, "tableView1", 0), cells({"5", "Ancien", "Périmé"}));
        QCOMPARE(rowTexts(window, "tableView1", 1), cells({"1000", "hors menu", "Périmé"}));
        QCOMPARE(rowTexts(window, "tableView1", 2), cells({"3", "Sirop", "Périmé"}));
        QCOMPARE(rowCount(window, "tableView2"), 0);
    }

    void displayFillsTheListAnew()
    {
        const StockSample shop;
        FormVendelSaisieStockCutPaste window;
        shop.sql("delete from Article where id = 2");
        window.Display();
        QCOMPARE(rowCount(window, "tableView1"), 2);
        QCOMPARE(rowTexts(window, "tableView1", 1), cells({"2", "Thé", "Périmé"}));
    }

    void selectingAWithdrawnArticleShowsItsRecipe()
    {
        const StockSample shop;
        shop.sql("insert into ArticleStock values (5, 'Ancien')");
        shop.sql(
            "insert into DoseStock values (13, 5, 'Zeste', 1234.5, 'g'), (14, 5, 'Eau', 2, 'cl')");
        FormVendelSaisieStockCutPaste window;
        window.show();
        clickCell(window, "tableView1", 0, 2);
        QCOMPARE(rowCount(window, "tableView2"), 2);
        QCOMPARE(rowTexts(window, "tableView2", 0), cells({"14", "5", "Eau", "2.00", "cl"}));
        QCOMPARE(rowTexts(window, "tableView2", 1), cells({"13", "5", "Zeste", "1,234.50", "g"}));
        QTest::keyClick(&child<QTableView>(window, "tableView1"), Qt::Key_Down);
        QCOMPARE(rowCount(window, "tableView2"), 1);
        QCOMPARE(rowTexts(window, "tableView2", 0), cells({"12", "3", "Menthe", "3.00", "cl"}));

        auto& articles = child<QTableView>(window, "tableView1");
        articles.selectionModel()->setCurrentIndex(
            articles.model()->index(0, 1), QItemSelectionModel::NoUpdate);
        QCOMPARE(rowTexts(window, "tableView2", 0).at(2), QString("Menthe"));
    }

    void withoutLinesThereIsNothingToMove()
    {
        const Shop shop;
        FormVendelSaisieStockCutPaste window;
        window.show();
        QCOMPARE(rowCount(window, "tableView1"), 0);
        const AnswerBox box;
        click(window, "btn_Modify");
        QCOMPARE(box.text(), QString("Vous n'avez rien à couper / coller"));
        QCOMPARE(box.title(), QString("Modifier"));
        QCOMPARE(box.buttons(), QMessageBox::Ok);
        QCOMPARE(box.parent(), &window);
        QCOMPARE(box.strays(), 0);
    }

    void withoutASelectionItAsksForOne()
    {
        Moving at;
        const AnswerBox box;
        click(at.window, "btn_Modify");
        QCOMPARE(box.text(), QString("Selectionner un/des composition(s) / dose(s) dans la list"));
        QCOMPARE(box.title(), QString("Modifier"));
        QCOMPARE(box.buttons(), QMessageBox::Ok);
        QCOMPARE(box.strays(), 0);
    }

    void noMovesNothing()
    {
        Moving at;
        at.chooseLine();
        const AnswerBox box(QMessageBox::No);
        click(at.window, "btn_Modify");
        QCOMPARE(box.text(), QString("Voulez-vous modifier : Menthe ... dans  Café,  Valide"));
        QCOMPARE(box.title(), QString("Modifier"));
        QCOMPARE(box.buttons(), QMessageBox::Yes | QMessageBox::No);
        QCOMPARE(box.icon(), QMessageBox::Information);
        QCOMPARE(box.strays(), 0);
        QCOMPARE(at.shop.cell("select id from DoseStock where idlig = 12"), QString("3"));
        QCOMPARE(rowCount(at.window, "tableView2"), 1);
    }

    void yesMovesTheLine()
    {
        Moving at;
        at.chooseLine();
        child<QComboBox>(at.window, "cbx_Article").setCurrentIndex(1);
        const AnswerBox box(QMessageBox::Yes);
        click(at.window, "btn_Modify");
        QCOMPARE(box.text(), QString("Voulez-vous modifier : Menthe ... dans  Thé,  Valide"));
        QCOMPARE(at.shop.cell("select id from DoseStock where idlig = 12"), QString("2"));
        QCOMPARE(rowCount(at.window, "tableView2"), 0);
        QCOMPARE(rowCount(at.window, "tableView1"), 1);
        QVERIFY(at.window.isVisible());
    }

    void onlyTheCurrentRowIsMoved()
    {
        Moving at;
        at.shop.sql(
            "insert into DoseStock values (13, 3, 'Eau', 1, 'cl'), (14, 3, 'Sucre', 1, 'g')");
        at.window.Display_DoseStock(QString("3"));
        at.chooseLine(0);
        auto& recipe = child<QTableView>(at.window, "tableView2");
        QTest::mouseClick(recipe.viewport(), Qt::LeftButton, Qt::ShiftModifier,
            recipe.visualRect(recipe.model()->index(1, 2)).center());
        QCOMPARE(recipe.selectionModel()->selectedIndexes().size(), 2);
        const AnswerBox box(QMessageBox::Yes);
        click(at.window, "btn_Modify");
        QCOMPARE(box.text(), QString("Voulez-vous modifier : Menthe ... dans  Café,  Valide"));
        QCOMPARE(box.strays(), 0);
        QCOMPARE(at.shop.cell("select group_concat(idlig) from DoseStock where id = 3"),
            QString("13,14"));
        QCOMPARE(rowCount(at.window, "tableView2"), 2);
    }

    void theQuestionCutsANameAtItsCommas()
    {
        const StockSample shop;
        shop.sql("update ArticleStock set article = 'Café, crème' where id = 1");
        FormVendelSaisieStockCutPaste window;
        window.show();
        QCOMPARE(
            child<QComboBox>(window, "cbx_Article").itemText(0), QString("1, Café, crème, Valide"));
        clickCell(window, "tableView1", 0, 1);
        clickCell(window, "tableView2", 0, 2);
        const AnswerBox box(QMessageBox::Yes);
        click(window, "btn_Modify");
        QCOMPARE(box.text(), QString("Voulez-vous modifier : Menthe ... dans  Café,  crème"));
        QCOMPARE(shop.cell("select id from DoseStock where idlig = 12"), QString("1"));
    }

    void namesAreAskedForAsTheyAre()
    {
        const StockSample shop;
        shop.sql("update ArticleStock set article = '<b>l''eau</b>' where id = 1");
        shop.sql("update DoseStock set composition = '<i>l''anis</i>' where idlig = 12");
        FormVendelSaisieStockCutPaste window;
        window.show();
        clickCell(window, "tableView1", 0, 1);
        clickCell(window, "tableView2", 0, 2);
        const AnswerBox box(QMessageBox::No);
        click(window, "btn_Modify");
        QCOMPARE(box.text(),
            QString("Voulez-vous modifier : <i>l'anis</i> ... dans  <b>l'eau</b>,  Valide"));
        QCOMPARE(box.format(), Qt::PlainText);
    }

    void withoutATargetNothingMoves()
    {
        const StockSample shop;
        shop.sql("delete from Article");
        FormVendelSaisieStockCutPaste window;
        window.show();
        QCOMPARE(child<QComboBox>(window, "cbx_Article").currentText(), QString());
        clickCell(window, "tableView1", 1, 1);
        clickCell(window, "tableView2", 0, 2);
        const AnswerBox box(QMessageBox::Yes);
        CapturedOutput output;
        click(window, "btn_Modify");
        const QByteArray said = diagnostics(output);
        QCOMPARE(said,
            QByteArray(
                "Errors Db::DbLoad sqlite3_errmsg : update DoseStock set id =  where idlig = "
                "12 near \"where\": syntax error\n"));
        QCOMPARE(box.text(), QString("Voulez-vous modifier : Menthe ... dans , "));
        QCOMPARE(box.strays(), 0);
        QCOMPARE(shop.cell("select id from DoseStock where idlig = 12"), QString("3"));
        QCOMPARE(rowCount(window, "tableView2"), 1);
    }

    void aMovedLineOutlivesItsFormerArticle()
    {
        Moving at;
        at.chooseLine();
        {
            const AnswerBox box(QMessageBox::Yes);
            click(at.window, "btn_Modify");
        }
        at.window.close();
        at.stock.show();
        at.stock.Display(true);
        clickCell(at.stock, "tableView1", 1, 1);
        const AnswerBox box(QMessageBox::Yes);
        click(at.stock, "btn_Remove");
        QCOMPARE(box.text(), QString("Voulez-vous supprimer : Sirop, Périmé ..."));
        QCOMPARE(at.shop.cell("select id from DoseStock where idlig = 12"), QString("1"));
    }

    void theStockEditorsRecipeListIsEmptied()
    {
        Moving at;
        at.stock.Display_DoseStock(QString("3"));
        at.stock.Display(true);
        at.chooseLine();
        const AnswerBox box(QMessageBox::Yes);
        click(at.window, "btn_Modify");
        QCOMPARE(rowCount(at.stock, "tableView2"), 0);
        QCOMPARE(rowCount(at.stock, "tableView1"), 3);
    }

    void returnPressesNoButton()
    {
        Moving at;
        QVERIFY(showActive(at.window));
        const AnswerBox box;
        for (const char* name : {"tableView1", "tableView2", "cbx_Article", "btn_Modify"}) {
            child<QWidget>(at.window, name).setFocus();
            QTest::keyClick(&child<QWidget>(at.window, name), Qt::Key_Return);
        }
        QVERIFY(!box.wasShown());
        QVERIFY(at.window.isVisible());
    }

    void textsAreTranslatedInTheirContexts()
    {
        const StockSample shop;
        {
            const MarkedContext captions("FormVendelSaisieStockCutPaste");
            FormVendelSaisieStockCutPaste window;
            QCOMPARE(
                window.windowTitle(), QString("FormVendelSaisieStockCutPaste:Couper / Coller"));
        }
        const MarkedContext texts("FormVendelSaisieStockCutPasteMessages");
        FormVendelSaisieStockCutPaste window;
        window.show();
        QCOMPARE(child<QComboBox>(window, "cbx_Article").itemText(0),
            QString("1, Café, FormVendelSaisieStockCutPasteMessages:Valide"));
        QCOMPARE(rowTexts(window, "tableView1", 0).at(2),
            QString("FormVendelSaisieStockCutPasteMessages:Périmé"));
        const AnswerBox box;
        click(window, "btn_Modify");
        QCOMPARE(box.title(), QString("FormVendelSaisieStockCutPasteMessages:Modifier"));
    }

    void troubleIsLogged()
    {
        Moving at;
        at.chooseLine();
        const CapturedLog log;
        {
            const FailingEvent trouble(QEvent::WindowTitleChange, "FormVendelSaisieStockCutPaste");
            FormVendelSaisieStockCutPaste broken;
        }
        FailingModel unreadable;
        const QModelIndex index = unreadable.index(0, 0);
        for (const char* name : {"tableView1", "tableView2"}) {
            auto& view = child<QTableView>(at.window, name);
            view.setModel(&unreadable);
            view.selectionModel()->select(index, QItemSelectionModel::Select);
            view.selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
        }
        QMetaObject::invokeMethod(&at.window, "on_tableView1_clicked", Q_ARG(QModelIndex, index));
        QMetaObject::invokeMethod(&at.window, "on_tableViewSelection", Q_ARG(QModelIndex, index),
            Q_ARG(QModelIndex, index));
        click(at.window, "btn_Modify");
        child<QTableView>(at.window, "tableView2").resize(400, 300);
        QMouseEvent move(QEvent::MouseMove, QPointF(5, 12), QPointF(5, 12), Qt::NoButton,
            Qt::NoButton, Qt::NoModifier);
        QVERIFY(!static_cast<QObject&>(at.window).eventFilter(
            child<QTableView>(at.window, "tableView2").viewport(), &move));
        at.shop.sql("drop table DoseStock");
        at.shop.sql("create table DoseStock (id, composition)");
        at.shop.sql("insert into DoseStock values (1, 'Lait')");
        at.window.Display_DoseStock(QString("1"));

        QCOMPARE(log.criticals().mid(0, 5),
            cells({"Errors FormVendelSaisieStockCutPaste Constructor : trouble",
                "Errors FormVendelSaisieStock on_tableView1_clicked : trouble",
                "Errors FormVendelSaisieStock on_tableViewSelection : trouble",
                "Errors FormVendelSaisieStockCutPaste on_btn_Modify_clicked : trouble",
                "Errors FormVendelSaisieStockCutPaste eventFilter : trouble"}));
        QCOMPARE(log.criticals().size(), 6);
        QVERIFY(log.criticals().constLast().startsWith(
            QLatin1String("Errors FormVendelSaisieStockCutPaste Display_DoseStock : ")));
    }
};

VENDEL_TEST(TestFormVendelSaisieStockCutPaste)
#include "tst_FormVendelSaisieStockCutPaste.moc"
