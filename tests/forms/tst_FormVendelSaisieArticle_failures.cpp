// SPDX-License-Identifier: MIT
#include "tests/forms/OpenArticleEditor.h"
#include "tests/forms/TestTable.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/Captured.h"
#include "tests/support/LeakCheck.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Translation.h"

#include <stdexcept>

/// What the editor does when a slot fails or the database refuses its statements.
class TestFormVendelSaisieArticleFailures : public QObject
{
    Q_OBJECT

private slots:
    void aFailingConstructorIsLogged()
    {
        const Shop shop;
        const CapturedLog log;
        const FailingText failure("Saisie Article");
        const FormVendelSaisieArticle window;
        QCOMPARE(
            log.criticals(), QStringList("Errors FormVendelSaisieArticle Constructor : no text"));
    }

    void aFailingButtonIsLogged_data()
    {
        textColumns({"text", "slot"});
        tableRow("btn_Ajouter", "Saisir un article avec son montant", "on_btn_Ajouter_clicked");
        tableRow("btn_Supprimer", "Selectionner un/des article(s) dans le menu",
            "on_btn_Supprimer_clicked");
        tableRow("btn_Renommer", "Saisir un article et son montant", "on_btn_Renommer_clicked");
        tableRow("btn_Rechercher", "Saisir un article", "on_btn_Rechercher_clicked");
        tableRow("btn_Afficher", "Le menu est vide\nAjouter des articles", "Display");
    }

    void aFailingButtonIsLogged()
    {
        QFETCH(QString, text);
        QFETCH(QString, slot);
        OpenArticleEditor editor;
        const CapturedLog log;
        const FailingText failure(text.toUtf8().constData());
        click(editor.window, QTest::currentDataTag());
        QCOMPARE(
            log.criticals(), QStringList("Errors FormVendelSaisieArticle " + slot + " : no text"));
        QVERIFY(editor.window.isVisible());
    }

    void aFailingRemovalKeepsTheArticle()
    {
        ListedMenu editor("('Cafe', 1)");
        editor.select(0);
        const CapturedLog log;
        const FailingText failure("Voulez-vous supprimer : ");
        click(editor.window, "btn_Supprimer");
        QCOMPARE(log.criticals(),
            QStringList("Errors FormVendelSaisieArticle on_btn_Supprimer_clicked : no text"));
        QCOMPARE(editor.stored(), QString("1 Cafe 1"));
    }

    void aListThatCannotBeEmptiedIsLogged()
    {
        ListedMenu editor("('Cafe', 1)");
        const CapturedLog log;
        connect(editor.list.model(), &QAbstractItemModel::rowsRemoved,
            [] { throw std::runtime_error("no row"); });
        click(editor.window, "btn_Afficher");
        QCOMPARE(log.criticals(),
            QStringList("Errors FormVendelSaisieArticle on_btn_Afficher_clicked : no row"));
    }

    void failuresOfFieldsAndTipsAreLogged()
    {
        const LeakCheckPause pause;
        ListedMenu editor("('Cafe', 1)");
        const CapturedLog log;
        {
            const FailingText failure("Article Nbre caractères : ");
            editor.type("txt_Article", "C");
        }
        {
            const FailingText failure("Menu\nDblClick sur : ");
            hoverCell(editor.window, "tableView", 0, 2);
        }
        connect(&child<QLineEdit>(editor.window, "txt_Montant"), &QLineEdit::textChanged,
            [] { throw std::runtime_error("no text"); });
        doubleClickCell(editor.window, "tableView", 0, 2);
        click(editor.window, "btn_Effacer_Saisie");
        const QString editorOf = "Errors FormVendelSaisieArticle ";
        QCOMPARE(log.criticals(),
            QStringList({editorOf + "on_txt_Article_textChanged : no text",
                editorOf + "eventFilter : no text",
                editorOf + "on_tableView_doubleClicked : no text",
                editorOf + "on_btn_Effacer_Saisie_clicked : no text"}));
    }

