// SPDX-License-Identifier: MIT
#include "tests/forms/OpenReceiptTexts.h"
#include "tests/support/Captured.h"
#include "tests/support/Failures.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Translation.h"

#include <QDir>
#include <QFileInfo>

#include <tuple>

#include <sys/stat.h>

namespace {
/// The question is followed by the one box that says what went wrong.
const QStringList saidTheFailure{
    "Sauvegarde: Sauvegarde", "Sauvegarde: Le texte n'a pas pu être enregistré"};
} // namespace

/// Texts of the receipt that cannot be read or saved, and exceptions thrown into slots.
class TestFormVendelFormulaireTicketFailures : public QObject
{
    Q_OBJECT

private slots:
    void aFullDiskLeavesTheOldTextAndIsSaid()
    {
        for (const int lines : {500, 5000}) {
            const QByteArray before = QByteArray("Chez Paul\n").repeated(lines);
            OpenReceiptTexts editor(before);
            editor.typeAtEnd("Anne");
            {
                const FileSizeLimit limit(4096);
                QCOMPARE(editor.saveHeader(), saidTheFailure);
            }
            QCOMPARE(editor.header(), before);
            QCOMPARE(files(), QStringList({headerFile, footerFile}));
            QVERIFY(editor.text().endsWith("\nAnne"));
        }
    }

    void aFolderInTheFilesPlaceIsShownEmptyAndSaid()
    {
        const CapturedLog log;
        OpenReceiptTexts editor(QByteArray{});
        QVERIFY(QDir().mkdir(headerFile));
        editor.showHeader();
        QCOMPARE(editor.text(), QString());
        QCOMPARE(log.criticals(),
            QStringList("EnteteFormulaire.dat is not read: it is not a regular file"));
        QCOMPARE(editor.saveHeader(), saidTheFailure);
        QVERIFY(QFileInfo(headerFile).isDir());
    }

    void aFifoInTheFilesPlaceIsKeptAndSaid()
    {
        OpenReceiptTexts editor("Chez Paul", {});
        QVERIFY(mkfifo("PiedFormulaire.dat", 0600) == 0);
        const CapturedLog log;
        editor.showFooter();
        QCOMPARE(editor.text(), QString());
        editor.typeAtEnd("Merci");
        QCOMPARE(editor.saveFooter(), saidTheFailure);
        struct stat status = {};
        QVERIFY(stat("PiedFormulaire.dat", &status) == 0);
        QVERIFY(S_ISFIFO(status.st_mode));
        const QString line = "PiedFormulaire.dat is not read: it is not a regular file";
        QCOMPARE(log.criticals(), QStringList({line, line}));
    }

    void aFolderWithoutWriteAccessIsSaid()
    {
        OpenReceiptTexts editor;
        editor.typeAtEnd(".");
        QCOMPARE(chmod(qPrintable(editor.shop.path()), 0555), 0);
        {
            const OrdinaryUser user;
            QCOMPARE(editor.saveHeader(), saidTheFailure);
        }
        QCOMPARE(chmod(qPrintable(editor.shop.path()), 0755), 0);
        QCOMPARE(editor.header(), QByteArray("Chez Paul"));
    }

    void aTextThatCannotBeReadIsKeptAndSaid()
    {
        OpenReceiptTexts editor;
        QCOMPARE(chmod("EnteteFormulaire.dat", 0222), 0);
        QCOMPARE(chmod(qPrintable(editor.shop.path()), 0777), 0);
        {
            const OrdinaryUser user;
            editor.showHeader();
            QCOMPARE(editor.text(), QString());
            QCOMPARE(editor.saveHeader(), saidTheFailure);
        }
        QCOMPARE(chmod("EnteteFormulaire.dat", 0644), 0);
        QCOMPARE(editor.header(), QByteArray("Chez Paul"));
    }

    void failingSlotsAreLogged()
    {
        const QString window = "Errors FormVendelFormulaireTicket ";
        for (const auto& [slot, text, logged] :
            {std::tuple("on_actionEntete_Page_triggered", "Entête de page",
                 window + "on_actionEntete_Page_triggered : no text"),
                {"on_actionPied_Page_triggered", "Pied de page",
                    window + "on_actionPied_Page_triggered : no text"},
                {"on_btn_Entete_Page_clicked", "Sauvegarde",
                    "Errors on_btn_Entete_Page_clicked : no text"},
                {"on_btn_Pied_Page_clicked", "Sauvegarde",
                    "Errors on_btn_Pied_Page_clicked : no text"}}) {
            OpenReceiptTexts editor;
            const CapturedLog log;
            const FailingText failure(text);
            QVERIFY(QMetaObject::invokeMethod(&editor.window, slot));
            QCOMPARE(log.criticals(), QStringList(logged));
            QCOMPARE(editor.header(), QByteArray("Chez Paul"));
            QCOMPARE(editor.footer(), QByteArray("Merci"));
        }
    }

    void aFailingConstructorIsLogged()
    {
        const Shop shop(Shop::Database::None);
        for (const char* text : {"Formulaire Impression Ticket", "Formulaire"}) {
            const CapturedLog log;
            const FailingText failure(text);
            const FormVendelFormulaireTicket window;
            QCOMPARE(log.criticals(),
                QStringList("Errors FormVendelFormulaireTicket Constructor : no text"));
        }
    }
};

VENDEL_TEST(TestFormVendelFormulaireTicketFailures)
#include "tst_FormVendelFormulaireTicket_failures.moc"
