// SPDX-License-Identifier: MIT
#include "launcher/dialogue/CopyDialog.h"
#include "launcher/dialogue/Wording.h"
#include "tests/support/AccessTree.h"
#include "tests/support/TestProgram.h"

#include <QLabel>
#include <QProcess>
#include <QPushButton>
#include <QScreen>
#include <QTreeWidget>

#include <algorithm>

namespace {
const QString question("Quelle copie de la base remettre en place ?");
const QStringList lines{
    QString("2026-03-05\t36K"), QString("2026-03-04\t1.2M"), QString("remplacee-2026\t0")};

QStringList buttons(const QWidget& window)
{
    QStringList texts;
    const auto found = window.findChildren<QPushButton*>();
    for (const QPushButton* button : found) {
        texts.append(button->text());
    }
    texts.sort();
    return texts;
}
} // namespace

class TestLauncherDialogue : public QObject
{
    Q_OBJECT

private slots:
    void theFirstCopyIsChosenAtFirst()
    {
        CopyDialog dialog(question, lines, false);
        QCOMPARE(dialog.chosen(), QString("2026-03-05"));
        QCOMPARE(dialog.windowTitle(), QString("Vendel"));
        QCOMPARE(dialog.findChild<QLabel*>()->text(), question);
        const auto* list = dialog.findChild<QTreeWidget*>("copies");
        QCOMPARE(list->topLevelItemCount(), 3);
        QCOMPARE(list->headerItem()->text(0), QString("Copie"));
        QCOMPARE(list->headerItem()->text(1), QString("Taille"));
        QCOMPARE(list->topLevelItem(1)->text(1), QString("1.2M"));
        QCOMPARE(buttons(dialog), (QStringList{QString("Annuler"), QString("OK")}));
    }

    void inEnglishItsButtonsAreEnglish()
    {
        CopyDialog dialog(question, lines, true);
        QCOMPARE(buttons(dialog), (QStringList{QString("Cancel"), QString("OK")}));
        QCOMPARE(dialog.findChild<QTreeWidget*>()->headerItem()->text(0), QString("Copy"));
    }

    void theKeyboardChooses()
    {
        CopyDialog dialog(question, lines, false);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
        QCOMPARE(dialog.chosen(), QString("2026-03-04"));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
        QVERIFY(!dialog.isVisible());
    }

    void escapeChoosesNothing()
    {
        CopyDialog dialog(question, lines, false);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        QCOMPARE(dialog.result(), int(QDialog::Rejected));
    }

    void okWithoutAChoiceAsksAgain()
    {
        CopyDialog dialog(question, lines, false);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        auto* list = dialog.findChild<QTreeWidget*>("copies");
        const QPoint second = list->visualItemRect(list->topLevelItem(1)).center();
        QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, second);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::ControlModifier, second);
        const auto found = dialog.findChildren<QPushButton*>();
        const auto ok = std::find_if(found.begin(), found.end(),
            [](const QPushButton* button) { return button->text() == QString("OK"); });
        QTest::mouseClick(*ok, Qt::LeftButton);
        QVERIFY(dialog.isVisible());
        QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, second);
        QTest::mouseClick(*ok, Qt::LeftButton);
        QVERIFY(!dialog.isVisible());
        QCOMPARE(dialog.chosen(), QString("2026-03-04"));
    }

    void everyControlHasANameAndTheKeyboard_data()
    {
        QTest::addColumn<bool>("isEnglish");
        QTest::newRow("French") << false;
        QTest::newRow("English") << true;
    }

    void everyControlHasANameAndTheKeyboard()
    {
        QFETCH(const bool, isEnglish);
        CopyDialog dialog(question, lines, isEnglish);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        QCOMPARE(namelessControls(dialog), QStringList());
        QCOMPARE(ambiguousNames(dialog), QStringList());
        QCOMPARE(controlsOutOfReach(dialog), QStringList());
        QCOMPARE(spokenName(*dialog.findChild<QTreeWidget*>()), question);
    }

    void aLongPathCanBeBroken()
    {
        const QString broken = Wording::breakable(QString(100, QChar(0x00e9)));
        QCOMPARE(broken.count(QChar(0x200b)), 3);
        QString back = broken;
        QCOMPARE(back.remove(QChar(0x200b)), QString(100, QChar(0x00e9)));
    }

    void frenchMarksStayWithTheirWord()
    {
        QCOMPARE(Wording::breakable(QString::fromUtf8("dans « x » : a b ?")),
            QString::fromUtf8("dans «\u00a0x\u00a0»\u00a0: a b\u00a0?"));
    }

    void theProgramMeasuresTheScreen()
    {
        QProcess dialogue;
        dialogue.start(QString(DIALOGUE), {QString("--ecran")});
        QVERIFY(dialogue.waitForFinished());
        QCOMPARE(dialogue.exitCode(), 0);
        // Qt's screen without a display is 800 pixels wide; Qt 6 makes it higher than Qt 5.
        const int height = QGuiApplication::primaryScreen()->availableSize().height();
        QCOMPARE(dialogue.readAllStandardOutput(), "800 " + QByteArray::number(height) + '\n');
    }

    void theProgramRefusesWhatItDoesNotKnow()
    {
        QCOMPARE(QProcess::execute(QString(DIALOGUE), {QString("--unknown"), QString("x")}), 2);
        QCOMPARE(QProcess::execute(QString(DIALOGUE), {QString("--note")}), 2);
    }
};

VENDEL_TEST(TestLauncherDialogue)
#include "tst_LauncherDialogue.moc"
