// SPDX-License-Identifier: MIT
#include "tests/forms/OpenArticleEditor.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/TestProgram.h"

/// Every box of the article editor is an information box that stands on the editor.
class TestFormVendelSaisieArticleBoxes : public QObject
{
    Q_OBJECT

private slots:
    void aBoxStandsOnTheEditor_data()
    {
        QTest::addColumn<QByteArray>("button");
        QTest::addColumn<bool>("selected");
        QTest::addColumn<QByteArray>("article");
        QTest::addColumn<QByteArray>("amount");
        QTest::addColumn<QString>("text");
        const auto row = [](const char* name, const char* button, bool selected,
                             const char* article, const char* amount, const char* text) {
            QTest::newRow(name) << QByteArray(button) << selected << QByteArray(article)
                                << QByteArray(amount) << QString::fromUtf8(text);
        };
        row("doubled in the menu", "btn_Afficher", false, "", "",
            "Supprimer le(s) 1 doublon(s) note(s) X...");
        row("doubled among the found", "btn_Rechercher", false, "Cafe", "",
            "Supprimer le(s) 1 doublon(s) note(s) X...");
        row("search for nothing", "btn_Rechercher", false, "", "", "Saisir un article");
        row("add nothing", "btn_Ajouter", false, "", "", "Saisir un article avec son montant");
        row("add no number", "btn_Ajouter", false, "The", "3a", "Saisir un montant valide");
        row("remove nothing", "btn_Supprimer", false, "", "",
            "Selectionner un/des article(s) dans le menu");
        row("remove", "btn_Supprimer", true, "", "", "Voulez-vous supprimer : Cafe ...");
        row("rename to nothing", "btn_Renommer", true, "", "", "Saisir un article et son montant");
        row("rename nothing", "btn_Renommer", false, "The", "3",
            "Selectionner 1 article dans le menu à renommer");
        row("rename without a number", "btn_Renommer", true, "The", "3a",
            "Saisir un montant valide");
        row("rename", "btn_Renommer", true, "The", "3", "Voulez-vous renommer : Cafe ...");
    }

    void aBoxStandsOnTheEditor()
    {
        QFETCH(QByteArray, button);
        QFETCH(bool, selected);
        QFETCH(QByteArray, article);
        QFETCH(QByteArray, amount);
        OpenArticleEditor editor("('Cafe', 1), ('Cafe', 2)");
        if (selected) {
            const AnswerBox duplicates;
            click(editor.window, "btn_Afficher");
            clickCell(editor.window, "tableView", 0, 2);
        }
        editor.type("txt_Article", article.constData());
        editor.type("txt_Montant", amount.constData());
        const AnswerBox box(QMessageBox::No);
        click(editor.window, button.constData());
        QTEST(box.text(), "text");
        QCOMPARE(box.parent(), &editor.window);
        QCOMPARE(box.icon(), QMessageBox::Information);
        QCOMPARE(box.strays(), 0);
        QCOMPARE(editor.stored(), QString("1 Cafe 1; 2 Cafe 2"));
    }

    void theBoxOfASurplusLetterStandsOnTheEditor()
    {
        OpenArticleEditor editor;
        const AnswerBox box;
        editor.paste("txt_Article", QString("Seize lettres..."));
        QCOMPARE(box.title(), QString("Nbre caractères"));
        QCOMPARE(box.parent(), &editor.window);
    }
};

VENDEL_TEST(TestFormVendelSaisieArticleBoxes)
#include "tst_FormVendelSaisieArticleBoxes.moc"
