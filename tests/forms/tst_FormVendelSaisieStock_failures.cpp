// SPDX-License-Identifier: MIT
#include "forms/FormVendelSaisieStockComposition.h"
#include "tests/forms/ConsumptionSample.h"
#include "tests/forms/EveryWindow.h"
#include "tests/forms/StockSample.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/Captured.h"
#include "tests/support/TestProgram.h"
#include "tests/support/WindowFailures.h"

#include <QLineEdit>
#include <QMouseEvent>

namespace {
/// Makes the list \a name of \a window unreadable, its first cell marked; hides the window, since
/// nobody could paint the list.
void makeUnreadable(QWidget& window, const char* name, FailingModel& model)
{
    window.hide();
    auto& view = child<QTableView>(window, name);
    view.setModel(&model);
    const QModelIndex index = model.index(0, 0);
    view.selectionModel()->select(index, QItemSelectionModel::Select);
    view.selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
}

/// Makes each reading of a recipe fail.
void dropDoses(const Shop& shop)
{
    shop.fill("drop table DoseStock; create table DoseStock (id, composition);"
              "insert into DoseStock values (1, 'Lait')");
}
} // namespace

/// What goes wrong around the stock editor, the windows over it and the consumption is logged.
class TestFormVendelSaisieStockFailures : public QObject
{
    Q_OBJECT

private slots:
    void aFailingConstructorIsLogged_data()
    {
        QTest::addColumn<QString>("logged");
        const auto row
            = [](const char* window, const char* logged) { QTest::newRow(window) << logged; };
        row("FormVendelSaisieStock", "Errors FormVendelSaisieStock Contructor : trouble");
        row("FormVendelSaisieStockComposition",
            "Errors FormSaisieStockComposition Constructor : trouble");
        row("FormVendelSaisieStockCutPaste",
            "Errors FormVendelSaisieStockCutPaste Constructor : trouble");
        row("FormVendelSaisieStockMaj", "Errors FormVendelSaisieStockMaj Constructor : trouble");
        row("FormVendelStockCalculation",
            "Errors FormVendelStockCalculation Constructor : trouble");
    }

    void aFailingConstructorIsLogged()
    {
        QFETCH(const QString, logged);
        const StockSample shop;
        const CapturedLog log;
        const FailingEvent trouble(QEvent::WindowTitleChange, QTest::currentDataTag());
        makeWindow(QTest::currentDataTag());
        QCOMPARE(log.criticals(), QStringList(logged));
    }

    void aWindowThatDoesNotOpenIsLogged()
    {
        OpenStock at;
        const CapturedLog log;
        {
            const FailingEvent trouble(QEvent::Show, "FormVendelSaisieStockMaj");
            click(at.window, "btn_Update");
        }
        const FailingEvent trouble(QEvent::Show, "FormVendelSaisieStockCutPaste");
        click(at.window, "btn_Cut_Paste");
        QCOMPARE(log.criticals(),
            QStringList({"Errors FormVendelSaisieStock on_btn_Update_clicked : trouble",
                "Errors FormVendelSaisieStock on_btn_Cut_Paste_clicked : trouble"}));
    }

    void unreadableListsAreLogged()
    {
        OpenStock at;
        const CapturedLog log;
        FailingModel unreadable;
        makeUnreadable(at.window, "tableView1", unreadable);
        makeUnreadable(at.window, "tableView2", unreadable);
        const QModelIndex index = unreadable.index(0, 0);
        for (const char* slot : {"on_tableView1_doubleClicked", "on_tableView1_clicked",
                 "on_tableView2_doubleClicked"}) {
            QVERIFY(QMetaObject::invokeMethod(&at.window, slot, Q_ARG(QModelIndex, index)));
        }
        QVERIFY(QMetaObject::invokeMethod(&at.window, "on_tableViewSelection",
            Q_ARG(QModelIndex, index), Q_ARG(QModelIndex, index)));
        click(at.window, "btn_Remove");
        QCOMPARE(log.criticals(),
            QStringList({"Errors FormVendelSaisieStock on_tableView1_doubleClicked : trouble",
                "Errors FormVendelSaisieStock on_tableView1_clicked : trouble",
                "Errors FormVendelSaisieStock on_tableView2_doubleClicked : trouble",
                "Errors FormVendelSaisieStock on_tableViewSelection : trouble",
                "Errors FormVendelSaisieStock on_btn_Remove_clicked : trouble"}));
    }

