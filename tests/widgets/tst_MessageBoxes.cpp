// SPDX-License-Identifier: MIT
#include "common/Messages.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Translation.h"
#include "widgets/MessageBoxes.h"

#include <QAbstractButton>
#include <QPushButton>

namespace {
constexpr Texts texts{"FormVendelMessages"};

QString captionOf(const QMessageBox& box, QMessageBox::StandardButton button)
{
    return box.button(button)->text().remove('&');
}
} // namespace

class TestMessageBoxes : public QObject
{
    Q_OBJECT

private slots:
    void aNoticeShowsItsTextUnderItsTitle()
    {
        QWidget window;
        AnswerBox box;
        notice(&window, texts, Messages::Messages12);
        QVERIFY(box.wasShown());
        QCOMPARE(box.title(), QString("+/-"));
        QCOMPARE(box.text(), QString("Saisir un montant"));
        QCOMPARE(box.icon(), QMessageBox::Information);
        QCOMPARE(box.buttons(), QMessageBox::StandardButtons(QMessageBox::Ok));
        QCOMPARE(box.parent(), &window);
        QCOMPARE(box.format(), Qt::PlainText);
        QCOMPARE(box.strays(), 0);
    }

    void aNoticeFillsInTheNumber()
    {
        QWidget window;
        AnswerBox box;
        notice(&window, texts, Messages::Messages23, 12);
        QCOMPARE(box.title(), QString("Doublon"));
        QCOMPARE(box.text(), QString("Supprimer le(s) 12 doublon(s) note(s) X..."));
    }

    void aNoticeIsTranslatedInItsContext()
    {
        Translation translation;
        const QString context = QString("FormVendelMessages");
        translation.add(context, QString("Saisir un montant"), QString("Amount, please"));
        translation.add(context, QString("+/-"), QString("Plus or minus"));
        QWidget window;
        AnswerBox box;
        notice(&window, texts, Messages::Messages12);
        QCOMPARE(box.title(), QString("Plus or minus"));
        QCOMPARE(box.text(), QString("Amount, please"));
    }

    void aComposedNoticeIsPlainText()
    {
        QWidget window;
        AnswerBox box;
        notice(&window, QString("<b>Rosé</b> & co"), QString("Titre"));
        QCOMPARE(box.text(), QString("<b>Rosé</b> & co"));
        QCOMPARE(box.title(), QString("Titre"));
        QCOMPARE(box.format(), Qt::PlainText);
        QCOMPARE(box.buttons(), QMessageBox::StandardButtons(QMessageBox::Ok));
    }

    void theDefaultOfANoticeIsOk()
    {
        QWidget window;
        const AnswerBox box(QMessageBox::Ok, [](QMessageBox& shown) {
            QVERIFY(shown.defaultButton() == shown.button(QMessageBox::Ok));
        });
        notice(&window, texts, Messages::Messages12);
        QVERIFY(box.wasShown());
    }

    void aQuestionHasNoDefault()
    {
        QWidget window;
        const AnswerBox box(
            QMessageBox::No, [](QMessageBox& shown) { QVERIFY(shown.defaultButton() == nullptr); });
        confirm(&window, QString("Purger ?"), QString("Purger"));
        QVERIFY(box.wasShown());
    }

    void yesIsYes()
    {
        QWidget window;
        AnswerBox box(QMessageBox::Yes);
        QVERIFY(confirm(&window, QString("Purger ?"), QString("Purger")));
        QCOMPARE(box.buttons(), QMessageBox::Yes | QMessageBox::No);
        QCOMPARE(box.icon(), QMessageBox::Information);
        QCOMPARE(box.parent(), &window);
    }

    void noIsNo()
    {
        QWidget window;
        AnswerBox box(QMessageBox::No);
        QVERIFY(!confirm(&window, QString("Purger ?"), QString("Purger")));
        QVERIFY(box.wasShown());
    }

    void aQuestionSentAwayIsNo()
    {
        QWidget window;
        AnswerBox box(QMessageBox::NoButton, [](QMessageBox& shown) { shown.reject(); });
        QVERIFY(!confirm(&window, QString("Purger ?"), QString("Purger")));
        QVERIFY(box.wasShown());
    }

    void aQuestionStandsAroundTheName()
    {
        QWidget window;
        AnswerBox box(QMessageBox::Yes);
        QVERIFY(confirm(&window, texts, Messages::Messages16, QString("Thé à l'anis")));
        QCOMPARE(box.title(), QString("Supprimer"));
        QCOMPARE(box.text(), QString("Voulez-vous supprimer : Thé à l'anis ..."));
        QCOMPARE(box.buttons(), QMessageBox::Yes | QMessageBox::No);
    }

    void aNameLikeATagIsPlainText()
    {
        QWidget window;
        AnswerBox box(QMessageBox::Yes);
        QVERIFY(confirm(&window, texts, Messages::Messages16, QString("<b>x</b>")));
        QCOMPARE(box.text(), QString("Voulez-vous supprimer : <b>x</b> ..."));
        QCOMPARE(box.format(), Qt::PlainText);
    }

    void aPercentSignInANameStays()
    {
        QWidget window;
        AnswerBox box(QMessageBox::No);
        QVERIFY(!confirm(&window, texts, Messages::Messages16, QString("%n %1 100%")));
        QCOMPARE(box.text(), QString("Voulez-vous supprimer : %n %1 100% ..."));
    }

    void questionButtonsAreFrench()
    {
        QWidget window;
        QStringList captions;
        AnswerBox box(QMessageBox::No, [&](QMessageBox& shown) {
            captions << captionOf(shown, QMessageBox::Yes) << captionOf(shown, QMessageBox::No);
        });
        QVERIFY(!confirm(&window, QString("Purger ?"), QString("Purger")));
        QCOMPARE(captions, (QStringList{QString("Oui"), QString("Non")}));
    }

    void theTranslationMayReplaceTheButtons()
    {
        Translation translation;
        translation.add(QString("QPlatformTheme"), QString("&Yes"), QString("&Sure"));
        QWidget window;
        QString caption;
        AnswerBox box(QMessageBox::No,
            [&](QMessageBox& shown) { caption = captionOf(shown, QMessageBox::Yes); });
        QVERIFY(!confirm(&window, QString("Purger ?"), QString("Purger")));
        QCOMPARE(caption, QString("Sure"));
    }
};

VENDEL_TEST(TestMessageBoxes)
#include "tst_MessageBoxes.moc"
