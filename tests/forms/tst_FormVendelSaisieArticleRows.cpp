// SPDX-License-Identifier: MIT
#include "tests/forms/OpenArticleEditor.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/Captured.h"
#include "tests/support/TestProgram.h"

#include <QTableView>

namespace {
/// Selects or deselects a row with Ctrl held.
void toggleRow(QWidget& window, int row)
{
    auto& list = child<QTableView>(window, "tableView");
    QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::ControlModifier,
        list.visualRect(list.model()->index(row, 2)).center());
}
} // namespace

/// What the list holds before, under and after a box, and which of its rows a button means.
class TestFormVendelSaisieArticleRows : public QObject
{
    Q_OBJECT

private slots:
    void theHiddenColumnHasItsWidth()
    {
        OpenArticleEditor editor;
        auto& list = child<QTableView>(editor.window, "tableView");
        list.showColumn(0);
        QCOMPARE(list.columnWidth(0), 50);
    }

    void addingListsEachArticleOnce()
    {
        OpenArticleEditor editor("('Cafe', 1)");
        click(editor.window, "btn_Afficher");
        editor.type("txt_Article", "The");
        editor.type("txt_Montant", "2");
        click(editor.window, "btn_Ajouter");
        QCOMPARE(editor.names(), QStringList({QString("Cafe"), QString("The")}));
    }

    void aRefusedAmountKeepsTheList()
    {
        OpenArticleEditor editor("('Cafe', 1)");
        click(editor.window, "btn_Afficher");
        editor.type("txt_Article", "The");
        editor.type("txt_Montant", "3a");
        const AnswerBox box;
        click(editor.window, "btn_Ajouter");
        QCOMPARE(box.text(), QString("Saisir un montant valide"));
        QCOMPARE(editor.names(), QStringList(QString("Cafe")));
    }

    void foundArticlesStandUnderTheBoxOfTheirDuplicates()
    {
        OpenArticleEditor editor("('Cafe', 1), ('The', 2), ('Cafe', 3)");
        click(editor.window, "btn_Effacer_Saisie");
        editor.type("txt_Article", "caf");
        QStringList markedUnderTheBox;
        const AnswerBox box(
            QMessageBox::Ok, [&](QMessageBox&) { markedUnderTheBox = editor.marked(); });
        click(editor.window, "btn_Rechercher");
        QCOMPARE(box.title(), QString("Doublon"));
        QCOMPARE(markedUnderTheBox, QStringList(QString("1")));
        QCOMPARE(editor.names(), QStringList({QString("Cafe"), QString("Cafe")}));
    }

    void aCurrentRowWithoutASelectionIsNotRemoved()
    {
        OpenArticleEditor editor("('Cafe', 1)");
        click(editor.window, "btn_Afficher");
        toggleRow(editor.window, 0);
        toggleRow(editor.window, 0);
        QVERIFY(child<QTableView>(editor.window, "tableView").currentIndex().isValid());
        const AnswerBox box(QMessageBox::Yes);
        click(editor.window, "btn_Supprimer");
        QCOMPARE(box.text(), QString("Selectionner un/des article(s) dans le menu"));
        QCOMPARE(editor.stored(), QString("1 Cafe 1"));
    }

    void aCurrentRowWithoutASelectionIsNotRenamed()
    {
        OpenArticleEditor editor("('Cafe', 1)");
        click(editor.window, "btn_Afficher");
        toggleRow(editor.window, 0);
        toggleRow(editor.window, 0);
        editor.type("txt_Article", "The");
        editor.type("txt_Montant", "3");
        const AnswerBox box(QMessageBox::Yes);
        click(editor.window, "btn_Renommer");
        QCOMPARE(box.text(), QString("Selectionner 1 article dans le menu à renommer"));
        QCOMPARE(editor.stored(), QString("1 Cafe 1"));
    }

    void renamingMeansTheCurrentRowNotTheFirstSelected()
    {
        OpenArticleEditor editor("('Cafe', 1), ('The', 2), ('Vin', 3)");
        click(editor.window, "btn_Afficher");
        toggleRow(editor.window, 0);
        toggleRow(editor.window, 2);
        toggleRow(editor.window, 2);
        editor.type("txt_Article", "Eau");
        editor.type("txt_Montant", "4");
        const AnswerBox box(QMessageBox::Yes);
        click(editor.window, "btn_Renommer");
        QCOMPARE(box.text(), QString("Voulez-vous renommer : Vin ..."));
        QCOMPARE(editor.stored(), QString("1 Cafe 1; 2 The 2; 3 Eau 4"));
    }

    void allSelectedWithoutACurrentRowRenamesNone()
    {
        OpenArticleEditor editor("('Cafe', 1), ('The', 2)");
        click(editor.window, "btn_Afficher");
        child<QTableView>(editor.window, "tableView").selectAll();
        editor.type("txt_Article", "Eau");
        editor.type("txt_Montant", "4");
        const AnswerBox box(QMessageBox::Yes);
        QByteArray said;
        {
            CapturedOutput output;
            click(editor.window, "btn_Renommer");
            said = output.text();
        }
        QCOMPARE(box.text(), QString("Voulez-vous renommer :  ..."));
        QCOMPARE(
            said.count("Errors Db::DbLoad sqlite3_errmsg : update Article set article = 'Eau', "
                       "prix = 4 where id = "),
            1);
        QCOMPARE(editor.stored(), QString("1 Cafe 1; 2 The 2"));
        QCOMPARE(editor.names(), QStringList({QString("Cafe"), QString("The")}));
    }

    void aRefusedNumberAndANoKeepTheList()
    {
        OpenArticleEditor editor("('Cafe', 1), ('The', 2)");
        click(editor.window, "btn_Afficher");
        clickCell(editor.window, "tableView", 1, 2);
        editor.type("txt_Article", "Eau");
        for (const char* amount : {"3a", "3"}) {
            editor.type("txt_Montant", amount);
            const AnswerBox box(QMessageBox::No);
            click(editor.window, "btn_Renommer");
            QVERIFY(box.wasShown());
            QCOMPARE(editor.names(), QStringList({QString("Cafe"), QString("The")}));
            QVERIFY(child<QTableView>(editor.window, "tableView").selectionModel()->hasSelection());
        }
    }

    void aDeselectedRowIsNotCopiedWhileAnotherIsSelected()
    {
        OpenArticleEditor editor("('Cafe', 1), ('The', 2)");
        click(editor.window, "btn_Afficher");
        toggleRow(editor.window, 0);
        toggleRow(editor.window, 1);
        // The first of the two presses takes the selection of this row away.
        doubleClickCell(editor.window, "tableView", 1, 2, Qt::ControlModifier);
        QVERIFY(child<QTableView>(editor.window, "tableView").selectionModel()->hasSelection());
        QCOMPARE(editor.text("txt_Article"), QString());
        QCOMPARE(editor.text("txt_Montant"), QString());
    }

    void everyDollarOfAPriceIsTakenAway()
    {
        OpenArticleEditor editor("('Cafe', '$ 2 $ ou 3'), ('The', 'offert')");
        click(editor.window, "btn_Afficher");
        doubleClickCell(editor.window, "tableView", 0, 2);
        QCOMPARE(editor.text("txt_Montant"), QString(" 2  ou 3"));
        doubleClickCell(editor.window, "tableView", 1, 2);
        QCOMPARE(editor.text("txt_Montant"), QString("offert"));
    }
};

VENDEL_TEST(TestFormVendelSaisieArticleRows)
#include "tst_FormVendelSaisieArticleRows.moc"