    void unreadableListsOfTheTransferAreLogged()
    {
        OpenTransfer at;
        clickCell(at.window, "tableView1", 0, 1);
        const CapturedLog log;
        FailingModel unreadable;
        makeUnreadable(at.window, "tableView1", unreadable);
        makeUnreadable(at.window, "tableView2", unreadable);
        const QModelIndex index = unreadable.index(0, 0);
        QVERIFY(QMetaObject::invokeMethod(
            &at.window, "on_tableView1_clicked", Q_ARG(QModelIndex, index)));
        QVERIFY(QMetaObject::invokeMethod(&at.window, "on_tableViewSelection",
            Q_ARG(QModelIndex, index), Q_ARG(QModelIndex, index)));
        click(at.window, "btn_Modify");
        auto& recipe = child<QTableView>(at.window, "tableView2");
        recipe.resize(400, 300);
        QMouseEvent move(QEvent::MouseMove, QPointF(5, 12), QPointF(5, 12), Qt::NoButton,
            Qt::NoButton, Qt::NoModifier);
        QVERIFY(!static_cast<QObject&>(at.window).eventFilter(recipe.viewport(), &move));
        QCOMPARE(log.criticals(),
            QStringList({"Errors FormVendelSaisieStock on_tableView1_clicked : trouble",
                "Errors FormVendelSaisieStock on_tableViewSelection : trouble",
                "Errors FormVendelSaisieStockCutPaste on_btn_Modify_clicked : trouble",
                "Errors FormVendelSaisieStockCutPaste eventFilter : trouble"}));
    }

    void anUnreadableRecipeIsLogged()
    {
        OpenTransfer at;
        const CapturedLog log;
        dropDoses(at);
        at.stock.Display_DoseStock("1");
        at.window.Display_DoseStock("1");
        QCOMPARE(log.criticals().size(), 2);
        QVERIFY(
            log.criticals().at(0).startsWith("Errors FormVendelSaisieStock Display_DoseStock : "));
        QVERIFY(log.criticals().at(1).startsWith(
            "Errors FormVendelSaisieStockCutPaste Display_DoseStock : "));
    }

    void aBoxThatDoesNotOpenIsLogged_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<QString>("logged");
        const auto row = [](const char* window, const char* button, const char* logged) {
            QTest::newRow(window) << button << logged;
        };
        row("FormVendelSaisieStockComposition", "btn_Add",
            "Errors FormSaisieStockComposition on_btn_Add_clicked : trouble");
        row("FormVendelSaisieStockMaj", "btn_Update",
            "Errors FormVendelSaisieStock on_btn_Update_clicked : trouble");
        row("FormVendelStockCalculation", "btn_Display",
            "Errors FormVendelStockCalculation on_btn_Display_clicked : trouble");
    }

    void aBoxThatDoesNotOpenIsLogged()
    {
        QFETCH(const QString, button);
        QFETCH(const QString, logged);
        const StockSample shop;
        const CapturedLog log;
        const AnyWindow window = makeWindow(QTest::currentDataTag());
        window->show();
        const FailingEvent trouble(QEvent::Show, "QMessageBox");
        click(*window, qPrintable(button));
        QCOMPARE(log.criticals(), QStringList(logged));
    }

    void aRefusedLineIsReportedAndTheWindowCloses()
    {
        StockSample shop;
        FormVendelSaisieStock stock;
        stock.Display_DoseStock("3");
        FormVendelSaisieStockComposition window("Sirop", "3", &stock);
        window.show();
        child<QLineEdit>(window, "txt_Composition").setText("Eau");
        child<QLineEdit>(window, "txt_Dose").setText("inf");
        CapturedOutput output;
        click(window, "btn_Add");
        QCOMPARE(diagnostics(output),
            databaseReport("insert into DoseStock (id, composition, dose, unite) values "
                           "(3, 'Eau', inf, 'cl')",
                "no such column: inf"));
        QVERIFY(!window.isVisible());
        QCOMPARE(rowCount(stock, "tableView2"), 1);
    }

    void aRefusedArticleLeavesTheNewNames()
    {
        OpenUpdate at("insert into Article (id, article, prix) values (7, 'Zeste', 1);"
                      "update Article set article = 'Noir' where id = 1;"
                      "create trigger refused before insert on ArticleStock begin select "
                      "raise(abort, 'refused'); end");
        CapturedOutput output;
        click(at.window, "btn_Update");
        QCOMPARE(diagnostics(output),
            databaseReport(
                "insert into ArticleStock (id,article) select Article.id,Article.article "
                "from Article left join ArticleStock on ArticleStock.id = Article.id "
                "where ArticleStock.id is null",
                "refused"));
        QVERIFY(!at.window.isVisible());
        QCOMPARE(at.cell("select article from ArticleStock where id = 1"), QString("Noir"));
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
        OpenStock at("create trigger refused before delete on " + table
            + " begin select raise(abort, 'no'); end");
        at.mark(0);
        const AnswerBox box(QMessageBox::Yes);
        CapturedOutput output;
        click(at.window, "btn_Remove");
        QCOMPARE(
            diagnostics(output), databaseReport("delete from " + table + " where id = 1", "no"));
        QCOMPARE(at.articles(), QString("1,2,3"));
        QCOMPARE(at.lines(), QString("10,11,12"));
        QCOMPARE(rowCount(at.window, "tableView1"), 3);
        QCOMPARE(rowCount(at.window, "tableView2"), 2);
        QVERIFY(at.left.selectionModel()->hasSelection());
        QCOMPARE(box.strays(), 0);
    }
};

VENDEL_TEST(TestFormVendelSaisieStockFailures)
#include "tst_FormVendelSaisieStock_failures.moc"
