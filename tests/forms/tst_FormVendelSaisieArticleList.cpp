// SPDX-License-Identifier: MIT
#include "tests/forms/OpenArticleEditor.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/Captured.h"
#include "tests/support/Translation.h"
#include "tests/support/StatementLog.h"
#include "tests/support/TestProgram.h"

#include <QTableView>

class TestFormVendelSaisieArticleList : public QObject
{
    Q_OBJECT

private slots:
    void afficherListsTheMenuByName()
    {
        OpenArticleEditor editor("('The', 12.5), ('cafe', 1), ('Lot', 1234.5), ('Avoir', -2)");
        const AnswerBox box;
        click(editor.window, "btn_Afficher");
        QVERIFY(!box.wasShown());
        QCOMPARE(rowCount(editor.window, "tableView"), 4);
        const auto row = [](const char* id, const char* name, const char* price) {
            return QStringList({QString::fromLatin1(id), QString(), QString::fromLatin1(name),
                QString::fromLatin1(price)});
        };
        QCOMPARE(rowTexts(editor.window, "tableView", 0), row("4", "Avoir", "-2.00$"));
        QCOMPARE(rowTexts(editor.window, "tableView", 1), row("2", "cafe", "1.00$"));
        QCOMPARE(rowTexts(editor.window, "tableView", 2), row("3", "Lot", "1,234.50$"));
        QCOMPARE(rowTexts(editor.window, "tableView", 3), row("1", "The", "12.50$"));
    }

    void aNameThatIsANumberIsShownAsAnAmount()
    {
        OpenArticleEditor editor("('33', 3), ('Thé', 'deux')");
        click(editor.window, "btn_Afficher");
        QCOMPARE(rowTexts(editor.window, "tableView", 0).at(2), QString("33.00$"));
        QCOMPARE(rowTexts(editor.window, "tableView", 1).at(3), QString("deux"));
    }

    void anEmptyMenuIsSaid()
    {
        OpenArticleEditor editor;
        const AnswerBox box;
        click(editor.window, "btn_Afficher");
        QCOMPARE(box.title(), QString("Afficher"));
        QCOMPARE(box.text(), QString("Le menu est vide\nAjouter des articles"));
        QCOMPARE(box.icon(), QMessageBox::Information);
        QCOMPARE(box.buttons(), QMessageBox::StandardButtons(QMessageBox::Ok));
        QCOMPARE(box.parent(), &editor.window);
        QCOMPARE(box.strays(), 0);
        QCOMPARE(rowCount(editor.window, "tableView"), 0);
    }

    void pressingAfficherAgainListsOnce()
    {
        OpenArticleEditor editor("('Cafe', 1)");
        click(editor.window, "btn_Afficher");
        click(editor.window, "btn_Afficher");
        QCOMPARE(rowCount(editor.window, "tableView"), 1);
    }

    void displayAppendsToWhatTheListHolds()
    {
        OpenArticleEditor editor("('Cafe', 1), ('The', 2)");
        editor.window.Display();
        editor.window.Display();
        QCOMPARE(rowCount(editor.window, "tableView"), 4);
        QCOMPARE(editor.names(),
            QStringList({QString("Cafe"), QString("The"), QString("Cafe"), QString("The")}));
    }

    void theOlderOfTwoEqualNamesIsMarked()
    {
        OpenArticleEditor editor("('Cafe', 1), ('The', 2), ('cafe', 3)");
        int rowsUnderTheBox = 0;
        const AnswerBox box(QMessageBox::Ok,
            [&](QMessageBox&) { rowsUnderTheBox = rowCount(editor.window, "tableView"); });
        click(editor.window, "btn_Afficher");
        QCOMPARE(box.title(), QString("Doublon"));
        QCOMPARE(box.text(), QString("Supprimer le(s) 1 doublon(s) note(s) X..."));
        QCOMPARE(box.strays(), 0);
        QCOMPARE(rowsUnderTheBox, 3);
        QCOMPARE(editor.marked(), QStringList(QString("1")));
    }

    void lettersOutsideAsciiAreNotFolded()
    {
        OpenArticleEditor editor("('Été', 1), ('été', 2)");
        const AnswerBox box;
        click(editor.window, "btn_Afficher");
        QVERIFY(!box.wasShown());
        QCOMPARE(rowCount(editor.window, "tableView"), 2);
    }

    void twoPairsAreTwoDuplicates()
    {
        OpenArticleEditor editor("('Cafe', 1), ('The', 2), ('Cafe', 3), ('The', 4)");
        const AnswerBox box;
        click(editor.window, "btn_Afficher");
        QCOMPARE(box.text(), QString("Supprimer le(s) 2 doublon(s) note(s) X..."));
        QCOMPARE(editor.marked(), QStringList({QString("1"), QString("2")}));
    }

    void threeEqualNamesAreTwoDuplicates()
    {
        OpenArticleEditor editor("('Cafe', 1), ('Cafe', 2), ('Cafe', 3)");
        const AnswerBox box;
        click(editor.window, "btn_Afficher");
        QCOMPARE(box.text(), QString("Supprimer le(s) 2 doublon(s) note(s) X..."));
        QCOMPARE(editor.marked(), QStringList({QString("1"), QString("2")}));
    }

