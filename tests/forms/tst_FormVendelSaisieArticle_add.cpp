// SPDX-License-Identifier: MIT
#include "tests/forms/OpenArticleEditor.h"
#include "tests/forms/TestTable.h"
#include "tests/support/Captured.h"
#include "tests/support/TestProgram.h"

class TestFormVendelSaisieArticleAdd : public QObject
{
    Q_OBJECT

private slots:
    void anIncompleteArticleIsRefused_data()
    {
        textColumns({"article", "amount", "box"});
        const char* incomplete = "Ajouter: Saisir un article avec son montant";
        tableRow("neither", "", "", incomplete);
        tableRow("no article", "", "1", incomplete);
        tableRow("no amount", "Cafe", "", incomplete);
        tableRow("blank article", "  ", "1", incomplete);
        tableRow("blank amount", "Cafe", " ", incomplete);
        tableRow("no article and no number", "", "abc", incomplete);
        for (const char* amount : {"3a", "1,2,3", "--1", "0x10", "1 000", "1,234.50", "-", "3$"}) {
            tableRow(amount, "Cafe", amount, "Ajouter: Saisir un montant valide");
        }
    }

    void anIncompleteArticleIsRefused()
    {
        QFETCH(QString, article);
        QFETCH(QString, amount);
        QFETCH(QString, box);
        ListedMenu editor("('The', 2)");
        editor.typeArticle(article, amount);
        QCOMPARE(editor.push("btn_Ajouter"), QStringList(box));
        QCOMPARE(editor.text("txt_Article"), article.trimmed());
        QCOMPARE(editor.text("txt_Montant"), amount.trimmed());
        QCOMPARE(editor.stored(), QString("1 The 2"));
        QCOMPARE(editor.names(), QStringList("The"));
    }

    void addsWhatIsTyped_data()
    {
        textColumns({"article", "amount", "stored", "row"});
        tableRow("comma", "Cafe", "3,5", "1 Cafe 3.5", "1||Cafe|3.50$");
        tableRow("point", "Cafe", "3.5", "1 Cafe 3.5", "1||Cafe|3.50$");
        tableRow("blanks", "  Cafe ", " 2 ", "1 Cafe 2", "1||Cafe|2.00$");
        tableRow("negative", "Avoir", "-1,5", "1 Avoir -1.5", "1||Avoir|-1.50$");
        tableRow("exponent", "Lot", "1e3", "1 Lot 1000", "1||Lot|1,000.00$");
        tableRow("apostrophe", "L'eau", "1", "1 L'eau 1", "1||L'eau|1.00$");
        tableRow("statement", "');drop table", "1", "1 ');drop table 1", "1||');drop table|1.00$");
    }

    void addsWhatIsTyped()
    {
        QFETCH(QString, article);
        QFETCH(QString, amount);
        OpenArticleEditor editor;
        editor.typeArticle(article, amount);
        QCOMPARE(editor.push("btn_Ajouter"), QStringList());
        QTEST(editor.stored(), "stored");
        QTEST(editor.rows().join('\n'), "row");
    }

    void theFieldsKeepTheirTextAndTheListIsReplaced()
    {
        ListedMenu editor("('Cafe', 1), ('The', 2)");
        editor.typeArticle(" Vin ", " 3,5 ");
        editor.push("btn_Ajouter");
        QCOMPARE(editor.text("txt_Article"), QString("Vin"));
        QCOMPARE(editor.text("txt_Montant"), QString("3,5"));
        QCOMPARE(editor.names(), QStringList({"Cafe", "The", "Vin"}));
    }

    void anEqualNameIsAddedAndSaid()
    {
        OpenArticleEditor editor("('Cafe', 1)");
        editor.typeArticle("Cafe", "2");
        QCOMPARE(editor.push("btn_Ajouter"),
            QStringList("Doublon: Supprimer le(s) 1 doublon(s) note(s) X..."));
        QCOMPARE(editor.stored(), QString("1 Cafe 1; 2 Cafe 2"));
        QCOMPARE(editor.marked(), QString("1"));
    }

    void aNumberThatSqlDoesNotKnowAddsNothing()
    {
        OpenArticleEditor editor("('The', 2)");
        editor.typeArticle("Cafe", "inf");
        CapturedOutput output;
        editor.push("btn_Ajouter");
        QCOMPARE(output.text(),
            databaseReport(
                "insert into Article (article, prix) values ('Cafe', inf)", "no such column: inf"));
        QCOMPARE(editor.stored(), QString("1 The 2"));
        QCOMPARE(editor.names(), QStringList("The"));
    }
};

VENDEL_TEST(TestFormVendelSaisieArticleAdd)
#include "tst_FormVendelSaisieArticle_add.moc"
