// SPDX-License-Identifier: MIT
#include "tests/forms/OpenArticleEditor.h"
#include "tests/forms/TestTable.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/Captured.h"
#include "tests/support/TestProgram.h"

#include <QPushButton>

class TestFormVendelSaisieArticleRemove : public QObject
{
    Q_OBJECT

private slots:
    void removingNeedsASelection()
    {
        ListedMenu editor("('Cafe', 1)");
        QCOMPARE(editor.push("btn_Supprimer"),
            QStringList("Supprimer: Selectionner un/des article(s) dans le menu"));
        QCOMPARE(editor.stored(), QString("1 Cafe 1"));
    }

    void noKeepsTheArticle_data()
    {
        textColumns({"name", "box"});
        tableRow("a name", "The", "Supprimer: Voulez-vous supprimer : The ... [Yes, No]");
        tableRow("an amount", "33", "Supprimer: Voulez-vous supprimer : 33.00$ ... [Yes, No]");
        tableRow(
            "a tag", "<b>Cafe</b>", "Supprimer: Voulez-vous supprimer : <b>Cafe</b> ... [Yes, No]");
    }

    void noKeepsTheArticle()
    {
        QFETCH(QString, name);
        QFETCH(QString, box);
        ListedMenu editor("('" + name.toStdString() + "', 1), ('Vin', 2)");
        editor.select(0);
        QCOMPARE(editor.push("btn_Supprimer", QMessageBox::No), QStringList(box));
        QCOMPARE(editor.stored(), "1 " + name + " 1; 2 Vin 2");
        QCOMPARE(editor.names().size(), 2);
    }

    void aStrayKeyKeepsTheArticle()
    {
        for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return, Qt::Key_Space}) {
            ListedMenu editor("('Cafe', 1)");
            editor.select(0);
            const AnswerBox box(QMessageBox::Yes,
                [key](QMessageBox& question) { QTest::keyClick(question.defaultButton(), key); });
            click(editor.window, "btn_Supprimer");
            QVERIFY(box.wasShown());
            QCOMPARE(editor.stored(), QString("1 Cafe 1"));
        }
    }

    void yesRemovesTheCurrentRowOnly()
    {
        ListedMenu editor("('Cafe', 1), ('The', 2), ('Vin', 3)");
        editor.select(0);
        editor.select(2, Qt::ControlModifier);
        QCOMPARE(editor.push("btn_Supprimer"),
            QStringList("Supprimer: Voulez-vous supprimer : Vin ... [Yes, No]"));
        QCOMPARE(editor.stored(), QString("1 Cafe 1; 2 The 2"));
        QCOMPARE(editor.names(), QStringList({"Cafe", "The"}));
    }

    void aDeselectedRowIsStillTheCurrentOne()
    {
        ListedMenu editor("('Cafe', 1), ('The', 2), ('Vin', 3)");
        for (const int row : {0, 2, 2}) {
            editor.select(row, Qt::ControlModifier);
        }
        QCOMPARE(editor.push("btn_Supprimer"),
            QStringList("Supprimer: Voulez-vous supprimer : Vin ... [Yes, No]"));
        QCOMPARE(editor.stored(), QString("1 Cafe 1; 2 The 2"));
    }

    void allSelectedWithoutACurrentRowRemovesNone()
    {
        ListedMenu editor("('Cafe', 1), ('The', 2)");
        editor.list.selectAll();
        const CapturedOutput output;
        QCOMPARE(editor.push("btn_Supprimer"),
            QStringList("Supprimer: Voulez-vous supprimer :  ... [Yes, No]"));
        QCOMPARE(editor.stored(), QString("1 Cafe 1; 2 The 2"));
    }

    void removingTheLastArticleSaysSo()
    {
        ListedMenu editor("('Cafe', 1)");
        editor.select(0);
        QCOMPARE(editor.push("btn_Supprimer"),
            QStringList({"Supprimer: Voulez-vous supprimer : Cafe ... [Yes, No]",
                "Afficher: Le menu est vide\nAjouter des articles"}));
        QCOMPARE(editor.rows(), QStringList());
    }
};

VENDEL_TEST(TestFormVendelSaisieArticleRemove)
#include "tst_FormVendelSaisieArticle_remove.moc"
