// SPDX-License-Identifier: MIT
#include "tests/forms/OpenArticleEditor.h"
#include "tests/forms/TestTable.h"
#include "tests/support/Captured.h"
#include "tests/support/StatementLog.h"
#include "tests/support/TestProgram.h"

class TestFormVendelSaisieArticleSearch : public QObject
{
    Q_OBJECT

private slots:
    void anEmptyFieldIsRefused()
    {
        for (const char* term : {"", "   "}) {
            ListedMenu editor("('Cafe', 1)");
            editor.type("txt_Article", term);
            QCOMPARE(editor.push("btn_Rechercher"), QStringList("Rechercher: Saisir un article"));
            QCOMPARE(editor.text("txt_Article"), QString());
            QCOMPARE(editor.names(), QStringList("Cafe"));
        }
    }

    void findsAPartOfTheName_data()
    {
        textColumns({"articles", "term", "found"});
        tableRow("in any case", "('The vert', 1), ('Cafe', 2), ('Grand THE', 3)", "the",
            "Grand THE|The vert");
        tableRow("without the blanks around it", "('Cafe', 1), ('The', 2)", "  af ", "Cafe");
        tableRow("with an apostrophe", "('L''eau', 1), ('Leau', 2)", "L'e", "L'eau");
        tableRow("nowhere", "('Cafe', 1)", "xyz", "");
        tableRow("with duplicates elsewhere", "('Cafe', 1), ('The', 2), ('Cafe', 3)", "the", "The");
        const char* odd = "('Cafe', 1), ('The', 2), ('a_b', 3), ('Remise 10%', 4)";
        tableRow("per cent", odd, "%", "a_b|Cafe|Remise 10%|The");
        tableRow("between", odd, "c%f", "Cafe");
        tableRow("one letter", odd, "c_fe", "Cafe");
        tableRow("underscore", odd, "____", "Cafe|Remise 10%");
        tableRow("double quote", odd, "\"", "");
        tableRow("semicolon", odd, "';--", "");
        tableRow("backslash", odd, "\\", "");
    }

    void findsAPartOfTheName()
    {
        QFETCH(QString, articles);
        QFETCH(QString, term);
        ListedMenu editor(articles.toStdString());
        editor.type("txt_Article", term);
        CapturedOutput output;
        QCOMPARE(editor.push("btn_Rechercher"), QStringList());
        QTEST(editor.names().join('|'), "found");
        QCOMPARE(editor.marked(), QString());
        QCOMPARE(editor.text("txt_Article"), term.trimmed());
        QCOMPARE(output.text(), QByteArray());
    }

    void pricesAreShownAsInTheMenu()
    {
        OpenArticleEditor editor("('33', 1234.5), ('Cafe', 1)");
        editor.type("txt_Article", "3");
        editor.push("btn_Rechercher");
        QCOMPARE(editor.rows(), QStringList("1||33.00$|1,234.50$"));
    }

    void duplicatesAmongTheFoundAreCounted()
    {
        OpenArticleEditor editor("('Cafe', 1), ('The', 2), ('cafe', 3), ('The', 4), ('Vin', 5)");
        editor.type("txt_Article", "caf");
        QCOMPARE(editor.push("btn_Rechercher"),
            QStringList("Doublon: Supprimer le(s) 1 doublon(s) note(s) X..."));
        QCOMPARE(editor.names().size(), 2);
        QCOMPARE(editor.marked(), QString("1"));
    }

    void asksForTheDuplicatesOnce()
    {
        OpenArticleEditor editor("('Eau', 1), ('eau', 2), ('Eau vive', 3)");
        editor.type("txt_Article", "eau");
        const StatementLog log;
        QCOMPARE(editor.push("btn_Rechercher"),
            QStringList("Doublon: Supprimer le(s) 1 doublon(s) note(s) X..."));
        QCOMPARE(editor.names().size(), 3);
        QCOMPARE(editor.marked(), QString("1"));
        QCOMPARE(log.count("select d.id, d.article from"), 1L);
        QCOMPARE(log.statements().size(), std::size_t{3});
    }
};

VENDEL_TEST(TestFormVendelSaisieArticleSearch)
#include "tst_FormVendelSaisieArticle_search.moc"
