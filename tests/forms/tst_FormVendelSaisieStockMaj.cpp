// SPDX-License-Identifier: MIT
#include "forms/FormVendelSaisieStock.h"
#include "forms/FormVendelSaisieStockMaj.h"
#include "tests/forms/StockSample.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/Captured.h"
#include "tests/support/ListLook.h"
#include "tests/support/Translation.h"
#include "tests/support/TestProgram.h"
#include "tests/support/WindowFailures.h"
#include "tests/support/Widgets.h"

#include <QPushButton>
#include <QTableView>

class TestFormVendelSaisieStockMaj : public QObject
{
    Q_OBJECT

private slots:
    void looksLikeTheUpdateWindow()
    {
        const StockSample shop;
        const CapturedLog log;
        FormVendelSaisieStockMaj window;
        QCOMPARE(window.size(), QSize(563, 261));
        QCOMPARE(window.minimumSize(), QSize(563, 261));
        QCOMPARE(window.maximumSize(), QSize(563, 261));
        QCOMPARE(window.windowModality(), Qt::WindowModal);
        QCOMPARE(window.windowTitle(), QString("Mise à jour Stock"));
        QCOMPARE(child<QPushButton>(window, "btn_Update").text(), QString("Mettre à jour"));
        QVERIFY(!anyAutoDefault(window));
        const auto& view = child<QTableView>(window, "tableView");
        QCOMPARE(labels(view), cells({"#", "Article", "Mise à jour"}));
        QCOMPARE(widths(view), std::vector({50, 210, 100}));
        QVERIFY(looksLikeAList(view));
        QCOMPARE(log.warnings(), QStringList());
    }

    void inStepSaysSoAndCloses()
    {
        const StockSample shop;
        FormVendelSaisieStock stock;
        FormVendelSaisieStockMaj window(&stock);
        window.show();
        QCOMPARE(rowCount(window, "tableView"), 0);
        const AnswerBox box;
        click(window, "btn_Update");
        QCOMPARE(box.text(), QString("Vous n'avez rien à mettre à jour "));
        QCOMPARE(box.title(), QString("Mettre à jour"));
        QCOMPARE(box.buttons(), QMessageBox::Ok);
        QCOMPARE(box.parent(), &window);
        QCOMPARE(box.strays(), 0);
        QVERIFY(!window.isVisible());
        QCOMPARE(rowCount(stock, "tableView1"), 0);
    }

    void previewsNewArticlesThenRenamedOnes()
    {
        const StockSample shop;
        shop.sql("update Article set article = 'Noir' where id = 1");
        shop.sql(
            "insert into Article (id, article, prix) values (7, 'Zeste', 1), (8, 'Ananas', 1)");
        FormVendelSaisieStockMaj window;
        QCOMPARE(rowCount(window, "tableView"), 3);
        QCOMPARE(rowTexts(window, "tableView", 0), cells({"7", "Zeste", "Ajouter"}));
        QCOMPARE(rowTexts(window, "tableView", 1), cells({"8", "Ananas", "Ajouter"}));
        QCOMPARE(rowTexts(window, "tableView", 2), cells({"1", "Noir", "Renommer"}));
    }

    void aNewArticleBecomesValid()
    {
        const StockSample shop;
        shop.sql("insert into Article (id, article, prix) values (7, 'Zeste', 1)");
        FormVendelSaisieStock stock;
        FormVendelSaisieStockMaj window(&stock);
        window.show();
        const AnswerBox box;
        click(window, "btn_Update");
        QVERIFY(!box.wasShown());
        QVERIFY(!window.isVisible());
        QCOMPARE(shop.cell("select article from ArticleStock where id = 7"), QString("Zeste"));
        QCOMPARE(rowCount(stock, "tableView1"), 4);
        QCOMPARE(rowTexts(stock, "tableView1", 3), cells({"7", "Zeste", "Valide"}));
    }

    void aRenamedArticleKeepsItsRecipe()
    {
        const StockSample shop;
        shop.sql("update Article set article = 'Noir' where id = 1");
        FormVendelSaisieStock stock;
        FormVendelSaisieStockMaj window(&stock);
        window.show();
        click(window, "btn_Update");
        QCOMPARE(rowTexts(stock, "tableView1", 0), cells({"1", "Noir", "Valide"}));
        stock.Display_DoseStock(QString("1"));
        QCOMPARE(rowCount(stock, "tableView2"), 2);
    }

    void aNewSpellingInCapitalsAloneIsNoChange()
    {
        const StockSample shop;
        shop.sql("update Article set article = 'THé' where id = 2");
        FormVendelSaisieStockMaj window;
        window.show();
        QCOMPARE(rowCount(window, "tableView"), 0);
        const AnswerBox box;
        click(window, "btn_Update");
        QVERIFY(box.wasShown());
        QCOMPARE(shop.cell("select article from ArticleStock where id = 2"), QString("Thé"));
    }

    void everyKnownArticleTakesItsNameOfTheMenu()
    {
        const StockSample shop;
        shop.sql("update Article set article = 'THé' where id = 2");
        shop.sql("insert into Article (id, article, prix) values (7, 'Zeste', 1)");
        FormVendelSaisieStockMaj window;
        window.show();
        QCOMPARE(rowCount(window, "tableView"), 1);
        click(window, "btn_Update");
        QCOMPARE(shop.cell("select article from ArticleStock where id = 2"), QString("THé"));
    }

