// SPDX-License-Identifier: MIT
#include "tests/forms/OpenReceiptTexts.h"
#include "tests/support/Captured.h"
#include "tests/support/TestProgram.h"

#include <QClipboard>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMimeData>

#include <memory>

#include <sys/stat.h>

namespace {
const QStringList asked{"Sauvegarde: Sauvegarde"};
constexpr auto saveButtons = {"btn_Entete_Page", "btn_Pied_Page"};
} // namespace

/// Saving the receipt's texts.
class TestFormVendelFormulaireTicketSave : public QObject
{
    Q_OBJECT

private slots:
    void savingAsksFirstAndNoKeepsTheFiles()
    {
        for (const char* button : saveButtons) {
            OpenReceiptTexts editor;
            editor.typeAtEnd(" et Anne");
            const AnswerBox box(QMessageBox::No);
            click(editor.window, button);
            QCOMPARE(box.said(), asked);
            QVERIFY(box.isQuestionOf(editor.window));
            QCOMPARE(editor.header(), QByteArray("Chez Paul"));
            QCOMPARE(editor.footer(), QByteArray("Merci"));
        }
    }

    void yesSavesTheHeaderAndLeavesNothingElse()
    {
        OpenReceiptTexts editor;
        editor.typeAtEnd("\ntitre:Paris");
        QCOMPARE(editor.saveHeader(), asked);
        QCOMPARE(editor.header(), QByteArray("Chez Paul\ntitre:Paris"));
        QCOMPARE(editor.footer(), QByteArray("Merci"));
        QCOMPARE(editor.text(), QString("Chez Paul\ntitre:Paris"));
        QVERIFY(editor.window.isVisible());
        QCOMPARE(files(), QStringList({headerFile, footerFile}));
    }

    void yesSavesTheFooter()
    {
        OpenReceiptTexts editor;
        editor.showFooter();
        editor.typeAtEnd(" !");
        editor.saveFooter();
        QCOMPARE(editor.footer(), QByteArray("Merci !"));
        QCOMPARE(editor.header(), QByteArray("Chez Paul"));
    }

    void whatIsShownGoesIntoTheFileOfTheButton()
    {
        OpenReceiptTexts editor;
        editor.saveFooter();
        QCOMPARE(editor.footer(), QByteArray("Chez Paul"));
        QCOMPARE(editor.label(), QString("Entête de page"));
        editor.shop.write(footerFile, "Merci");
        editor.showFooter();
        editor.saveHeader();
        QCOMPARE(editor.header(), QByteArray("Merci"));
    }

    void anEmptyTextEmptiesTheFile()
    {
        OpenReceiptTexts editor;
        QTest::keyClick(&editor.edit, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(&editor.edit, Qt::Key_Delete);
        editor.saveHeader();
        QCOMPARE(editor.header(), QByteArray(""));
    }

    void pastedTextIsSavedAsPlainText()
    {
        OpenReceiptTexts editor("");
        QGuiApplication::clipboard()->setText("<b>Été</b>\nParis");
        QTest::keyClick(&editor.edit, Qt::Key_V, Qt::ControlModifier);
        editor.saveHeader();
        QCOMPARE(editor.header(), QByteArray("<b>Été</b>\nParis"));
    }

    void pastedTextComesWithoutItsLook()
    {
        OpenReceiptTexts editor("");
        auto page = std::make_unique<QMimeData>();
        page->setHtml("<h1>Chez Paul</h1><p>Paris</p>");
        page->setText("Chez Paul, Paris");
        QGuiApplication::clipboard()->setMimeData(page.release());
        QTest::keyClick(&editor.edit, Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(editor.text(), QString("Chez Paul, Paris"));
    }

    void aMissingFileStaysMissingAndNothingIsSaid()
    {
        for (const char* button : saveButtons) {
            OpenReceiptTexts editor({}, {});
            editor.typeAtEnd("Chez Paul");
            const CapturedLog log;
            QCOMPARE(saidAtClick(editor.window, button, QMessageBox::Yes), asked);
            QCOMPARE(files(), QStringList());
            QCOMPARE(log.criticals(), QStringList());
        }
    }

    void aLinkToNowhereStaysSo()
    {
        OpenReceiptTexts editor({}, {});
        QVERIFY(QFile::link("nowhere", headerFile));
        editor.typeAtEnd("Chez Paul");
        QCOMPARE(editor.saveHeader(), asked);
        QVERIFY(QFileInfo(headerFile).isSymLink());
        QVERIFY(!QFile::exists("nowhere"));
    }

    void aSymbolicLinkIsFollowed()
    {
        OpenReceiptTexts editor(QByteArray{});
        QVERIFY(QDir().mkdir("partage"));
        editor.shop.write("partage/entete", "Chez Paul");
        QVERIFY(QFile::link("partage/entete", headerFile));
        editor.showHeader();
        editor.typeAtEnd(" et Anne");
        editor.saveHeader();
        QVERIFY(QFileInfo(headerFile).isSymLink());
        QCOMPARE(editor.shop.read("partage/entete"), QByteArray("Chez Paul et Anne"));
    }

    void theModeIsKept()
    {
        OpenReceiptTexts editor;
        QCOMPARE(chmod("EnteteFormulaire.dat", 0660), 0);
        editor.typeAtEnd(".");
        editor.saveHeader();
        struct stat status = {};
        QCOMPARE(stat("EnteteFormulaire.dat", &status), 0);
        QCOMPARE(status.st_mode & 07777U, 0660U);
        QCOMPARE(editor.header(), QByteArray("Chez Paul."));
    }
};

VENDEL_TEST(TestFormVendelFormulaireTicketSave)
#include "tst_FormVendelFormulaireTicket_save.moc"
