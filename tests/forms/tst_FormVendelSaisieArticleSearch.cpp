// SPDX-License-Identifier: MIT
#include "tests/forms/OpenArticleEditor.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/Captured.h"
#include "tests/support/Translation.h"
#include "tests/support/TestProgram.h"

class TestFormVendelSaisieArticleSearch : public QObject
{
    Q_OBJECT

private slots:
    void anEmptyFieldIsRefused()
    {
        OpenArticleEditor editor("('Cafe', 1)");
        click(editor.window, "btn_Afficher");
        const AnswerBox box;
        click(editor.window, "btn_Rechercher");
        QCOMPARE(box.title(), QString("Rechercher"));
        QCOMPARE(box.text(), QString("Saisir un article"));
        QCOMPARE(box.buttons(), QMessageBox::StandardButtons(QMessageBox::Ok));
        QCOMPARE(box.strays(), 0);
        QCOMPARE(editor.names(), QStringList(QString("Cafe")));
    }

    void blanksAloneAreRefusedAndTakenAway()
    {
        OpenArticleEditor editor("('Cafe', 1)");
        editor.type("txt_Article", "   ");
        const AnswerBox box;
        click(editor.window, "btn_Rechercher");
        QCOMPARE(box.text(), QString("Saisir un article"));
        QCOMPARE(editor.text("txt_Article"), QString());
    }

    void findsAPartOfTheNameInAnyCase()
    {
        OpenArticleEditor editor("('The vert', 1), ('Cafe', 2), ('Grand THE', 3)");
        editor.type("txt_Article", "the");
        const AnswerBox box;
        click(editor.window, "btn_Rechercher");
        QCOMPARE(editor.names(), QStringList({QString("Grand THE"), QString("The vert")}));
        QVERIFY(!box.wasShown());
    }

    void blanksAroundTheTermDoNotCount()
    {
        OpenArticleEditor editor("('Cafe', 1), ('The', 2)");
        editor.type("txt_Article", "  af ");
        click(editor.window, "btn_Rechercher");
        QCOMPARE(editor.names(), QStringList(QString("Cafe")));
        QCOMPARE(editor.text("txt_Article"), QString("af"));
    }

    void findsAnApostrophe()
    {
        OpenArticleEditor editor("('L''eau', 1), ('Leau', 2)");
        editor.type("txt_Article", "L'e");
        click(editor.window, "btn_Rechercher");
        QCOMPARE(editor.names(), QStringList(QString("L'eau")));
    }

    void wildcardsAreSqls_data()
    {
        QTest::addColumn<QByteArray>("term");
        QTest::addColumn<QString>("found");
        QTest::newRow("per cent") << QByteArray("%") << QString("Cafe|Remise 10%|The|a_b");
        QTest::newRow("between") << QByteArray("c%f") << QString("Cafe");
        QTest::newRow("one letter") << QByteArray("c_fe") << QString("Cafe");
        QTest::newRow("underscore") << QByteArray("____") << QString("Cafe|Remise 10%");
        QTest::newRow("double quote") << QByteArray("\"") << QString();
        QTest::newRow("semicolon") << QByteArray("';--") << QString();
        QTest::newRow("backslash") << QByteArray("\\") << QString();
    }

    void wildcardsAreSqls()
    {
        QFETCH(QByteArray, term);
        QFETCH(QString, found);
        OpenArticleEditor editor("('Cafe', 1), ('The', 2), ('a_b', 3), ('Remise 10%', 4)");
        editor.type("txt_Article", term.constData());
        CapturedOutput output;
        click(editor.window, "btn_Rechercher");
        QStringList names = editor.names();
        names.sort();
        QCOMPARE(names.join('|'), found);
        QCOMPARE(output.text(), QByteArray());
    }

    void nothingFoundEmptiesTheListWithoutAWord()
    {
        OpenArticleEditor editor("('Cafe', 1)");
        click(editor.window, "btn_Afficher");
        editor.type("txt_Article", "xyz");
        const AnswerBox box;
        click(editor.window, "btn_Rechercher");
        QCOMPARE(editor.names(), QStringList());
        QVERIFY(!box.wasShown());
    }

    void pricesAreShownAsInTheMenu()
    {
        OpenArticleEditor editor("('33', 1234.5), ('Cafe', 1)");
        editor.type("txt_Article", "3");
        click(editor.window, "btn_Rechercher");
        QCOMPARE(rowTexts(editor.window, "tableView", 0),
            QStringList({QString("1"), QString(), QString("33.00$"), QString("1,234.50$")}));
    }

    void duplicatesAmongTheFoundAreCounted()
    {
        OpenArticleEditor editor("('Cafe', 1), ('The', 2), ('cafe', 3), ('The', 4), ('Vin', 5)");
        editor.type("txt_Article", "caf");
        const AnswerBox box;
        click(editor.window, "btn_Rechercher");
        QCOMPARE(box.title(), QString("Doublon"));
        QCOMPARE(box.text(), QString("Supprimer le(s) 1 doublon(s) note(s) X..."));
        QCOMPARE(box.strays(), 0);
        QCOMPARE(rowCount(editor.window, "tableView"), 2);
        QCOMPARE(editor.marked(), QStringList(QString("1")));
    }

    void duplicatesElsewhereAreNotSaid()
    {
        OpenArticleEditor editor("('Cafe', 1), ('The', 2), ('Cafe', 3)");
        editor.type("txt_Article", "the");
        const AnswerBox box;
        click(editor.window, "btn_Rechercher");
        QVERIFY(!box.wasShown());
        QCOMPARE(editor.names(), QStringList(QString("The")));
        QCOMPARE(editor.marked(), QStringList());
    }

    // Without the table each statement is printed as it was sent.
    void theStatementsHoldTheTerm()
    {
        OpenArticleEditor editor;
        editor.shop.sql("drop table Article");
        editor.type("txt_Article", "L'e");
        const CapturedLog log;
        QByteArray said;
        {
            CapturedOutput output;
            click(editor.window, "btn_Rechercher");
            said = output.text();
        }
        QCOMPARE(said,
            QByteArray(
                "Errors Db::DbLoad sqlite3_errmsg : select * from Article where article like "
                "'%L''e%' order by article asc no such table: Article\n"
                "Errors Db::DbLoad sqlite3_errmsg : select sum(z.art) as som from (select "
                "count(d.article) as art, d.article from (select b.article,b.id from (select "
                "article,max(id) from Article group by article having count(article) > 1) as t, "
                "Article as b where t.article = b.article and b.article like '%L''e%') as d where "
                "d.id "
                "not in (select max(id) as id from Article group by article having count(article) "
                "> 1) "
                "group by article) as z no such table: Article\n"));
        QCOMPARE(log.criticals().size(), 1);
        QVERIFY(log.criticals().constFirst().startsWith(
            QLatin1String("Errors FormVendelSaisieArticle on_btn_Rechercher_clicked : ")));
    }

    void aFailureIsLogged()
    {
        OpenArticleEditor editor;
        const CapturedLog log;
        const FailingText failure("Saisir un article");
        click(editor.window, "btn_Rechercher");
        QCOMPARE(log.criticals(),
            QStringList(
                QString("Errors FormVendelSaisieArticle on_btn_Rechercher_clicked : no text")));
    }
};

VENDEL_TEST(TestFormVendelSaisieArticleSearch)
#include "tst_FormVendelSaisieArticleSearch.moc"