    void withdrawnArticlesStayAsTheyAre()
    {
        const StockSample shop;
        shop.sql("delete from Article where id = 2");
        shop.sql("update Article set article = 'Noir' where id = 1");
        FormVendelSaisieStock stock;
        FormVendelSaisieStockMaj window(&stock);
        window.show();
        QCOMPARE(rowCount(window, "tableView"), 1);
        click(window, "btn_Update");
        QCOMPARE(rowCount(stock, "tableView1"), 3);
        QCOMPARE(rowTexts(stock, "tableView1", 0), cells({"1", "Noir", "Valide"}));
        QCOMPARE(rowTexts(stock, "tableView1", 1), cells({"3", "Sirop", "Périmé"}));
        QCOMPARE(rowTexts(stock, "tableView1", 2), cells({"2", "Thé", "Périmé"}));
    }

    void applyingReadsTheDatabaseAgain()
    {
        const StockSample shop;
        shop.sql("insert into Article (id, article, prix) values (7, 'Zeste', 1)");
        FormVendelSaisieStockMaj window;
        window.show();
        shop.sql("delete from Article where id = 7");
        shop.sql("insert into Article (id, article, prix) values (8, 'Ananas', 1)");
        shop.sql("update Article set article = 'Noir' where id = 1");
        QCOMPARE(rowCount(window, "tableView"), 1);
        click(window, "btn_Update");
        QCOMPARE(
            shop.cell("select group_concat(id || article, ' ') from (select * from ArticleStock "
                      "order by id)"),
            QString("1Noir 2Thé 3Sirop 8Ananas"));
    }

    void aFailedInsertLeavesTheNewNames()
    {
        const StockSample shop;
        shop.sql("insert into Article (id, article, prix) values (7, 'Zeste', 1)");
        shop.sql("update Article set article = 'Noir' where id = 1");
        shop.sql("create trigger refused before insert on ArticleStock begin select raise(abort, "
                 "'refused'); end");
        FormVendelSaisieStockMaj window;
        window.show();
        CapturedOutput output;
        click(window, "btn_Update");
        QCOMPARE(diagnostics(output),
            QByteArray("Errors Db::DbLoad sqlite3_errmsg : insert into ArticleStock (id,article) "
                       "select Article.id,Article.article from Article left join ArticleStock on "
                       "ArticleStock.id = Article.id where ArticleStock.id is null refused\n"));
        QVERIFY(!window.isVisible());
        QCOMPARE(shop.cell("select article from ArticleStock where id = 1"), QString("Noir"));
    }

    void quotesTravelAsTheyAre()
    {
        const StockSample shop;
        shop.sql("insert into Article (id, article, prix) values (7, '<b>l''eau</b>', 1)");
        FormVendelSaisieStockMaj window;
        window.show();
        QCOMPARE(rowTexts(window, "tableView", 0), cells({"7", "<b>l'eau</b>", "Ajouter"}));
        click(window, "btn_Update");
        QCOMPARE(
            shop.cell("select article from ArticleStock where id = 7"), QString("<b>l'eau</b>"));
    }

    void returnPressesNoButton()
    {
        const StockSample shop;
        FormVendelSaisieStockMaj window;
        QVERIFY(showActive(window));
        const AnswerBox box;
        QTest::keyClick(window.focusWidget(), Qt::Key_Return);
        child<QTableView>(window, "tableView").setFocus();
        QTest::keyClick(window.focusWidget(), Qt::Key_Return);
        QVERIFY(!box.wasShown());
        QVERIFY(window.isVisible());
    }

    void textsAreTranslatedInTheirContexts()
    {
        const StockSample shop;
        {
            const MarkedContext captions("FormVendelSaisieStockMaj");
            FormVendelSaisieStockMaj window;
            QCOMPARE(window.windowTitle(), QString("FormVendelSaisieStockMaj:Mise à jour Stock"));
        }
        shop.sql("insert into Article (id, article, prix) values (7, 'Zeste', 1)");
        const MarkedContext texts("FormVendelSaisieStockMajMessages");
        FormVendelSaisieStockMaj window;
        QCOMPARE(labels(child<QTableView>(window, "tableView")).at(1),
            QString("FormVendelSaisieStockMajMessages:Article"));
        QCOMPARE(rowTexts(window, "tableView", 0).at(2),
            QString("FormVendelSaisieStockMajMessages:Ajouter"));
    }

    void troubleIsLogged()
    {
        const StockSample shop;
        const CapturedLog log;
        {
            const FailingEvent trouble(QEvent::WindowTitleChange, "FormVendelSaisieStockMaj");
            FormVendelSaisieStockMaj broken;
        }
        FormVendelSaisieStockMaj window;
        window.show();
        const FailingEvent trouble(QEvent::Show, "QMessageBox");
        click(window, "btn_Update");
        QCOMPARE(log.criticals(),
            cells({"Errors FormVendelSaisieStockMaj Constructor : trouble",
                "Errors FormVendelSaisieStock on_btn_Update_clicked : trouble"}));
    }
};

VENDEL_TEST(TestFormVendelSaisieStockMaj)
#include "tst_FormVendelSaisieStockMaj.moc"
