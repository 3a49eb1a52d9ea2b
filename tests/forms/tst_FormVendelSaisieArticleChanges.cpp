// SPDX-License-Identifier: MIT
#include "tests/forms/OpenArticleEditor.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/Captured.h"
#include "tests/support/Translation.h"
#include "tests/support/TestProgram.h"

#include <QTableView>

namespace {
const QMessageBox::StandardButtons yesAndNo = QMessageBox::Yes | QMessageBox::No;

/// Selects a row with a click, more rows with Ctrl held.
void selectRow(QWidget& window, int row, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    auto& list = child<QTableView>(window, "tableView");
    QTest::mouseClick(list.viewport(), Qt::LeftButton, modifiers,
        list.visualRect(list.model()->index(row, 2)).center());
}
} // namespace

class TestFormVendelSaisieArticleChanges : public QObject
{
    Q_OBJECT

private slots:
    void removingNeedsASelection()
    {
        OpenArticleEditor editor("('Cafe', 1)");
        click(editor.window, "btn_Afficher");
        const AnswerBox box;
        click(editor.window, "btn_Supprimer");
        QCOMPARE(box.title(), QString("Supprimer"));
        QCOMPARE(box.text(), QString("Selectionner un/des article(s) dans le menu"));
        QCOMPARE(box.buttons(), QMessageBox::StandardButtons(QMessageBox::Ok));
        QCOMPARE(box.strays(), 0);
        QCOMPARE(editor.stored(), QString("1 Cafe 1"));
    }

    void removingAsksForTheName()
    {
        OpenArticleEditor editor("('Cafe', 1), ('33', 2)");
        click(editor.window, "btn_Afficher");
        selectRow(editor.window, 0);
        const AnswerBox box(QMessageBox::No);
        click(editor.window, "btn_Supprimer");
        QCOMPARE(box.title(), QString("Supprimer"));
        QCOMPARE(box.text(), QString("Voulez-vous supprimer : 33.00$ ..."));
        QCOMPARE(box.buttons(), yesAndNo);
        QCOMPARE(box.icon(), QMessageBox::Information);
        QCOMPARE(box.parent(), &editor.window);
    }

    void noKeepsTheArticle()
    {
        OpenArticleEditor editor("('Cafe', 1), ('The', 2)");
        click(editor.window, "btn_Afficher");
        selectRow(editor.window, 1);
        const AnswerBox box(QMessageBox::No);
        click(editor.window, "btn_Supprimer");
        QCOMPARE(box.strays(), 0);
        QCOMPARE(editor.stored(), QString("1 Cafe 1; 2 The 2"));
        QCOMPARE(rowCount(editor.window, "tableView"), 2);
    }

    void escapeKeepsTheArticle()
    {
        OpenArticleEditor editor("('Cafe', 1)");
        click(editor.window, "btn_Afficher");
        selectRow(editor.window, 0);
        const AnswerBox box(QMessageBox::NoButton,
            [](QMessageBox& question) { QTest::keyClick(&question, Qt::Key_Escape); });
        click(editor.window, "btn_Supprimer");
        QVERIFY(box.wasShown());
        QCOMPARE(editor.stored(), QString("1 Cafe 1"));
    }

    void yesRemovesTheCurrentRowOnly()
    {
        OpenArticleEditor editor("('Cafe', 1), ('The', 2), ('Vin', 3)");
        click(editor.window, "btn_Afficher");
        selectRow(editor.window, 0);
        selectRow(editor.window, 2, Qt::ControlModifier);
        const AnswerBox box(QMessageBox::Yes);
        click(editor.window, "btn_Supprimer");
        QCOMPARE(box.text(), QString("Voulez-vous supprimer : Vin ..."));
        QCOMPARE(editor.stored(), QString("1 Cafe 1; 2 The 2"));
        QCOMPARE(editor.names(), QStringList({QString("Cafe"), QString("The")}));
    }

    void aDeselectedRowIsStillTheCurrentOne()
    {
        OpenArticleEditor editor("('Cafe', 1), ('The', 2), ('Vin', 3)");
        click(editor.window, "btn_Afficher");
        selectRow(editor.window, 0);
        selectRow(editor.window, 2, Qt::ControlModifier);
        selectRow(editor.window, 2, Qt::ControlModifier);
        const AnswerBox box(QMessageBox::Yes);
        click(editor.window, "btn_Supprimer");
        QCOMPARE(box.text(), QString("Voulez-vous supprimer : Vin ..."));
        QCOMPARE(editor.stored(), QString("1 Cafe 1; 2 The 2"));
    }

