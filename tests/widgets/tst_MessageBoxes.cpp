// SPDX-License-Identifier: MIT
#include "common/Messages.h"
#include "tests/support/AccessTree.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Translation.h"
#include "widgets/MessageBoxes.h"

#include <QAbstractButton>
#include <QPushButton>
#include <QWidget>

namespace {
constexpr Texts texts{"FormVendelMessages"};

/// The captions of the buttons Yes and No.
QStringList captions(const QMessageBox& box)
{
    return {box.button(QMessageBox::Yes)->text().remove('&'),
        box.button(QMessageBox::No)->text().remove('&')};
}
} // namespace

class TestMessageBoxes : public QObject
{
    Q_OBJECT

private slots:
    void aNoticeShowsItsTextUnderItsTitle()
    {
        const AnswerBox box(QMessageBox::Ok, [](QMessageBox& shown) {
            QVERIFY(shown.defaultButton() == shown.button(QMessageBox::Ok));
        });
        notice(&window_, texts, Messages::Messages12);
        QCOMPARE(box.said(), QStringList("+/-: Saisir un montant"));
        QCOMPARE(box.icon(), QMessageBox::Information);
        QCOMPARE(box.buttons(), QMessageBox::StandardButtons(QMessageBox::Ok));
        QCOMPARE(box.parent(), &window_);
        QCOMPARE(box.format(), Qt::PlainText);
    }

    void aScreenReaderHasANameForANoticeAndItsButton()
    {
        const AnswerBox box(QMessageBox::Ok, [](QMessageBox& shown) {
            QVERIFY(QTest::qWaitForWindowActive(&shown));
            QCOMPARE(namelessControls(shown), QStringList());
            QCOMPARE(spokenName(shown), QString("+/-"));
            QCOMPARE(spokenName(*shown.button(QMessageBox::Ok)), QString("OK"));
            QCOMPARE(controlsOutOfReach(shown), QStringList());
        });
        notice(&window_, texts, Messages::Messages12);
        QVERIFY(box.wasShown());
    }

    void aScreenReaderHasANameForAQuestionAndItsButtons()
    {
        const AnswerBox box(QMessageBox::No, [](QMessageBox& shown) {
            QVERIFY(QTest::qWaitForWindowActive(&shown));
            QCOMPARE(namelessControls(shown), QStringList());
            QCOMPARE(ambiguousNames(shown), QStringList());
            QCOMPARE(spokenName(*shown.button(QMessageBox::Yes)), QString("Oui"));
            QCOMPARE(controlsOutOfReach(shown), QStringList());
        });
        QVERIFY(!confirm(&window_, "Voulez-vous ?", "Supprimer"));
        QVERIFY(box.wasShown());
    }

    void aNoticeFillsInTheNumber()
    {
        const AnswerBox box;
        notice(&window_, texts, Messages::Messages23, 12);
        QCOMPARE(box.said(), QStringList("Doublon: Supprimer le(s) 12 doublon(s) note(s) X..."));
    }

    void aNoticeIsTranslatedInItsContext()
    {
        Translation translation;
        translation.add("FormVendelMessages", "Saisir un montant", "Amount, please");
        translation.add("FormVendelMessages", "+/-", "Plus or minus");
        const AnswerBox box;
        notice(&window_, texts, Messages::Messages12);
        QCOMPARE(box.said(), QStringList("Plus or minus: Amount, please"));
    }

    void aComposedNoticeIsPlainText()
    {
        const AnswerBox box;
        notice(&window_, "<b>Rosé</b> & co", "Titre");
        QCOMPARE(box.said(), QStringList("Titre: <b>Rosé</b> & co"));
        QCOMPARE(box.format(), Qt::PlainText);
        QCOMPARE(box.buttons(), QMessageBox::StandardButtons(QMessageBox::Ok));
    }

    void aQuestionIsAnsweredByItsButton_data()
    {
        QTest::addColumn<int>("button");
        QTest::addColumn<bool>("isYes");
        QTest::newRow("yes") << int(QMessageBox::Yes) << true;
        QTest::newRow("no") << int(QMessageBox::No) << false;
        QTest::newRow("sent away") << int(QMessageBox::NoButton) << false;
    }

    void aQuestionIsAnsweredByItsButton()
    {
        QFETCH(int, button);
        const AnswerBox box(QMessageBox::StandardButton(button), [&](QMessageBox& shown) {
            QVERIFY(shown.defaultButton() == nullptr);
            QCOMPARE(captions(shown), QStringList({"Oui", "Non"}));
            if (button == QMessageBox::NoButton) {
                shown.reject();
            }
        });
        QTEST(confirm(&window_, "Purger ?", "Purger"), "isYes");
        QCOMPARE(box.said(), QStringList("Purger: Purger ?"));
        QCOMPARE(box.buttons(), QMessageBox::Yes | QMessageBox::No);
        QCOMPARE(box.icon(), QMessageBox::Information);
        QCOMPARE(box.parent(), &window_);
    }

    void noMayHaveTheFocusOfAQuestion()
    {
        const auto press = [](Qt::Key key, bool isComposed) {
            const AnswerBox box(QMessageBox::Yes, [key](QMessageBox& shown) {
                QVERIFY(shown.defaultButton() == shown.button(QMessageBox::No));
                QVERIFY(shown.focusWidget() == shown.defaultButton());
                QTest::keyClick(shown.defaultButton(), key);
            });
            QWidget window;
            return isComposed ? confirm(&window, "Purger ?", "Purger", Preset::No)
                              : confirm(&window, texts, Messages::Messages16, "Thé", Preset::No);
        };
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
            QVERIFY(!press(key, true));
            QVERIFY(!press(key, false));
        }
    }

    void aQuestionStandsAroundTheName_data()
    {
        QTest::addColumn<QString>("said");
        QTest::newRow("Thé à l'anis") << "Supprimer: Voulez-vous supprimer : Thé à l'anis ...";
        QTest::newRow("<b>x</b>") << "Supprimer: Voulez-vous supprimer : <b>x</b> ...";
        QTest::newRow("%n %1 100%") << "Supprimer: Voulez-vous supprimer : %n %1 100% ...";
    }

    void aQuestionStandsAroundTheName()
    {
        QFETCH(QString, said);
        const AnswerBox box(QMessageBox::Yes);
        QVERIFY(confirm(&window_, texts, Messages::Messages16, QString(QTest::currentDataTag())));
        QCOMPARE(box.said(), QStringList(said));
        QCOMPARE(box.buttons(), QMessageBox::Yes | QMessageBox::No);
        QCOMPARE(box.format(), Qt::PlainText);
    }

    void theTranslationMayReplaceTheButtons()
    {
        Translation translation;
        translation.add("QPlatformTheme", "&Yes", "&Sure");
        QStringList shown;
        const AnswerBox box(
            QMessageBox::No, [&](QMessageBox& question) { shown = captions(question); });
        QVERIFY(!confirm(&window_, "Purger ?", "Purger"));
        QCOMPARE(shown.value(0), QString("Sure"));
    }

private:
    QWidget window_;
};

VENDEL_TEST(TestMessageBoxes)
#include "tst_MessageBoxes.moc"
