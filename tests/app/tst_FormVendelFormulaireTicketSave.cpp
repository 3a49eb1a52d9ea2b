// SPDX-License-Identifier: MIT
#include "app/Receipt.h"
#include "tests/forms/OpenReceiptTexts.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/Failures.h"
#include "tests/support/Captured.h"
#include "tests/support/TestProgram.h"

#include <QClipboard>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMimeData>

#include <memory>

#include <sys/stat.h>

namespace {
/// The names in the working directory, hidden ones too.
QStringList files()
{
    return QDir().entryList(QDir::Files | QDir::Hidden | QDir::System, QDir::Name);
}

/// Whether the question was followed by the one box that says what went wrong.
bool saidTheFailure(const AnswerBox& box)
{
    const QString title = QString("Sauvegarde");
    return box.titles() == QStringList({title, title})
        && box.texts() == QStringList({title, QString("Le texte n'a pas pu être enregistré")});
}
} // namespace

class TestFormVendelFormulaireTicketSave : public QObject
{
    Q_OBJECT

private slots:
    void savingAsksFirst_data()
    {
        QTest::addColumn<QByteArray>("button");
        QTest::newRow("header") << QByteArray("btn_Entete_Page");
        QTest::newRow("footer") << QByteArray("btn_Pied_Page");
    }

    void savingAsksFirst()
    {
        QFETCH(QByteArray, button);
        OpenReceiptTexts editor("Chez Paul", "Merci");
        const AnswerBox box(QMessageBox::No);
        click(editor.window, button.constData());
        QCOMPARE(box.title(), QString("Sauvegarde"));
        QCOMPARE(box.text(), QString("Sauvegarde"));
        QCOMPARE(box.icon(), QMessageBox::Information);
        QCOMPARE(box.buttons(), QMessageBox::StandardButtons(QMessageBox::Yes | QMessageBox::No));
        QCOMPARE(box.parent(), &editor.window);
        QCOMPARE(box.strays(), 0);
    }

    void noKeepsTheFile()
    {
        OpenReceiptTexts editor("Chez Paul", "Merci");
        editor.typeAtEnd(" et Anne");
        const AnswerBox box(QMessageBox::No);
        click(editor.window, "btn_Entete_Page");
        QVERIFY(box.wasShown());
        QCOMPARE(editor.shop.read(headerFile), QByteArray("Chez Paul"));
    }

    void yesSavesTheHeader()
    {
        OpenReceiptTexts editor("Chez Paul", "Merci");
        editor.typeAtEnd("\nParis");
        const AnswerBox box(QMessageBox::Yes);
        click(editor.window, "btn_Entete_Page");
        QCOMPARE(box.strays(), 0);
        QCOMPARE(editor.shop.read(headerFile), QByteArray("Chez Paul\nParis"));
        QCOMPARE(editor.shop.read(footerFile), QByteArray("Merci"));
        QCOMPARE(editor.text(), QString("Chez Paul\nParis"));
        QVERIFY(editor.window.isVisible());
    }

    void yesSavesTheFooter()
    {
        OpenReceiptTexts editor("Chez Paul", "Merci");
        chooseMenu(editor.window, "menuAfficher", "actionPied_Page");
        editor.typeAtEnd(" !");
        const AnswerBox box(QMessageBox::Yes);
        click(editor.window, "btn_Pied_Page");
        QCOMPARE(editor.shop.read(footerFile), QByteArray("Merci !"));
        QCOMPARE(editor.shop.read(headerFile), QByteArray("Chez Paul"));
    }

    void whatIsShownGoesIntoTheFileOfTheButton()
    {
        OpenReceiptTexts editor("Chez Paul", "Merci");
        {
            const AnswerBox box(QMessageBox::Yes);
            click(editor.window, "btn_Pied_Page");
        }
        QCOMPARE(editor.shop.read(footerFile), QByteArray("Chez Paul"));
        QCOMPARE(editor.label(), QString("Entête de page"));

        editor.shop.write(footerFile, "Merci");
        chooseMenu(editor.window, "menuAfficher", "actionPied_Page");
        const AnswerBox box(QMessageBox::Yes);
        click(editor.window, "btn_Entete_Page");
        QCOMPARE(editor.shop.read(headerFile), QByteArray("Merci"));
    }