    void allSelectedWithoutACurrentRowRemovesNone()
    {
        OpenArticleEditor editor("('Cafe', 1), ('The', 2)");
        click(editor.window, "btn_Afficher");
        child<QTableView>(editor.window, "tableView").selectAll();
        const CapturedOutput output;
        const AnswerBox box(QMessageBox::Yes);
        click(editor.window, "btn_Supprimer");
        QCOMPARE(box.text(), QString("Voulez-vous supprimer :  ..."));
        QCOMPARE(editor.stored(), QString("1 Cafe 1; 2 The 2"));
    }

    void removingTheLastArticleSaysSo()
    {
        OpenArticleEditor editor("('Cafe', 1)");
        click(editor.window, "btn_Afficher");
        selectRow(editor.window, 0);
        const AnswerBox box(QMessageBox::Yes);
        click(editor.window, "btn_Supprimer");
        QCOMPARE(box.texts(),
            QStringList({QString("Voulez-vous supprimer : Cafe ..."),
                QString("Le menu est vide\nAjouter des articles")}));
        QCOMPARE(rowCount(editor.window, "tableView"), 0);
    }

    void aNameLikeATagIsAskedAsItStands()
    {
        OpenArticleEditor editor("('<b>Cafe</b>', 1)");
        click(editor.window, "btn_Afficher");
        selectRow(editor.window, 0);
        const AnswerBox box(QMessageBox::No);
        click(editor.window, "btn_Supprimer");
        QCOMPARE(box.text(), QString("Voulez-vous supprimer : <b>Cafe</b> ..."));
        QCOMPARE(box.format(), Qt::PlainText);
    }

    void renamingNeedsBothFieldsFirst_data()
    {
        QTest::addColumn<QByteArray>("article");
        QTest::addColumn<QByteArray>("amount");
        QTest::newRow("neither") << QByteArray() << QByteArray();
        QTest::newRow("no amount") << QByteArray("  The ") << QByteArray();
        QTest::newRow("no article and no number") << QByteArray("  ") << QByteArray("abc");
    }

    void renamingNeedsBothFieldsFirst()
    {
        QFETCH(QByteArray, article);
        QFETCH(QByteArray, amount);
        OpenArticleEditor editor("('Cafe', 1)");
        click(editor.window, "btn_Afficher");
        editor.type("txt_Article", article.constData());
        editor.type("txt_Montant", amount.constData());
        const AnswerBox box;
        click(editor.window, "btn_Renommer");
        QCOMPARE(box.title(), QString("Renommer"));
        QCOMPARE(box.text(), QString("Saisir un article et son montant"));
        QCOMPARE(box.strays(), 0);
        QCOMPARE(editor.text("txt_Article"), QString::fromLatin1(article.trimmed()));
    }

    void renamingNeedsASelectionBeforeANumber()
    {
        OpenArticleEditor editor("('Cafe', 1)");
        click(editor.window, "btn_Afficher");
        editor.type("txt_Article", "The");
        editor.type("txt_Montant", "abc");
        const AnswerBox box;
        click(editor.window, "btn_Renommer");
        QCOMPARE(box.title(), QString("Renommer"));
        QCOMPARE(box.text(), QString("Selectionner 1 article dans le menu à renommer"));
        QCOMPARE(box.strays(), 0);
    }

    void renamingNeedsANumber()
    {
        OpenArticleEditor editor("('Cafe', 1)");
        click(editor.window, "btn_Afficher");
        selectRow(editor.window, 0);
        editor.type("txt_Article", "The");
        editor.type("txt_Montant", "3a");
        const AnswerBox box;
        click(editor.window, "btn_Renommer");
        QCOMPARE(box.title(), QString("Renommer"));
        QCOMPARE(box.text(), QString("Saisir un montant valide"));
        QCOMPARE(box.strays(), 0);
        QCOMPARE(editor.stored(), QString("1 Cafe 1"));
    }

