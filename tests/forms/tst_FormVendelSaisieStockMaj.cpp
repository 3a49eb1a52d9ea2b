// SPDX-License-Identifier: MIT
#include "tests/forms/StockSample.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/ListLook.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Translation.h"

namespace {
constexpr auto newArticle = "insert into Article (id, article, prix) values (7, 'Zeste', 1)";
constexpr auto newName = "update Article set article = 'Noir' where id = 1";

/// What the window \a at is about to do.
QStringList preview(OpenUpdate& at) { return rows(at.window, "tableView"); }
} // namespace

class TestFormVendelSaisieStockMaj : public QObject
{
    Q_OBJECT

private slots:
    void inStepSaysSoAndCloses()
    {
        OpenUpdate at;
        QCOMPARE(preview(at), QStringList());
        const AnswerBox box;
        click(at.window, "btn_Update");
        QCOMPARE(box.said(), QStringList("Mettre à jour: Vous n'avez rien à mettre à jour "));
        QVERIFY(box.isNoticeOf(at.window));
        QVERIFY(!at.window.isVisible());
        QCOMPARE(rowCount(at.stock, "tableView1"), 0);
    }

    void previewsNewArticlesThenRenamedOnes()
    {
        OpenUpdate at(
            "update Article set article = 'Noir' where id = 1;"
            "insert into Article (id, article, prix) values (7, 'Zeste', 1), (8, 'Ananas', 1)");
        QCOMPARE(
            preview(at), QStringList({"7|Zeste|Ajouter", "8|Ananas|Ajouter", "1|Noir|Renommer"}));
    }

    void aNewArticleBecomesValid()
    {
        OpenUpdate at(newArticle);
        QCOMPARE(saidAtClick(at.window, "btn_Update"), QStringList());
        QVERIFY(!at.window.isVisible());
        QCOMPARE(at.cell("select article from ArticleStock where id = 7"), QString("Zeste"));
        QCOMPARE(rowCount(at.stock, "tableView1"), 4);
        QCOMPARE(rows(at.stock, "tableView1").at(3), QString("7|Zeste|Valide"));
    }

    void aRenamedArticleKeepsItsRecipe()
    {
        OpenUpdate at(newName);
        click(at.window, "btn_Update");
        QCOMPARE(rows(at.stock, "tableView1").at(0), QString("1|Noir|Valide"));
        at.stock.Display_DoseStock("1");
        QCOMPARE(rowCount(at.stock, "tableView2"), 2);
    }

    void aNewSpellingInCapitalsAloneIsNoChange()
    {
        OpenUpdate at("update Article set article = 'THé' where id = 2");
        QCOMPARE(preview(at), QStringList());
        QCOMPARE(saidAtClick(at.window, "btn_Update").size(), 1);
        QCOMPARE(at.cell("select article from ArticleStock where id = 2"), QString("Thé"));
    }

    void everyKnownArticleTakesItsNameOfTheMenu()
    {
        OpenUpdate at("update Article set article = 'THé' where id = 2;"
                      "insert into Article (id, article, prix) values (7, 'Zeste', 1)");
        QCOMPARE(preview(at).size(), 1);
        click(at.window, "btn_Update");
        QCOMPARE(at.cell("select article from ArticleStock where id = 2"), QString("THé"));
    }

    void withdrawnArticlesStayAsTheyAre()
    {
        OpenUpdate at("delete from Article where id = 2;"
                      "update Article set article = 'Noir' where id = 1");
        QCOMPARE(preview(at).size(), 1);
        click(at.window, "btn_Update");
        QCOMPARE(rows(at.stock, "tableView1"),
            QStringList({"1|Noir|Valide", "3|Sirop|Périmé", "2|Thé|Périmé"}));
    }

    void applyingReadsTheDatabaseAgain()
    {
        OpenUpdate at(newArticle);
        at.sql("delete from Article where id = 7");
        at.sql("insert into Article (id, article, prix) values (8, 'Ananas', 1)");
        at.sql(newName);
        QCOMPARE(preview(at).size(), 1);
        click(at.window, "btn_Update");
        QCOMPARE(at.cell("select group_concat(id || article, ' ') from (select * from ArticleStock "
                         "order by id)"),
            QString("1Noir 2Thé 3Sirop 8Ananas"));
    }

    void quotesTravelAsTheyAre()
    {
        OpenUpdate at("insert into Article (id, article, prix) values (7, '<b>l''eau</b>', 1)");
        QCOMPARE(preview(at), QStringList("7|<b>l'eau</b>|Ajouter"));
        click(at.window, "btn_Update");
        QCOMPARE(at.cell("select article from ArticleStock where id = 7"), QString("<b>l'eau</b>"));
    }

    void thePreviewIsTranslated()
    {
        const MarkedContext texts("FormVendelSaisieStockMajMessages");
        OpenUpdate at(newArticle);
        QCOMPARE(preview(at), QStringList("7|Zeste|FormVendelSaisieStockMajMessages:Ajouter"));
    }
};

VENDEL_TEST(TestFormVendelSaisieStockMaj)
#include "tst_FormVendelSaisieStockMaj.moc"
