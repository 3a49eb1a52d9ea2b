// SPDX-License-Identifier: MIT
#include "tests/forms/OpenArticleEditor.h"
#include "tests/forms/TestTable.h"
#include "tests/support/Captured.h"
#include "tests/support/TestProgram.h"

class TestFormVendelSaisieArticleRename : public QObject
{
    Q_OBJECT

private slots:
    void renamingNeedsFieldsThenARowThenANumber_data()
    {
        QTest::addColumn<bool>("isSelected");
        textColumns({"article", "amount", "box"});
        const char* incomplete = "Renommer: Saisir un article et son montant";
        const char* noRow = "Renommer: Selectionner 1 article dans le menu à renommer";
        tableRow("neither", false, "", "", incomplete);
        tableRow("neither, selected", true, "", "", incomplete);
        tableRow("no amount", false, "  The ", "", incomplete);
        tableRow("no article and no number", false, "  ", "abc", incomplete);
        tableRow("no row", false, "The", "3", noRow);
        tableRow("no row and no number", false, "The", "abc", noRow);
        tableRow("no number", true, "The", "3a", "Renommer: Saisir un montant valide");
    }

    void renamingNeedsFieldsThenARowThenANumber()
    {
        QFETCH(bool, isSelected);
        QFETCH(QString, article);
        QFETCH(QString, amount);
        QFETCH(QString, box);
        ListedMenu editor("('Cafe', 1), ('Vin', 2)");
        if (isSelected) {
            editor.select(1);
        }
        editor.typeArticle(article, amount);
        QCOMPARE(editor.push("btn_Renommer"), QStringList(box));
        QCOMPARE(editor.text("txt_Article"), article.trimmed());
        QCOMPARE(editor.stored(), QString("1 Cafe 1; 2 Vin 2"));
        QCOMPARE(editor.names(), QStringList({"Cafe", "Vin"}));
        QCOMPARE(editor.hasSelection(), isSelected);
    }

    void noKeepsNameAndPrice()
    {
        ListedMenu editor("('Cafe', 1), ('L''eau', 2)");
        editor.select(1);
        editor.typeArticle("The", "3");
        QCOMPARE(editor.push("btn_Renommer", QMessageBox::No),
            QStringList("Renommer: Voulez-vous renommer : L'eau ... [Yes, No]"));
        QCOMPARE(editor.stored(), QString("1 Cafe 1; 2 L'eau 2"));
        QCOMPARE(editor.names(), QStringList({"Cafe", "L'eau"}));
        QVERIFY(editor.hasSelection());
    }

    void yesRenamesTheCurrentRowOnly()
    {
        ListedMenu editor("('Cafe', 1), ('The', 2), ('Vin', 3)");
        editor.select(0);
        editor.select(1, Qt::ControlModifier);
        editor.typeArticle(" L'eau ", "4,25");
        QCOMPARE(editor.push("btn_Renommer"),
            QStringList("Renommer: Voulez-vous renommer : The ... [Yes, No]"));
        QCOMPARE(editor.stored(), QString("1 Cafe 1; 2 L'eau 4.25; 3 Vin 3"));
        QCOMPARE(editor.names(), QStringList({"Cafe", "L'eau", "Vin"}));
        QCOMPARE(editor.text("txt_Article"), QString("L'eau"));
    }

    void aDeselectedRowIsStillTheCurrentOne()
    {
        ListedMenu editor("('Cafe', 1), ('The', 2), ('Vin', 3)");
        for (const int row : {0, 2, 2}) {
            editor.select(row, Qt::ControlModifier);
        }
        editor.typeArticle("Eau", "4");
        QCOMPARE(editor.push("btn_Renommer"),
            QStringList("Renommer: Voulez-vous renommer : Vin ... [Yes, No]"));
        QCOMPARE(editor.stored(), QString("1 Cafe 1; 2 The 2; 3 Eau 4"));
    }

    void allSelectedWithoutACurrentRowRenamesNone()
    {
        ListedMenu editor("('Cafe', 1), ('The', 2)");
        editor.list.selectAll();
        editor.typeArticle("Eau", "4");
        CapturedOutput output;
        QCOMPARE(editor.push("btn_Renommer"),
            QStringList("Renommer: Voulez-vous renommer :  ... [Yes, No]"));
        QCOMPARE(output.text().count("Errors Db::DbLoad sqlite3_errmsg : update Article set "
                                     "article = 'Eau', prix = 4 where id = "),
            1);
        QCOMPARE(editor.stored(), QString("1 Cafe 1; 2 The 2"));
        QCOMPARE(editor.names(), QStringList({"Cafe", "The"}));
    }
};

VENDEL_TEST(TestFormVendelSaisieArticleRename)
#include "tst_FormVendelSaisieArticle_rename.moc"
