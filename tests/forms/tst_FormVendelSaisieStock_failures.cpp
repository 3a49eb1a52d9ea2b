// SPDX-License-Identifier: MIT
#include "forms/FormVendelSaisieStockComposition.h"
#include "tests/forms/EveryWindow.h"
#include "tests/forms/StockSample.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/Captured.h"
#include "tests/support/TestProgram.h"
#include "tests/support/WindowFailures.h"

#include <QLineEdit>
#include <QMouseEvent>

#include <tuple>
#include <utility>

namespace {
/// The two lists of a window made unreadable, their first cells marked. The window is hidden, since
/// painting them would throw, too.
struct Unreadable
{
    QDialog& window;
    FailingModel model;
    QModelIndex first = model.index(0, 0);

    explicit Unreadable(QDialog& opened)
        : window(opened)
    {
        window.hide();
        for (const char* name : {"tableView1", "tableView2"}) {
            auto& view = child<QTableView>(window, name);
            view.setModel(&model);
            view.selectionModel()->select(first, QItemSelectionModel::Select);
            view.selectionModel()->setCurrentIndex(first, QItemSelectionModel::NoUpdate);
        }
    }

    void call(const char* slot) const
    {
        QVERIFY(QMetaObject::invokeMethod(&window, slot, Q_ARG(QModelIndex, first)));
    }
    void callSelection() const
    {
        QVERIFY(QMetaObject::invokeMethod(&window, "on_tableViewSelection",
            Q_ARG(QModelIndex, first), Q_ARG(QModelIndex, first)));
    }
};
} // namespace

/// What goes wrong around the stock editor, the windows over it and the consumption is logged.
class TestFormVendelSaisieStockFailures : public QObject
{
    Q_OBJECT

private slots:
    void aFailingConstructorIsLogged()
    {
        const StockSample shop;
        for (const auto& [window, logged] :
            {std::pair("FormVendelSaisieStock", "FormVendelSaisieStock Contructor"),
                {"FormVendelSaisieStockComposition", "FormSaisieStockComposition Constructor"},
                {"FormVendelSaisieStockCutPaste", "FormVendelSaisieStockCutPaste Constructor"},
                {"FormVendelSaisieStockMaj", "FormVendelSaisieStockMaj Constructor"},
                {"FormVendelStockCalculation", "FormVendelStockCalculation Constructor"}}) {
            const CapturedLog log;
            const FailingEvent trouble(QEvent::WindowTitleChange, window);
            makeWindow(window);
            QCOMPARE(log.criticals(), QStringList(QString("Errors %1 : trouble").arg(logged)));
        }
    }

    void aWindowThatDoesNotOpenIsLogged()
    {
        OpenStock at;
        const CapturedLog log;
        const FailingEvent noUpdate(QEvent::Show, "FormVendelSaisieStockMaj");
        click(at.window, "btn_Update");
        const FailingEvent noTransfer(QEvent::Show, "FormVendelSaisieStockCutPaste");
        click(at.window, "btn_Cut_Paste");
        QCOMPARE(log.criticals(),
            QStringList({"Errors FormVendelSaisieStock on_btn_Update_clicked : trouble",
                "Errors FormVendelSaisieStock on_btn_Cut_Paste_clicked : trouble"}));
    }

    void aBoxThatDoesNotOpenIsLogged()
    {
        const StockSample shop;
        for (const auto& [window, button, logged] :
            {std::tuple("FormVendelSaisieStockComposition", "btn_Add",
                 "Errors FormSaisieStockComposition on_btn_Add_clicked : trouble"),
                {"FormVendelSaisieStockMaj", "btn_Update",
                    "Errors FormVendelSaisieStock on_btn_Update_clicked : trouble"},
                {"FormVendelStockCalculation", "btn_Display",
                    "Errors FormVendelStockCalculation on_btn_Display_clicked : trouble"}}) {
            const CapturedLog log;
            const AnyWindow opened = makeWindow(window);
            opened->show();
            const FailingEvent trouble(QEvent::Show, "QMessageBox");
            click(*opened, button);
            QCOMPARE(log.criticals(), QStringList(logged));
        }
    }

    void unreadableListsAreLogged()
    {
        OpenStock at;
        const CapturedLog log;
        const Unreadable lists(at.window);
        lists.call("on_tableView1_doubleClicked");
        lists.call("on_tableView1_clicked");
        lists.call("on_tableView2_doubleClicked");
        lists.callSelection();
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
        const Unreadable lists(at.window);
        lists.call("on_tableView1_clicked");
        lists.callSelection();
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
        at.fill("drop table DoseStock; create table DoseStock (id, composition);"
                "insert into DoseStock values (1, 'Lait')");
        at.stock.Display_DoseStock("1");
        at.window.Display_DoseStock("1");
        QCOMPARE(log.criticals().size(), 2);
        QVERIFY(
            log.criticals().at(0).startsWith("Errors FormVendelSaisieStock Display_DoseStock : "));
        QVERIFY(log.criticals().at(1).startsWith(
            "Errors FormVendelSaisieStockCutPaste Display_DoseStock : "));
    }

    void aRefusedLineIsReportedAndTheWindowCloses()
    {
        const StockSample shop;
        FormVendelSaisieStock stock;
        stock.Display_DoseStock("3");
        FormVendelSaisieStockComposition window("Sirop", "3", &stock);
        window.show();
        child<QLineEdit>(window, "txt_Composition").setText("Eau");
        child<QLineEdit>(window, "txt_Dose").setText("inf");
        CapturedOutput output;
        click(window, "btn_Add");
        QCOMPARE(output.text(),
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
        QCOMPARE(output.text(),
            databaseReport(
                "insert into ArticleStock (id,article) select Article.id,Article.article "
                "from Article left join ArticleStock on ArticleStock.id = Article.id "
                "where ArticleStock.id is null",
                "refused"));
        QVERIFY(!at.window.isVisible());
        QCOMPARE(at.cell("select article from ArticleStock where id = 1"), QString("Noir"));
    }

    void aRefusedRemovalChangesNothing()
    {
        for (const char* table : {"DoseStock", "ArticleStock"}) {
            OpenStock at(QByteArray("create trigger refused before delete on ") + table
                + " begin select raise(abort, 'no'); end");
            at.mark(0);
            CapturedOutput output;
            QCOMPARE(saidAtClick(at.window, "btn_Remove", QMessageBox::Yes).size(), 1);
            QCOMPARE(output.text(),
                databaseReport(QByteArray("delete from ") + table + " where id = 1", "no"));
            QCOMPARE(at.articles(), QString("1,2,3"));
            QCOMPARE(at.lines(), QString("10,11,12"));
            QCOMPARE(rowCount(at.window, "tableView1"), 3);
            QCOMPARE(rowCount(at.window, "tableView2"), 2);
            QVERIFY(at.left.selectionModel()->hasSelection());
        }
    }
};

VENDEL_TEST(TestFormVendelSaisieStockFailures)
#include "tst_FormVendelSaisieStock_failures.moc"
