// SPDX-License-Identifier: MIT
#include "tests/forms/OpenArticleEditor.h"
#include "tests/forms/TestTable.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/TestProgram.h"

namespace {
const char* const tooLong = "Nbre caractères: Nombre de caractères ne doient pas dépasser : 15";
} // namespace

/// What the two fields take from the keyboard, the clipboard and the list.
class TestFormVendelSaisieArticleFields : public QObject
{
    Q_OBJECT

private slots:
    void aTipCountsTheLetters()
    {
        OpenArticleEditor editor;
        editor.window.setGeometry(40, 30, 641, 626);
        const AnswerBox box;
        editor.type("txt_Article", "C");
        QCOMPARE(tipText(), QString("Article Nbre caractères : 1"));
        QVERIFY(tipStandsAt(QPoint(440, 50)));
        editor.type("txt_Article", "Quinze lettres.");
        QCOMPARE(tipText(), QString("Article Nbre caractères : 15"));
        QCOMPARE(editor.text("txt_Article"), QString("Quinze lettres."));
        QVERIFY(!box.wasShown());
    }

    void theCountTipCoversNoField()
    {
        OpenArticleEditor editor;
        editor.type("txt_Article", "Cafe");
        const auto& field = child<QLineEdit>(editor.window, "txt_Article");
        const QRect onScreen(field.mapToGlobal(QPoint(0, 0)), field.size());
        QVERIFY(!tipGeometry().intersects(onScreen));
    }

    void theSixteenthLetterIsTakenBack()
    {
        OpenArticleEditor editor;
        const AnswerBox box;
        editor.type("txt_Article", "Seize lettres...");
        QCOMPARE(box.said(), QStringList(tooLong));
        QCOMPARE(box.icon(), QMessageBox::Information);
        QCOMPARE(box.buttons(), QMessageBox::StandardButtons(QMessageBox::Ok));
        QCOMPARE(box.parent(), &editor.window);
        QCOMPARE(editor.text("txt_Article"), QString("Seize lettres.."));
        QCOMPARE(tipText(), QString("Article Nbre caractères : 15"));
    }

    void aLetterTypedInTheMiddleDropsTheLast()
    {
        OpenArticleEditor editor;
        editor.type("txt_Article", "123456789012345");
        const AnswerBox box;
        auto& field = child<QLineEdit>(editor.window, "txt_Article");
        QTest::keyClick(&field, Qt::Key_Home);
        QTest::keyClick(&field, 'x');
        QVERIFY(box.wasShown());
        QCOMPARE(editor.text("txt_Article"), QString("x12345678901234"));
    }

    void eachSurplusLetterOfAPastedNameHasItsBox()
    {
        OpenArticleEditor editor;
        const AnswerBox box;
        editor.paste("txt_Article", "ABCDEFGHIJKLMNOPQRST");
        QCOMPARE(box.said(), QStringList({tooLong, tooLong, tooLong, tooLong, tooLong}));
        QCOMPARE(editor.text("txt_Article"), QString("ABCDEFGHIJKLMNO"));
    }

    void theFieldTakesFortyLetters()
    {
        OpenArticleEditor editor;
        const AnswerBox box;
        editor.paste("txt_Article", QString(1000, 'a'));
        QCOMPARE(box.texts().size(), 25);
        QCOMPARE(editor.text("txt_Article"), QString("aaaaaaaaaaaaaaa"));
    }

    void effacerSaisieEmptiesBothFields()
    {
        OpenArticleEditor editor;
        editor.typeArticle("Cafe", "1,5");
        QCOMPARE(editor.push("btn_Effacer_Saisie"), QStringList());
        QCOMPARE(editor.text("txt_Article"), QString());
        QCOMPARE(editor.text("txt_Montant"), QString());
        QCOMPARE(tipText(), QString("Article Nbre caractères : 0"));
    }

    void aDoubleClickCopiesNameAndPrice_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("column");
        textColumns({"name", "price"});
        tableRow("an amount and a thousand", 0, 2, "33.00$", "1,234.50");
        tableRow("on the price", 1, 3, "Cafe", "1.20");
        tableRow("on the mark", 2, 1, "L'eau", "2.00");
        tableRow("more than one dollar", 3, 2, "Pain", " 2  ou 3");
        tableRow("no amount", 4, 2, "The", "offert");
    }

    void aDoubleClickCopiesNameAndPrice()
    {
        QFETCH(int, row);
        QFETCH(int, column);
        ListedMenu editor("('33', 1234.5), ('Cafe', 1.2), ('L''eau', 2), ('Pain', '$ 2 $ ou 3'), "
                          "('The', 'offert')");
        doubleClickCell(editor.window, "tableView", row, column);
        QTEST(editor.text("txt_Article"), "name");
        QTEST(editor.text("txt_Montant"), "price");
    }

    void aCopiedThousandIsNoAmountToRename()
    {
        ListedMenu editor("('33', 1234.5)");
        doubleClickCell(editor.window, "tableView", 0, 2);
        QCOMPARE(editor.push("btn_Renommer"), QStringList("Renommer: Saisir un montant valide"));
        QCOMPARE(editor.stored(), QString("1 33 1234.5"));
    }

    void aDoubleClickThatDeselectsCopiesNothing()
    {
        ListedMenu editor("('Cafe', 1), ('The', 2)");
        editor.select(0);
        editor.select(1, Qt::ControlModifier);
        // The first of a double click's two presses takes the selection of its row away.
        doubleClickCell(editor.window, "tableView", 1, 2, Qt::ControlModifier);
        QVERIFY(editor.hasSelection());
        doubleClickCell(editor.window, "tableView", 0, 2, Qt::ControlModifier);
        QVERIFY(!editor.hasSelection());
        QCOMPARE(editor.text("txt_Article"), QString());
        QCOMPARE(editor.text("txt_Montant"), QString());
    }

    void aDoubleClickOnALongNameCutsItAndCopiesThePrice()
    {
        ListedMenu editor("('ABCDEFGHIJKLMNOPQR', 3)");
        const AnswerBox box;
        doubleClickCell(editor.window, "tableView", 0, 2);
        QCOMPARE(box.texts().size(), 3);
        QCOMPARE(editor.text("txt_Article"), QString("ABCDEFGHIJKLMNO"));
        QCOMPARE(editor.text("txt_Montant"), QString("3.00"));
    }

    void theLettersOfANameAreCountedAloud()
    {
        OpenArticleEditor editor;
        editor.type("txt_Article", "Cafe");
        QCOMPARE(child<QLineEdit>(editor.window, "txt_Article").accessibleDescription(),
            QString("Article Nbre caractères : 4"));
    }
};

VENDEL_TEST(TestFormVendelSaisieArticleFields)
#include "tst_FormVendelSaisieArticle_fields.moc"