    void renamingAsksForTheStoredName()
    {
        OpenArticleEditor editor("('L''eau', 1)");
        click(editor.window, "btn_Afficher");
        selectRow(editor.window, 0);
        editor.type("txt_Article", "The");
        editor.type("txt_Montant", "3");
        const AnswerBox box(QMessageBox::No);
        click(editor.window, "btn_Renommer");
        QCOMPARE(box.title(), QString("Renommer"));
        QCOMPARE(box.text(), QString("Voulez-vous renommer : L'eau ..."));
        QCOMPARE(box.buttons(), yesAndNo);
        QCOMPARE(box.icon(), QMessageBox::Information);
    }

    void noKeepsNameAndPrice()
    {
        OpenArticleEditor editor("('Cafe', 1)");
        click(editor.window, "btn_Afficher");
        selectRow(editor.window, 0);
        editor.type("txt_Article", "The");
        editor.type("txt_Montant", "3");
        const AnswerBox box(QMessageBox::No);
        click(editor.window, "btn_Renommer");
        QCOMPARE(editor.stored(), QString("1 Cafe 1"));
        QCOMPARE(editor.names(), QStringList(QString("Cafe")));
    }

    void yesRenamesTheCurrentRowOnly()
    {
        OpenArticleEditor editor("('Cafe', 1), ('The', 2), ('Vin', 3)");
        click(editor.window, "btn_Afficher");
        selectRow(editor.window, 0);
        selectRow(editor.window, 1, Qt::ControlModifier);
        editor.type("txt_Article", " L'eau ");
        editor.type("txt_Montant", "4,25");
        const AnswerBox box(QMessageBox::Yes);
        click(editor.window, "btn_Renommer");
        QCOMPARE(box.strays(), 0);
        QCOMPARE(editor.stored(), QString("1 Cafe 1; 2 L'eau 4.25; 3 Vin 3"));
        QCOMPARE(editor.names(), QStringList({QString("Cafe"), QString("L'eau"), QString("Vin")}));
        QCOMPARE(editor.text("txt_Article"), QString("L'eau"));
    }

    void theUpdateIsSplicedFromTheFields()
    {
        OpenArticleEditor editor("('Cafe', 1)");
        click(editor.window, "btn_Afficher");
        selectRow(editor.window, 0);
        editor.type("txt_Article", "L'eau");
        editor.type("txt_Montant", "4,25");
        editor.shop.sql("drop table Article");
        const CapturedLog log;
        const AnswerBox box(QMessageBox::Yes);
        QByteArray said;
        {
            CapturedOutput output;
            click(editor.window, "btn_Renommer");
            said = output.text();
        }
        QCOMPARE(said,
            QByteArray(
                "Errors Db::DbLoad sqlite3_errmsg : update Article set article = 'L''eau', prix "
                "= 4.25 where id = 1 no such table: Article\n"
                "Errors Db::DbLoad sqlite3_errmsg : select * from Article order by Article asc "
                "no such table: Article\n"));
    }

    void failuresAreLogged_data()
    {
        QTest::addColumn<QByteArray>("button");
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("remove") << QByteArray("btn_Supprimer")
                                << QByteArray("Selectionner un/des article(s) dans le menu");
        QTest::newRow("rename") << QByteArray("btn_Renommer")
                                << QByteArray("Saisir un article et son montant");
    }

    void failuresAreLogged()
    {
        QFETCH(QByteArray, button);
        QFETCH(QByteArray, text);
        OpenArticleEditor editor;
        const CapturedLog log;
        const FailingText failure(text.constData());
        click(editor.window, button.constData());
        QCOMPARE(log.criticals(),
            QStringList(QString("Errors FormVendelSaisieArticle on_%1_clicked : no text")
                            .arg(QString::fromLatin1(button))));
        QVERIFY(editor.window.isVisible());
    }

    void aFailingRemovalIsLogged()
    {
        OpenArticleEditor editor("('Cafe', 1)");
        click(editor.window, "btn_Afficher");
        selectRow(editor.window, 0);
        const CapturedLog log;
        const FailingText failure("Voulez-vous supprimer : ");
        click(editor.window, "btn_Supprimer");
        QCOMPARE(log.criticals(),
            QStringList(
                QString("Errors FormVendelSaisieArticle on_btn_Supprimer_clicked : no text")));
        QCOMPARE(editor.stored(), QString("1 Cafe 1"));
    }
};

VENDEL_TEST(TestFormVendelSaisieArticleChanges)
#include "tst_FormVendelSaisieArticleChanges.moc"
