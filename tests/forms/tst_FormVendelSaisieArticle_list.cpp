// SPDX-License-Identifier: MIT
#include "tests/forms/OpenArticleEditor.h"
#include "tests/forms/TestTable.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/Captured.h"
#include "tests/support/StatementLog.h"
#include "tests/support/TestProgram.h"

class TestFormVendelSaisieArticleList : public QObject
{
    Q_OBJECT

private slots:
    void listsTheMenuByName_data()
    {
        textColumns({"articles"});
        QTest::addColumn<QStringList>("rows");
        tableRow("capitals, thousands and credits",
            "('The', 12.5), ('cafe', 1), ('Lot', 1234.5), ('Avoir', -2)",
            QStringList({"4||Avoir|-2.00$", "2||cafe|1.00$", "3||Lot|1,234.50$", "1||The|12.50$"}));
        tableRow("a name that is a number, a price that is none", "('33', 3), ('Thé', 'deux')",
            QStringList({"1||33.00$|3.00$", "2||Thé|deux"}));
        tableRow("letters outside ASCII are not folded", "('Été', 1), ('été', 2)",
            QStringList({"1||Été|1.00$", "2||été|2.00$"}));
    }

    void listsTheMenuByName()
    {
        QFETCH(QString, articles);
        OpenArticleEditor editor(articles.toStdString());
        QCOMPARE(editor.rows(), QStringList());
        for (int time = 1; time <= 2; ++time) {
            QCOMPARE(editor.push("btn_Afficher"), QStringList());
            QTEST(editor.rows(), "rows");
        }
    }

    void anEmptyMenuIsSaid()
    {
        OpenArticleEditor editor;
        QCOMPARE(editor.push("btn_Afficher"),
            QStringList("Afficher: Le menu est vide\nAjouter des articles"));
        QCOMPARE(editor.rows(), QStringList());
    }

    void displayAppendsToWhatTheListHolds()
    {
        OpenArticleEditor editor("('Cafe', 1), ('The', 2)");
        editor.window.Display();
        editor.window.Display();
        QCOMPARE(editor.names(), QStringList({"Cafe", "The", "Cafe", "The"}));
    }

    void allButTheNewestOfEqualNamesAreMarked_data()
    {
        textColumns({"articles", "box", "marked"});
        const char* one = "Doublon: Supprimer le(s) 1 doublon(s) note(s) X...";
        const char* two = "Doublon: Supprimer le(s) 2 doublon(s) note(s) X...";
        tableRow("in any case", "('Cafe', 1), ('The', 2), ('cafe', 3)", one, "1");
        tableRow("two pairs", "('Cafe', 1), ('The', 2), ('Cafe', 3), ('The', 4)", two, "1 2");
        tableRow("three of one", "('Cafe', 1), ('Cafe', 2), ('Cafe', 3)", two, "1 2");
    }

    void allButTheNewestOfEqualNamesAreMarked()
    {
        QFETCH(QString, articles);
        QFETCH(QString, box);
        OpenArticleEditor editor(articles.toStdString());
        QCOMPARE(editor.push("btn_Afficher"), QStringList(box));
        QTEST(editor.marked(), "marked");
    }

    void theListIsFilledUnderTheBoxOfItsDuplicates()
    {
        OpenArticleEditor editor("('Cafe', 1), ('The', 2), ('cafe', 3)");
        editor.type("txt_Article", "caf");
        QStringList underTheBoxes;
        const AnswerBox box = AnswerBox::agreeing([&](QMessageBox&) {
            underTheBoxes
                << QString("%1 rows, %2 marked").arg(editor.rows().size()).arg(editor.marked());
        });
        click(editor.window, "btn_Afficher");
        click(editor.window, "btn_Rechercher");
        QCOMPARE(box.titles(), QStringList({"Doublon", "Doublon"}));
        QCOMPARE(underTheBoxes, QStringList({"3 rows, 1 marked", "2 rows, 1 marked"}));
    }

    void asksForTheDuplicatesOnce()
    {
        OpenArticleEditor editor;
        editor.shop.fill("with recursive n(i) as (select 1 union all select i + 1 from n where i < "
                         "300) insert into Article (article, prix) select 'Article ' || (i % 298), "
                         "i from n");
        const StatementLog log;
        QCOMPARE(editor.push("btn_Afficher"),
            QStringList("Doublon: Supprimer le(s) 2 doublon(s) note(s) X..."));
        QCOMPARE(editor.rows().size(), 300);
        QCOMPARE(log.count("select * from Article order by Article asc"), 1L);
        QCOMPARE(log.count("select d.id, d.article from"), 1L);
        QCOMPARE(log.count("select sum(z.art) as som from"), 1L);
        QCOMPARE(log.statements().size(), std::size_t{3});
    }

    void anIdBeyondAnIntIsShownWithoutDuplicates()
    {
        OpenArticleEditor editor;
        editor.shop.fill("insert into Article (id, article, prix) values (9999999999, 'Cafe', 1)");
        const CapturedLog log;
        QCOMPARE(editor.push("btn_Afficher"), QStringList());
        QCOMPARE(log.criticals(), QStringList());
        QCOMPARE(editor.rows(), QStringList("9999999999||Cafe|1.00$"));
    }
};

VENDEL_TEST(TestFormVendelSaisieArticleList)
#include "tst_FormVendelSaisieArticle_list.moc"
