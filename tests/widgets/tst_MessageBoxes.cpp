// SPDX-License-Identifier: MIT
#include "common/Messages.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/TestMain.h"
#include "tests/support/Translation.h"
#include "widgets/MessageBoxes.h"

#include <QAbstractButton>
#include <QPushButton>

class TestMessageBoxes : public QObject
{
    Q_OBJECT

private slots:
    void aNoticeShowsItsTextUnderItsTitle();
    void aNoticeFillsInTheNumber();
    void aNoticeIsTranslatedInItsContext();
    void aComposedNoticeIsPlainText();
    void theDefaultOfANoticeIsOk();
    void aQuestionHasNoDefault();
    void yesIsYes();
    void noIsNo();
    void aQuestionSentAwayIsNo();
    void aQuestionStandsAroundTheName();
    void aNameLikeATagIsPlainText();
    void aPercentSignInANameStays();
    void questionButtonsAreFrench();
    void theTranslationMayReplaceTheButtons();
};

namespace {
constexpr Texts texts{"FormVendelMessages"};

QString captionOf(const QMessageBox& box, QMessageBox::StandardButton button)
{
    return box.button(button)->text().remove(QLatin1Char('&'));
}
} // namespace

void TestMessageBoxes::aNoticeShowsItsTextUnderItsTitle()
{
    QWidget window;
    AnswerBox box;
    notice(&window, texts, Messages::Messages12);
    QVERIFY(box.wasShown());
    QCOMPARE(box.title(), QStringLiteral("+/-"));
    QCOMPARE(box.text(), QStringLiteral("Saisir un montant"));
    QCOMPARE(box.icon(), QMessageBox::Information);
    QCOMPARE(box.buttons(), QMessageBox::StandardButtons(QMessageBox::Ok));
    QCOMPARE(box.parent(), &window);
    QCOMPARE(box.format(), Qt::PlainText);
    QCOMPARE(box.strays(), 0);
}

void TestMessageBoxes::aNoticeFillsInTheNumber()
{
    QWidget window;
    AnswerBox box;
    notice(&window, texts, Messages::Messages23, 12);
    QCOMPARE(box.title(), QStringLiteral("Doublon"));
    QCOMPARE(box.text(), QStringLiteral("Supprimer le(s) 12 doublon(s) note(s) X..."));
}

void TestMessageBoxes::aNoticeIsTranslatedInItsContext()
{
    Translation translation;
    const QString context = QStringLiteral("FormVendelMessages");
    translation.add(context, QStringLiteral("Saisir un montant"), QStringLiteral("Amount, please"));
    translation.add(context, QStringLiteral("+/-"), QStringLiteral("Plus or minus"));
    QWidget window;
    AnswerBox box;
    notice(&window, texts, Messages::Messages12);
    QCOMPARE(box.title(), QStringLiteral("Plus or minus"));
    QCOMPARE(box.text(), QStringLiteral("Amount, please"));
}

void TestMessageBoxes::aComposedNoticeIsPlainText()
{
    QWidget window;
    AnswerBox box;
    notice(&window, QStringLiteral("<b>Rosé</b> & co"), QStringLiteral("Titre"));
    QCOMPARE(box.text(), QStringLiteral("<b>Rosé</b> & co"));
    QCOMPARE(box.title(), QStringLiteral("Titre"));
    QCOMPARE(box.format(), Qt::PlainText);
    QCOMPARE(box.buttons(), QMessageBox::StandardButtons(QMessageBox::Ok));
}

void TestMessageBoxes::theDefaultOfANoticeIsOk()
{
    QWidget window;
    const AnswerBox box(QMessageBox::Ok, [](QMessageBox& shown) {
        QVERIFY(shown.defaultButton() == shown.button(QMessageBox::Ok));
    });
    notice(&window, texts, Messages::Messages12);
    QVERIFY(box.wasShown());
}

