// SPDX-License-Identifier: MIT
#include "tests/forms/OpenReceiptTexts.h"
#include "tests/support/Failures.h"
#include "tests/support/TestProgram.h"

#include <QAction>
#include <QPushButton>

#include <functional>

namespace {
const QStringList asked{"Sauvegarde: Le texte n'est pas sauvegardé\nL'abandonner ?"};

/// What would throw a text away.
struct Way
{
    const char* name;
    std::function<void(OpenReceiptTexts&)> go;
};

const QList<Way> waysOut{
    {"Escape", [](OpenReceiptTexts& editor) { QTest::keyClick(&editor.edit, Qt::Key_Escape); }},
    {"the cross", [](OpenReceiptTexts& editor) { editor.window.close(); }}};

const QList<Way> waysToAFile{{"the footer", [](OpenReceiptTexts& editor) { editor.showFooter(); }},
    {"the same file again", [](OpenReceiptTexts& editor) { editor.showHeader(); }}};

const QList<Way> ways = waysOut + waysToAFile;

/// What is said on \a way, and \a answer pressed then.
QStringList saidOn(
    const Way& way, OpenReceiptTexts& editor, QMessageBox::StandardButton answer = QMessageBox::No)
{
    const AnswerBox box(answer);
    way.go(editor);
    return box.said();
}
} // namespace

/// A text that is not saved is given up only after a question.
class TestFormVendelFormulaireTicketUnsaved : public QObject
{
    Q_OBJECT

private slots:
    void noKeepsTheTextOnTheScreen()
    {
        for (const Way& way : ways) {
            OpenReceiptTexts editor;
            editor.typeAtEnd(" et Anne");
            QCOMPARE(saidOn(way, editor), asked);
            QVERIFY2(editor.window.isVisible(), way.name);
            QCOMPARE(editor.text(), QString("Chez Paul et Anne"));
            QCOMPARE(editor.label(), QString("Entête de page"));
        }
    }

    void yesGivesItUp()
    {
        for (const Way& way : waysOut) {
            OpenReceiptTexts editor;
            editor.typeAtEnd(" et Anne");
            QCOMPARE(saidOn(way, editor, QMessageBox::Yes), asked);
            QVERIFY2(!editor.window.isVisible(), way.name);
            QCOMPARE(editor.header(), QByteArray("Chez Paul"));
        }
        OpenReceiptTexts editor;
        editor.typeAtEnd(" et Anne");
        QCOMPARE(saidOn(waysToAFile.at(0), editor, QMessageBox::Yes), asked);
        QCOMPARE(editor.text(), QString("Merci"));
        editor.typeAtEnd(" !");
        editor.saveFooter();
        QCOMPARE(saidOn(waysToAFile.at(1), editor), QStringList());
        QCOMPARE(editor.text(), QString("Chez Paul"));
    }

    void anotherStrayKeyKeepsIt()
    {
        OpenReceiptTexts editor;
        editor.typeAtEnd(" et Anne");
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Space, Qt::Key_Escape}) {
            const AnswerBox box(QMessageBox::Yes, [&](QMessageBox& question) {
                QVERIFY(question.defaultButton() == question.button(QMessageBox::No));
                QTest::keyClick(question.defaultButton(), key);
            });
            QTest::keyClick(&editor.edit, Qt::Key_Escape);
            QCOMPARE(box.said(), asked);
            QVERIFY(box.isQuestionOf(editor.window));
            QVERIFY(editor.window.isVisible());
        }
        QCOMPARE(editor.text(), QString("Chez Paul et Anne"));
    }

    void anUnchangedTextAsksNothing()
    {
        for (const Way& way : ways) {
            for (const QByteArray& header : {QByteArray("Chez Paul"), QByteArray("<b>Paul</b>\r\n"),
                     QByteArray(), QByteArray("")}) {
                OpenReceiptTexts editor(header);
                editor.typeAtEnd("x");
                QTest::keyClick(&editor.edit, Qt::Key_Backspace);
                QCOMPARE(saidOn(way, editor), QStringList());
            }
        }
    }

    void aSavedTextAsksNothing()
    {
        for (const Way& way : ways) {
            OpenReceiptTexts editor;
            editor.typeAtEnd(" et Anne");
            editor.saveHeader();
            QCOMPARE(saidOn(way, editor), QStringList());
            QCOMPARE(editor.header(), QByteArray("Chez Paul et Anne"));
        }
    }

    void aTextThatCouldNotBeSavedIsAskedFor()
    {
        OpenReceiptTexts editor;
        editor.typeAtEnd(" et Anne");
        {
            const FileSizeLimit limit(4);
            QCOMPARE(editor.saveHeader().size(), 2);
        }
        QCOMPARE(saidOn(waysOut.at(0), editor), asked);
        QCOMPARE(saidAtClick(editor.window, "btn_Entete_Page", QMessageBox::No).size(), 1);
        QCOMPARE(saidOn(waysOut.at(0), editor), asked);
    }

    void aTextWithoutAFileIsAskedFor()
    {
        OpenReceiptTexts editor({}, {});
        editor.typeAtEnd("Chez Paul");
        editor.saveHeader();
        QCOMPARE(saidOn(waysOut.at(0), editor), asked);
        QCOMPARE(files(), QStringList());
    }
};

VENDEL_TEST(TestFormVendelFormulaireTicketUnsaved)
#include "tst_FormVendelFormulaireTicket_unsaved.moc"
