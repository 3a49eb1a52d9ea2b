// SPDX-License-Identifier: MIT
#include "tests/forms/OpenArticleEditor.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/Captured.h"
#include "tests/support/Translation.h"
#include "tests/support/LeakCheck.h"
#include "tests/support/TestProgram.h"

#include <QMouseEvent>
#include <QTableView>
#include <QToolTip>

class TestFormVendelSaisieArticleFields : public QObject
{
    Q_OBJECT

private slots:
    void cleanup()
    {
        QToolTip::hideText();
        QTRY_VERIFY(tipText().isEmpty());
    }

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

    void theSixteenthLetterIsTakenBack()
    {
        OpenArticleEditor editor;
        const AnswerBox box;
        editor.type("txt_Article", "Seize lettres...");
        QCOMPARE(box.title(), QString("Nbre caractères"));
        QCOMPARE(box.text(), QString("Nombre de caractères ne doient pas dépasser : 15"));
        QCOMPARE(box.icon(), QMessageBox::Information);
        QCOMPARE(box.buttons(), QMessageBox::StandardButtons(QMessageBox::Ok));
        QCOMPARE(box.strays(), 0);
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

    void eachSurplusLetterHasItsBox()
    {
        OpenArticleEditor editor;
        const AnswerBox box;
        editor.paste("txt_Article", QString("ABCDEFGHIJKLMNOPQRST"));
        QCOMPARE(box.texts().size(), 5);
        QCOMPARE(
            box.texts().constLast(), QString("Nombre de caractères ne doient pas dépasser : 15"));
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

    void theCountTipCoversNoField()
    {
        OpenArticleEditor editor;
        editor.type("txt_Article", "Cafe");
        const auto& field = child<QLineEdit>(editor.window, "txt_Article");
        const QRect onScreen(field.mapToGlobal(QPoint(0, 0)), field.size());
        QVERIFY(!tipGeometry().intersects(onScreen));
    }

    void effacerSaisieEmptiesBothFields()
    {
        OpenArticleEditor editor;
        editor.type("txt_Article", "Cafe");
        editor.type("txt_Montant", "1,5");
        const AnswerBox box;
        click(editor.window, "btn_Effacer_Saisie");
        QCOMPARE(editor.text("txt_Article"), QString());
        QCOMPARE(editor.text("txt_Montant"), QString());
        QCOMPARE(tipText(), QString("Article Nbre caractères : 0"));
        QVERIFY(!box.wasShown());
    }

    void aDoubleClickCopiesNameAndPrice()
    {
        OpenArticleEditor editor("('Cafe', 1.2), ('L''eau', 2)");
        click(editor.window, "btn_Afficher");
        doubleClickCell(editor.window, "tableView", 1, 1);
        QCOMPARE(editor.text("txt_Article"), QString("L'eau"));
        QCOMPARE(editor.text("txt_Montant"), QString("2.00"));
        doubleClickCell(editor.window, "tableView", 0, 3);
        QCOMPARE(editor.text("txt_Article"), QString("Cafe"));
        QCOMPARE(editor.text("txt_Montant"), QString("1.20"));
    }

    void aDoubleClickOnAThousandKeepsItsGroupSeparator()
    {
        OpenArticleEditor editor("('33', 1234.5)");
        click(editor.window, "btn_Afficher");
        doubleClickCell(editor.window, "tableView", 0, 2);
        QCOMPARE(editor.text("txt_Article"), QString("33.00$"));
        QCOMPARE(editor.text("txt_Montant"), QString("1,234.50"));
        const AnswerBox box;
        click(editor.window, "btn_Renommer");
        QCOMPARE(box.text(), QString("Saisir un montant valide"));
        QCOMPARE(editor.stored(), QString("1 33 1234.5"));
    }

    void aDoubleClickThatDeselectsCopiesNothing()
    {
        OpenArticleEditor editor("('Cafe', 1)");
        click(editor.window, "btn_Afficher");
        doubleClickCell(editor.window, "tableView", 0, 2);
        click(editor.window, "btn_Effacer_Saisie");
        // The first of the two presses takes the selection away.
        doubleClickCell(editor.window, "tableView", 0, 2, Qt::ControlModifier);
        QCOMPARE(editor.text("txt_Article"), QString());
        QCOMPARE(editor.text("txt_Montant"), QString());
    }

    void aDoubleClickOnALongNameCutsItAndCopiesThePrice()
    {
        OpenArticleEditor editor("('ABCDEFGHIJKLMNOPQR', 3)");
        click(editor.window, "btn_Afficher");
        const AnswerBox box;
        doubleClickCell(editor.window, "tableView", 0, 2);
        QCOMPARE(box.texts().size(), 3);
        QCOMPARE(editor.text("txt_Article"), QString("ABCDEFGHIJKLMNO"));
        QCOMPARE(editor.text("txt_Montant"), QString("3.00"));
    }

    void hoveringARowShowsItsTip()
    {
        OpenArticleEditor editor("('Cafe', 1), ('The', 2)");
        click(editor.window, "btn_Afficher");
        hoverCell(editor.window, "tableView", 1, 1);
        QCOMPARE(tipText(),
            QString("Menu\nDblClick sur : The\nPour l'afficher dans Article et Montant"));
        const auto& list = child<QTableView>(editor.window, "tableView");
        const QPoint mouse = list.visualRect(list.model()->index(1, 1)).center();
        QVERIFY(tipStandsAt(mouse + QPoint(350, 130)));
    }

    void hoveringTheEmptyAreaHidesTheTip()
    {
        OpenArticleEditor editor("('Cafe', 1)");
        click(editor.window, "btn_Afficher");
        hoverCell(editor.window, "tableView", 0, 2);
        QVERIFY(!tipText().isEmpty());
        QWidget& viewport = *child<QTableView>(editor.window, "tableView").viewport();
        const QPoint below(100, 400);
        QMouseEvent move(QEvent::MouseMove, below, viewport.mapToGlobal(below), Qt::NoButton,
            Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(&viewport, &move);
        QTRY_VERIFY(tipText().isEmpty());
    }

    void theTopLeftPixelHasNoTip()
    {
        OpenArticleEditor editor("('Cafe', 1)");
        click(editor.window, "btn_Afficher");
        QWidget& viewport = *child<QTableView>(editor.window, "tableView").viewport();
        const auto moveTo = [&viewport](QPoint point) {
            QMouseEvent move(QEvent::MouseMove, point, point, viewport.mapToGlobal(point),
                Qt::NoButton, Qt::NoButton, Qt::NoModifier);
            QApplication::sendEvent(&viewport, &move);
        };
        moveTo(QPoint(0, 1));
        QVERIFY(!tipText().isEmpty());
        moveTo(QPoint(0, 0));
        QTRY_VERIFY(tipText().isEmpty());
        moveTo(QPoint(1, 0));
        QVERIFY(!tipText().isEmpty());
    }

    void aNameLikeATagIsShownAsItStands()
    {
        OpenArticleEditor editor("('<b>Cafe</b>', 1)");
        click(editor.window, "btn_Afficher");
        hoverCell(editor.window, "tableView", 0, 2);
        QCOMPARE(tipText(),
            QString("Menu\nDblClick sur : <b>Cafe</b>\nPour l'afficher dans Article et Montant"));
    }

    void onlyTheListIsWatchedAndNothingIsSwallowed()
    {
        OpenArticleEditor editor("('Cafe', 1)");
        click(editor.window, "btn_Afficher");
        auto& list = child<QTableView>(editor.window, "tableView");
        const QPoint point = list.visualRect(list.model()->index(0, 2)).center();
        QMouseEvent move(
            QEvent::MouseMove, point, point, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
        QVERIFY(!editor.window.eventFilter(&list, &move));
        QVERIFY(tipText().isEmpty());
        QVERIFY(!editor.window.eventFilter(list.viewport(), &move));
        QVERIFY(!tipText().isEmpty());
        QVERIFY(list.viewport()->hasMouseTracking());
    }

    void failuresAreLogged()
    {
        const LeakCheckPause pause;
        OpenArticleEditor editor("('Cafe', 1)");
        click(editor.window, "btn_Afficher");
        const CapturedLog log;
        const auto prefix = [](const char* slot) {
            return QString("Errors FormVendelSaisieArticle ") + QLatin1String(slot)
                + QString(" : no text");
        };
        {
            const FailingText failure("Article Nbre caractères : ");
            editor.type("txt_Article", "C");
            QCOMPARE(log.criticals(), QStringList(prefix("on_txt_Article_textChanged")));
        }
        {
            const FailingText failure("Menu\nDblClick sur : ");
            hoverCell(editor.window, "tableView", 0, 2);
            QCOMPARE(log.criticals().constLast(), prefix("eventFilter"));
        }
        connect(&child<QLineEdit>(editor.window, "txt_Montant"), &QLineEdit::textChanged,
            [] { throw std::runtime_error("no text"); });
        doubleClickCell(editor.window, "tableView", 0, 2);
        QCOMPARE(log.criticals().constLast(), prefix("on_tableView_doubleClicked"));
        click(editor.window, "btn_Effacer_Saisie");
        QCOMPARE(log.criticals().constLast(), prefix("on_btn_Effacer_Saisie_clicked"));
        QCOMPARE(log.criticals().size(), 4);
    }
};

VENDEL_TEST(TestFormVendelSaisieArticleFields)
#include "tst_FormVendelSaisieArticleFields.moc"