void TestMessageBoxes::aQuestionHasNoDefault()
{
    QWidget window;
    const AnswerBox box(
        QMessageBox::No, [](QMessageBox& shown) { QVERIFY(shown.defaultButton() == nullptr); });
    confirm(&window, QStringLiteral("Purger ?"), QStringLiteral("Purger"));
    QVERIFY(box.wasShown());
}

void TestMessageBoxes::yesIsYes()
{
    QWidget window;
    AnswerBox box(QMessageBox::Yes);
    QVERIFY(confirm(&window, QStringLiteral("Purger ?"), QStringLiteral("Purger")));
    QCOMPARE(box.buttons(), QMessageBox::Yes | QMessageBox::No);
    QCOMPARE(box.icon(), QMessageBox::Information);
    QCOMPARE(box.parent(), &window);
}

void TestMessageBoxes::noIsNo()
{
    QWidget window;
    AnswerBox box(QMessageBox::No);
    QVERIFY(!confirm(&window, QStringLiteral("Purger ?"), QStringLiteral("Purger")));
    QVERIFY(box.wasShown());
}

void TestMessageBoxes::aQuestionSentAwayIsNo()
{
    QWidget window;
    AnswerBox box(QMessageBox::NoButton, [](QMessageBox& shown) { shown.reject(); });
    QVERIFY(!confirm(&window, QStringLiteral("Purger ?"), QStringLiteral("Purger")));
    QVERIFY(box.wasShown());
}

void TestMessageBoxes::aQuestionStandsAroundTheName()
{
    QWidget window;
    AnswerBox box(QMessageBox::Yes);
    QVERIFY(confirm(&window, texts, Messages::Messages16, QStringLiteral("Thé à l'anis")));
    QCOMPARE(box.title(), QStringLiteral("Supprimer"));
    QCOMPARE(box.text(), QStringLiteral("Voulez-vous supprimer : Thé à l'anis ..."));
    QCOMPARE(box.buttons(), QMessageBox::Yes | QMessageBox::No);
}

void TestMessageBoxes::aNameLikeATagIsPlainText()
{
    QWidget window;
    AnswerBox box(QMessageBox::Yes);
    QVERIFY(confirm(&window, texts, Messages::Messages16, QStringLiteral("<b>x</b>")));
    QCOMPARE(box.text(), QStringLiteral("Voulez-vous supprimer : <b>x</b> ..."));
    QCOMPARE(box.format(), Qt::PlainText);
}

void TestMessageBoxes::aPercentSignInANameStays()
{
    QWidget window;
    AnswerBox box(QMessageBox::No);
    QVERIFY(!confirm(&window, texts, Messages::Messages16, QStringLiteral("%n %1 100%")));
    QCOMPARE(box.text(), QStringLiteral("Voulez-vous supprimer : %n %1 100% ..."));
}

void TestMessageBoxes::questionButtonsAreFrench()
{
    QWidget window;
    QStringList captions;
    AnswerBox box(QMessageBox::No, [&](QMessageBox& shown) {
        captions << captionOf(shown, QMessageBox::Yes) << captionOf(shown, QMessageBox::No);
    });
    QVERIFY(!confirm(&window, QStringLiteral("Purger ?"), QStringLiteral("Purger")));
    QCOMPARE(captions, (QStringList{QStringLiteral("Oui"), QStringLiteral("Non")}));
}

void TestMessageBoxes::theTranslationMayReplaceTheButtons()
{
    Translation translation;
    translation.add(
        QStringLiteral("QPlatformTheme"), QStringLiteral("&Yes"), QStringLiteral("&Sure"));
    QWidget window;
    QString caption;
    AnswerBox box(
        QMessageBox::No, [&](QMessageBox& shown) { caption = captionOf(shown, QMessageBox::Yes); });
    QVERIFY(!confirm(&window, QStringLiteral("Purger ?"), QStringLiteral("Purger")));
    QCOMPARE(caption, QStringLiteral("Sure"));
}

VENDEL_TEST_MAIN(TestMessageBoxes)
#include "tst_MessageBoxes.moc"