    // Without its key the table still lists, while each question for duplicates shows as a
    // diagnostic.
    void duplicatesAreAskedForOnce()
    {
        const Shop shop(Shop::Database::None);
        shop.sql("create table Article (cle integer primary key, article text, prix numeric)");
        shop.sql("insert into Article (article, prix) values ('Cafe', 1), ('The', 2), ('Vin', 3)");
        FormVendelSaisieArticle window;
        window.show();
        const CapturedLog log;
        QByteArray said;
        {
            CapturedOutput output;
            click(window, "btn_Afficher");
            said = output.text();
        }
        QCOMPARE(rowCount(window, "tableView"), 3);
        const QByteArray question
            = "Errors Db::DbLoad sqlite3_errmsg : select d.id, d.article from (select "
              "b.article,b.id from (select article,max(id) from Article group by article having "
              "count(article) > 1) as t, Article as b where t.article = b.article) as d where d.id "
              "not "
              "in (select max(id) as id from Article group by article having count(article) > 1) "
              "no "
              "such column: id\n";
        const QByteArray count
            = "Errors Db::DbLoad sqlite3_errmsg : select sum(z.art) as som from (select "
              "count(d.article) as art, d.article from (select b.article,b.id from (select "
              "article,max(id) from Article group by article having count(article) > 1) as t, "
              "Article "
              "as b where t.article = b.article) as d where d.id not in (select max(id) as id from "
              "Article group by article having count(article) > 1) group by article) as z no such "
              "column: id\n";
        QCOMPARE(said, question + count);
        QCOMPARE(log.criticals().size(), 1);
        QVERIFY(log.criticals().constFirst().startsWith(
            QLatin1String("Errors FormVendelSaisieArticle Display : ")));
    }

    void anIdBeyondAnIntIsLogged()
    {
        const Shop shop;
        shop.sql("insert into Article (id, article, prix) values (9999999998, 'Cafe', 1), "
                 "(9999999999, 'Cafe', 2)");
        FormVendelSaisieArticle window;
        window.show();
        const CapturedLog log;
        const AnswerBox box;
        click(window, "btn_Afficher");
        QVERIFY(!box.wasShown());
        QCOMPARE(rowCount(window, "tableView"), 0);
        QCOMPARE(
            log.criticals(), QStringList(QString("Errors FormVendelSaisieArticle Display : stoi")));
        QVERIFY(window.isEnabled());
    }

    void anIdBeyondAnIntIsShownWithoutDuplicates()
    {
        const Shop shop;
        shop.sql("insert into Article (id, article, prix) values (9999999999, 'Cafe', 1)");
        FormVendelSaisieArticle window;
        window.show();
        const CapturedLog log;
        click(window, "btn_Afficher");
        QCOMPARE(rowTexts(window, "tableView", 0).at(0), QString("9999999999"));
        QCOMPARE(log.criticals(), QStringList());
    }

    void aRefreshAsksForTheDuplicatesOnce()
    {
        const Shop shop;
        shop.sql("with recursive n(i) as (select 1 union all select i + 1 from n where i < 300) "
                 "insert into Article (article, prix) select 'Article ' || (i % 298), i from n");
        FormVendelSaisieArticle window;
        window.show();
        const StatementLog log;
        const AnswerBox box;
        click(window, "btn_Afficher");
        QCOMPARE(rowCount(window, "tableView"), 300);
        QCOMPARE(box.text(), QString("Supprimer le(s) 2 doublon(s) note(s) X..."));
        QCOMPARE(log.count("select * from Article order by Article asc"), 1L);
        QCOMPARE(log.count("select d.id, d.article from"), 1L);
        QCOMPARE(log.count("select sum(z.art) as som from"), 1L);
        QCOMPARE(log.statements().size(), std::size_t{3});
    }

    void aSearchAsksForTheDuplicatesOnce()
    {
        const Shop shop;
        shop.sql(
            "insert into Article (article, prix) values ('Eau', 1), ('eau', 2), ('Eau vive', 3)");
        FormVendelSaisieArticle window;
        window.show();
        child<QLineEdit>(window, "txt_Article").setText(QString("eau"));
        const StatementLog log;
        const AnswerBox box;
        click(window, "btn_Rechercher");
        QCOMPARE(rowCount(window, "tableView"), 3);
        QCOMPARE(rowTexts(window, "tableView", 0).at(1), QString("X"));
        QCOMPARE(log.count("select d.id, d.article from"), 1L);
        QCOMPARE(log.statements().size(), std::size_t{3});
    }

    void aFailingDisplayIsLogged()
    {
        OpenArticleEditor editor;
        const CapturedLog log;
        const FailingText failure("Le menu est vide\nAjouter des articles");
        editor.window.Display();
        QCOMPARE(log.criticals(),
            QStringList(QString("Errors FormVendelSaisieArticle Display : no text")));
    }

    void aFailingAfficherIsLogged()
    {
        OpenArticleEditor editor("('Cafe', 1)");
        click(editor.window, "btn_Afficher");
        const CapturedLog log;
        connect(child<QTableView>(editor.window, "tableView").model(),
            &QAbstractItemModel::rowsRemoved, [] { throw std::runtime_error("no row"); });
        click(editor.window, "btn_Afficher");
        QCOMPARE(log.criticals(),
            QStringList(
                QString("Errors FormVendelSaisieArticle on_btn_Afficher_clicked : no row")));
    }
};

VENDEL_TEST(TestFormVendelSaisieArticleList)
#include "tst_FormVendelSaisieArticleList.moc"