    void anIdBeyondAnIntIsLogged()
    {
        OpenArticleEditor editor;
        editor.shop.fill("insert into Article (id, article, prix) values (9999999998, 'Cafe', 1), "
                         "(9999999999, 'Cafe', 2)");
        const CapturedLog log;
        QCOMPARE(editor.push("btn_Afficher"), QStringList());
        QCOMPARE(editor.rows(), QStringList());
        QCOMPARE(log.criticals(), QStringList("Errors FormVendelSaisieArticle Display : stoi"));
        QVERIFY(editor.window.isEnabled());
    }

    // What was to be run shows in the database's report.
    void aMissingTableIsReported_data()
    {
        textColumns({"statements", "boxes", "log"});
        const char* shows = "\nselect * from Article order by Article asc";
        const char* empty = "Afficher: Le menu est vide\nAjouter des articles";
        tableRow("btn_Ajouter",
            QString("insert into Article (article, prix) values ('L''eau', 4.25)") + shows, empty,
            "");
        tableRow("btn_Renommer",
            QString("update Article set article = 'L''eau', prix = 4.25 where id = 1") + shows,
            QString("Renommer: Voulez-vous renommer : Cafe ... [Yes, No]|") + empty, "");
        tableRow("btn_Supprimer", QString("delete from Article where id = 1") + shows,
            QString("Supprimer: Voulez-vous supprimer : Cafe ... [Yes, No]|") + empty, "");
        tableRow("btn_Rechercher",
            "select * from Article where article like '%L''eau%' order by article asc\n"
            "select sum(z.art) as som from (select count(d.article) as art, d.article from (select "
            "b.article,b.id from (select article,max(id) from Article group by article having "
            "count(article) > 1) as t, Article as b where t.article = b.article and b.article like "
            "'%L''eau%') as d where d.id not in (select max(id) as id from Article group by "
            "article having count(article) > 1) group by article) as z",
            "", "Errors FormVendelSaisieArticle on_btn_Rechercher_clicked");
    }

    void aMissingTableIsReported()
    {
        QFETCH(QString, statements);
        ListedMenu editor("('Cafe', 1)");
        editor.select(0);
        editor.typeArticle("L'eau", "4,25");
        editor.shop.sql("drop table Article");
        const CapturedLog log;
        CapturedOutput output;
        QTEST(editor.push(QTest::currentDataTag()).join('|'), "boxes");
        QByteArray reports;
        const auto sent = statements.split('\n');
        for (const QString& statement : sent) {
            reports += databaseReport(statement.toUtf8(), "no such table: Article");
        }
        QCOMPARE(output.text(), reports);
        QVERIFY(log.criticals().size() <= 1);
        QTEST(log.criticals().join('|').section(" : ", 0, 0), "log");
    }

    void aTableWithoutKeysIsListedWithoutItsDuplicates()
    {
        OpenArticleEditor editor;
        editor.shop.fill(
            "drop table Article;"
            "create table Article (cle integer primary key, article text, prix numeric);"
            "insert into Article (article, prix) values ('Cafe', 1), ('The', 2), ('Vin', 3)");
        const CapturedLog log;
        CapturedOutput output;
        click(editor.window, "btn_Afficher");
        QCOMPARE(editor.rows().size(), 3);
        QCOMPARE(output.text(),
            databaseReport(
                "select d.id, d.article from (select b.article,b.id from (select article,max(id) "
                "from Article group by article having count(article) > 1) as t, Article as b where "
                "t.article = b.article) as d where d.id not in (select max(id) as id from Article "
                "group by article having count(article) > 1)",
                "no such column: id")
                + databaseReport(
                    "select sum(z.art) as som from (select count(d.article) as art, d.article from "
                    "(select b.article,b.id from (select article,max(id) from Article group by "
                    "article having count(article) > 1) as t, Article as b where t.article = "
                    "b.article) as d where d.id not in (select max(id) as id from Article group by "
                    "article having count(article) > 1) group by article) as z",
                    "no such column: id"));
        QCOMPARE(log.criticals().size(), 1);
        QVERIFY(
            log.criticals().constFirst().startsWith("Errors FormVendelSaisieArticle Display : "));
    }
};

VENDEL_TEST(TestFormVendelSaisieArticleFailures)
#include "tst_FormVendelSaisieArticle_failures.moc"