    void anEmptyTextEmptiesTheFile()
    {
        OpenReceiptTexts editor("Chez Paul", "Merci");
        auto& edit = child<QTextEdit>(editor.window, "txt_Form");
        QTest::keyClick(&edit, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(&edit, Qt::Key_Delete);
        const AnswerBox box(QMessageBox::Yes);
        click(editor.window, "btn_Entete_Page");
        QCOMPARE(editor.shop.read(headerFile), QByteArray(""));
    }

    void lettersAreWrittenAsUtf8()
    {
        OpenReceiptTexts editor("12 rue des Écoles, 3 €, ☕", "Merci");
        editor.typeAtEnd(".");
        const AnswerBox box(QMessageBox::Yes);
        click(editor.window, "btn_Entete_Page");
        QCOMPARE(editor.shop.read(headerFile), QByteArray("12 rue des Écoles, 3 €, ☕."));
    }

    void nothingIsAddedAtTheEnd()
    {
        OpenReceiptTexts editor("Chez Paul\n\n\n", "Merci");
        const AnswerBox box(QMessageBox::Yes);
        click(editor.window, "btn_Entete_Page");
        QCOMPARE(editor.shop.read(headerFile), QByteArray("Chez Paul\n\n\n"));
    }

    void aTextLikeHtmlIsSavedWithoutItsTags()
    {
        OpenReceiptTexts editor("<b>Chez Paul</b><br>Paris", "Merci");
        const AnswerBox box(QMessageBox::Yes);
        click(editor.window, "btn_Entete_Page");
        QCOMPARE(editor.shop.read(headerFile), QByteArray("Chez Paul\nParis"));
    }

    void windowsLineEndsBecomeLineFeeds()
    {
        OpenReceiptTexts editor("Chez Paul\r\nParis\r\n", "Merci");
        const AnswerBox box(QMessageBox::Yes);
        click(editor.window, "btn_Entete_Page");
        QCOMPARE(editor.shop.read(headerFile), QByteArray("Chez Paul\nParis\n"));
    }

    void pastedTextIsSavedAsPlainText()
    {
        OpenReceiptTexts editor("", "Merci");
        QGuiApplication::clipboard()->setText(QString("<b>Été</b>\nParis"));
        QTest::keyClick(
            &child<QTextEdit>(editor.window, "txt_Form"), Qt::Key_V, Qt::ControlModifier);
        const AnswerBox box(QMessageBox::Yes);
        click(editor.window, "btn_Entete_Page");
        QCOMPARE(editor.shop.read(headerFile), QByteArray("<b>Été</b>\nParis"));
    }

    void pastedTextComesWithoutItsLook()
    {
        OpenReceiptTexts editor("", "Merci");
        auto page = std::make_unique<QMimeData>();
        page->setHtml(QString("<h1>Chez Paul</h1><p>Paris</p>"));
        page->setText(QString("Chez Paul, Paris"));
        QGuiApplication::clipboard()->setMimeData(page.release());
        QTest::keyClick(
            &child<QTextEdit>(editor.window, "txt_Form"), Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(editor.text(), QString("Chez Paul, Paris"));
    }

    void aSavedTitleStandsOutOnTheReceipt()
    {
        OpenReceiptTexts editor("", "");
        editor.typeAtEnd("titre:Chez Paul\n12 rue du Bac");
        const AnswerBox box(QMessageBox::Yes);
        click(editor.window, "btn_Entete_Page");
        Db::DbCreate();
        const Receipt receipt
            = composeReceipt(readSale(QDateTime(QDate(2024, 5, 3), QTime(14, 7, 31))));
        QCOMPARE(receipt.at(0).style, ReceiptLine::Style::Title);
        QCOMPARE(receipt.at(0).text, QString("Chez Paul"));
        QCOMPARE(receipt.at(1).style, ReceiptLine::Style::Header);
        QCOMPARE(receipt.at(1).text, QString("12 rue du Bac"));
    }

    void aMissingFileStaysMissingAndNothingIsSaid_data()
    {
        savingAsksFirst_data();
    }

    void aMissingFileStaysMissingAndNothingIsSaid()
    {
        QFETCH(QByteArray, button);
        OpenReceiptTexts editor;
        editor.typeAtEnd("Chez Paul");
        const CapturedLog log;
        const AnswerBox box(QMessageBox::Yes);
        click(editor.window, button.constData());
        QCOMPARE(box.text(), QString("Sauvegarde"));
        QCOMPARE(box.strays(), 0);
        QCOMPARE(files(), QStringList());
        QCOMPARE(log.criticals(), QStringList());
    }

    void aLinkToNowhereStaysSo()
    {
        OpenReceiptTexts editor;
        QVERIFY(QFile::link(QString("nowhere"), headerFile));
        editor.typeAtEnd("Chez Paul");
        const AnswerBox box(QMessageBox::Yes);
        click(editor.window, "btn_Entete_Page");
        QCOMPARE(box.strays(), 0);
        QVERIFY(QFileInfo(headerFile).isSymLink());
        QVERIFY(!QFile::exists(QString("nowhere")));
    }

    void aSymbolicLinkIsFollowed()
    {
        OpenReceiptTexts editor({}, "Merci");
        QVERIFY(QDir().mkdir(QString("partage")));
        editor.shop.write(QString("partage/entete"), "Chez Paul");
        QVERIFY(QFile::link(QString("partage/entete"), headerFile));
        chooseMenu(editor.window, "menuAfficher", "actionEntete_Page");
        editor.typeAtEnd(" et Anne");
        const AnswerBox box(QMessageBox::Yes);
        click(editor.window, "btn_Entete_Page");
        QVERIFY(QFileInfo(headerFile).isSymLink());
        QCOMPARE(editor.shop.read(QString("partage/entete")), QByteArray("Chez Paul et Anne"));
    }

    void theModeIsKept()
    {
        OpenReceiptTexts editor("Chez Paul", "Merci");
        QCOMPARE(chmod("EnteteFormulaire.dat", 0660), 0);
        editor.typeAtEnd(".");
        const AnswerBox box(QMessageBox::Yes);
        click(editor.window, "btn_Entete_Page");
        struct stat status = {};
        QCOMPARE(stat("EnteteFormulaire.dat", &status), 0);
        QCOMPARE(status.st_mode & 07777U, 0660U);
        QCOMPARE(editor.shop.read(headerFile), QByteArray("Chez Paul."));
    }

    void nothingElseIsLeftInTheFolder()
    {
        OpenReceiptTexts editor("Chez Paul", "Merci");
        const AnswerBox box(QMessageBox::Yes);
        click(editor.window, "btn_Entete_Page");
        QCOMPARE(files(), QStringList({headerFile, footerFile}));
    }

    void aFullDiskLeavesTheOldTextAndIsSaid_data()
    {
        QTest::addColumn<int>("lines");
        QTest::newRow("a short text") << 500;
        QTest::newRow("a long text") << 5000;
    }

    void aFullDiskLeavesTheOldTextAndIsSaid()
    {
        QFETCH(int, lines);
        OpenReceiptTexts editor(QByteArray("Chez Paul\n").repeated(lines), "Merci");
        editor.typeAtEnd("Anne");
        const AnswerBox box(QMessageBox::Yes);
        {
            const FileSizeLimit limit(4096);
            click(editor.window, "btn_Entete_Page");
        }
        QVERIFY(saidTheFailure(box));
        QCOMPARE(editor.shop.read(headerFile), QByteArray("Chez Paul\n").repeated(lines));
        QCOMPARE(files(), QStringList({headerFile, footerFile}));
        QVERIFY(editor.text().endsWith(QLatin1String("\nAnne")));
    }

    void aFolderInTheFilesPlaceIsSaid()
    {
        OpenReceiptTexts editor({}, "Merci");
        QVERIFY(QDir().mkdir(headerFile));
        const AnswerBox box(QMessageBox::Yes);
        click(editor.window, "btn_Entete_Page");
        QVERIFY(saidTheFailure(box));
        QVERIFY(QFileInfo(headerFile).isDir());
    }

    void aFolderWithoutWriteAccessIsSaid()
    {
        OpenReceiptTexts editor("Chez Paul", "Merci");
        editor.typeAtEnd(".");
        QCOMPARE(chmod(qPrintable(editor.shop.path()), 0555), 0);
        const AnswerBox box(QMessageBox::Yes);
        {
            const OrdinaryUser user;
            click(editor.window, "btn_Entete_Page");
        }
        QCOMPARE(chmod(qPrintable(editor.shop.path()), 0755), 0);
        QVERIFY(saidTheFailure(box));
        QCOMPARE(editor.shop.read(headerFile), QByteArray("Chez Paul"));
    }

    void aTextThatCannotBeReadIsKeptAndSaid()
    {
        OpenReceiptTexts editor("Chez Paul", "Merci");
        QCOMPARE(chmod("EnteteFormulaire.dat", 0222), 0);
        QCOMPARE(chmod(qPrintable(editor.shop.path()), 0777), 0);
        const AnswerBox box(QMessageBox::Yes);
        {
            const OrdinaryUser user;
            chooseMenu(editor.window, "menuAfficher", "actionEntete_Page");
            QCOMPARE(editor.text(), QString());
            click(editor.window, "btn_Entete_Page");
        }
        QVERIFY(saidTheFailure(box));
        QCOMPARE(chmod("EnteteFormulaire.dat", 0644), 0);
        QCOMPARE(editor.shop.read(headerFile), QByteArray("Chez Paul"));
    }

    void aFifoInTheFilesPlaceIsKeptAndSaid()
    {
        OpenReceiptTexts editor("Chez Paul", QByteArray());
        QVERIFY(mkfifo("PiedFormulaire.dat", 0600) == 0);
        const CapturedLog log;
        chooseMenu(editor.window, "menuAfficher", "actionPied_Page");
        QCOMPARE(editor.text(), QString());
        editor.typeAtEnd("Merci");
        const AnswerBox boxes = AnswerBox::agreeing();
        click(editor.window, "btn_Pied_Page");
        QCOMPARE(boxes.said(),
            (QStringList{QString("Sauvegarde: Sauvegarde"),
                QString("Sauvegarde: Le texte n'a pas pu être enregistré")}));
        struct stat status
        { };
        QVERIFY(stat("PiedFormulaire.dat", &status) == 0);
        QVERIFY(S_ISFIFO(status.st_mode));
        const QString line = QString("PiedFormulaire.dat is not read: it is not a regular file");
        QCOMPARE(log.criticals(), (QStringList{line, line}));
    }
};

VENDEL_TEST(TestFormVendelFormulaireTicketSave)
#include "tst_FormVendelFormulaireTicketSave.moc"
