// SPDX-License-Identifier: MIT
#include "forms/FormVendelFormulaireTicket.h"
#include "tests/forms/OpenReceiptTexts.h"
#include "tests/support/AnswerBox.h"
#include "tests/support/Captured.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Translation.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>

class TestFormVendelFormulaireTicket : public QObject
{
    Q_OBJECT

private slots:
    void looksLikeTheReceiptsTexts()
    {
        const CapturedLog log;
        OpenReceiptTexts editor;
        QCOMPARE(log.criticals(), QStringList());
        QVERIFY(!log.warnings().join('\n').contains(QLatin1String("No matching signal")));
        auto& window = editor.window;
        QCOMPARE(window.objectName(), QString("FormVendelFormulaireTicket"));
        QCOMPARE(window.windowTitle(), QString("Formulaire Impression Ticket"));
        QCOMPARE(window.size(), QSize(477, 501));
        QCOMPARE(window.minimumSize(), QSize(477, 501));
        QCOMPARE(window.maximumSize(), QSize(477, 501));
        QCOMPARE(window.windowModality(), Qt::WindowModal);
        QCOMPARE(child<QTextEdit>(window, "txt_Form").font().pointSize(), 12);
        QCOMPARE(child<QMenu>(window, "menuAfficher").title(), QString("Afficher"));
        QCOMPARE(child<QAction>(window, "actionEntete_Page").text(), QString("Entête Page"));
        QCOMPARE(child<QAction>(window, "actionPied_Page").text(), QString("Pied Page"));
        const auto& header = child<QPushButton>(window, "btn_Entete_Page");
        const auto& footer = child<QPushButton>(window, "btn_Pied_Page");
        QCOMPARE(header.text(), QString("Sauv Entête Page"));
        QCOMPARE(footer.text(), QString("Sauv Pied Page"));
        QVERIFY(!header.autoDefault() && !header.isDefault());
        QVERIFY(!footer.autoDefault() && !footer.isDefault());
        QVERIFY(child<QMenuBar>(window, "menubar").isVisible());
        QVERIFY(child<QWidget>(window, "centralwidget").isVisible());
    }

    void everyTextIsLookedUpInItsContext()
    {
        const ContextEcho translation;
        OpenReceiptTexts editor;
        const QString captions = QString("FormVendelFormulaireTicket");
        QCOMPARE(editor.window.windowTitle(), captions);
        QCOMPARE(child<QMenu>(editor.window, "menuAfficher").title(), captions);
        QCOMPARE(child<QAction>(editor.window, "actionEntete_Page").text(), captions);
        QCOMPARE(child<QAction>(editor.window, "actionPied_Page").text(), captions);
        const QString own = QString("FormVendelFormulaireTicketMessages");
        QCOMPARE(editor.label(), own);
        const AnswerBox box(QMessageBox::No);
        click(editor.window, "btn_Pied_Page");
        QCOMPARE(box.title(), own);
        QCOMPARE(box.text(), own);
    }

    void edgesAreAligned()
    {
        OpenReceiptTexts editor;
        const QRect text = child<QTextEdit>(editor.window, "txt_Form").geometry();
        const QRect header = child<QPushButton>(editor.window, "btn_Entete_Page").geometry();
        const QRect footer = child<QPushButton>(editor.window, "btn_Pied_Page").geometry();
        QCOMPARE(child<QLabel>(editor.window, "lbl_Formulaire").x(), text.left());
        QCOMPARE(header.left(), text.left());
        QCOMPARE(footer.right(), text.right());
        QCOMPARE(header.top(), footer.top());
        QVERIFY(header.right() < footer.left());
    }

    void nothingIsClipped()
    {
        OpenReceiptTexts editor;
        QCOMPARE(clippedTexts(editor.window), QStringList());
    }

    void tabFollowsTheEye()
    {
        OpenReceiptTexts editor;
        QVERIFY(QTest::qWaitForWindowActive(&editor.window));
        QCOMPARE(tabOrder(editor.window),
            QStringList(
                {QString("txt_Form"), QString("btn_Entete_Page"), QString("btn_Pied_Page")}));
    }

    void returnPressesNoButton()
    {
        OpenReceiptTexts editor("Chez Paul", "Merci");
        const AnswerBox box;
        editor.typeAtEnd("\n");
        QVERIFY(!box.wasShown());
        QCOMPARE(editor.text(), QString("Chez Paul\n"));
        QTest::keyClick(&editor.window, Qt::Key_Return);
        QVERIFY(!box.wasShown());
        QTest::keyClick(&editor.window, Qt::Key_Escape);
        QVERIFY(!editor.window.isVisible());
        QCOMPARE(editor.shop.read(headerFile), QByteArray("Chez Paul"));
    }

    void opensWithTheHeader()
    {
        OpenReceiptTexts editor("titre:Chez Paul\n\n12 rue des Écoles\n", "Merci");
        QCOMPARE(editor.label(), QString("Entête de page"));
        QCOMPARE(editor.text(), QString("titre:Chez Paul\n\n12 rue des Écoles\n"));
    }

    void opensEmptyWithoutAHeader()
    {
        OpenReceiptTexts editor;
        QCOMPARE(editor.label(), QString("Entête de page"));
        QCOMPARE(editor.text(), QString());
        QVERIFY(!QFile::exists(headerFile));
    }

    void theMenuShowsTheFooterAndTheHeaderAgain()
    {
        OpenReceiptTexts editor("Chez Paul", "Merci");
        chooseMenu(editor.window, "menuAfficher", "actionPied_Page");
        QCOMPARE(editor.label(), QString("Pied de page"));
        QCOMPARE(editor.text(), QString("Merci"));
        chooseMenu(editor.window, "menuAfficher", "actionEntete_Page");
        QCOMPARE(editor.label(), QString("Entête de page"));
        QCOMPARE(editor.text(), QString("Chez Paul"));
    }

    void aMissingFooterEmptiesTheText()
    {
        OpenReceiptTexts editor("Chez Paul", {});
        chooseMenu(editor.window, "menuAfficher", "actionPied_Page");
        QCOMPARE(editor.label(), QString("Pied de page"));
        QCOMPARE(editor.text(), QString());
    }

    void showingAFileDropsWhatWasTyped()
    {
        OpenReceiptTexts editor("Chez Paul", "Merci");
        editor.typeAtEnd(" et Anne");
        QCOMPARE(editor.text(), QString("Chez Paul et Anne"));
        chooseMenu(editor.window, "menuAfficher", "actionEntete_Page");
        QCOMPARE(editor.text(), QString("Chez Paul"));
    }

    void aTextLikeHtmlIsShownAsRichText()
    {
        OpenReceiptTexts editor("<b>Chez Paul</b><br>Paris", "Merci");
        QCOMPARE(editor.text(), QString("Chez Paul\nParis"));
    }

    void theTextEndsAtTheFirstNul()
    {
        OpenReceiptTexts editor(QByteArray("Chez\0Paul", 9), "Merci");
        QCOMPARE(editor.text(), QString("Chez"));
    }

    void invalidUtf8IsShownAsFarAsItGoes()
    {
        OpenReceiptTexts editor("Caf\xE9 Paul", "Merci");
        QCOMPARE(editor.text(), QString("Caf\uFFFD Paul"));
    }

    void aMegabyteIsShownWhole()
    {
        OpenReceiptTexts editor(QByteArray("123456789\n").repeated(100000), "Merci");
        QCOMPARE(editor.text().size(), 1000000);
    }

    void windowsLineEndsAreShownAsLines()
    {
        OpenReceiptTexts editor("titre:Chez Paul\r\nParis\r\n", "Merci");
        QCOMPARE(editor.text(), QString("titre:Chez Paul\nParis\n"));
        QCOMPARE(editor.shop.read(headerFile), QByteArray("titre:Chez Paul\r\nParis\r\n"));
    }

    void aFileThatCannotBeReadIsShownEmpty()
    {
        const CapturedLog log;
        OpenReceiptTexts editor({}, "Merci");
        QVERIFY(QDir().mkdir(headerFile));
        chooseMenu(editor.window, "menuAfficher", "actionEntete_Page");
        QCOMPARE(editor.text(), QString());
        QCOMPARE(log.criticals(),
            QStringList(QString("EnteteFormulaire.dat is not read: it is not a regular file")));
    }

    void failuresAreLogged_data()
    {
        QTest::addColumn<QString>("slot");
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("line");
        QTest::newRow("header") << QString("on_actionEntete_Page_triggered")
                                << QByteArray("Entête de page")
                                << QString("Errors FormVendelFormulaireTicket "
                                           "on_actionEntete_Page_triggered : no text");
        QTest::newRow("footer") << QString("on_actionPied_Page_triggered")
                                << QByteArray("Pied de page")
                                << QString("Errors FormVendelFormulaireTicket "
                                           "on_actionPied_Page_triggered : no text");
        QTest::newRow("save header")
            << QString("on_btn_Entete_Page_clicked") << QByteArray("Sauvegarde")
            << QString("Errors on_btn_Entete_Page_clicked : no text");
        QTest::newRow("save footer")
            << QString("on_btn_Pied_Page_clicked") << QByteArray("Sauvegarde")
            << QString("Errors on_btn_Pied_Page_clicked : no text");
    }

    void failuresAreLogged()
    {
        QFETCH(QString, slot);
        QFETCH(QByteArray, text);
        QFETCH(QString, line);
        OpenReceiptTexts editor("Chez Paul", "Merci");
        const CapturedLog log;
        const FailingText failure(text.constData());
        QVERIFY(QMetaObject::invokeMethod(&editor.window, slot.toLatin1().constData()));
        QCOMPARE(log.criticals(), QStringList(line));
        QCOMPARE(editor.shop.read(headerFile), QByteArray("Chez Paul"));
        QCOMPARE(editor.shop.read(footerFile), QByteArray("Merci"));
    }

    void aFailingConstructorIsLogged_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("title") << QByteArray("Formulaire Impression Ticket");
        QTest::newRow("first label") << QByteArray("Formulaire");
    }

    void aFailingConstructorIsLogged()
    {
        QFETCH(QByteArray, text);
        const Shop shop(Shop::Database::None);
        const CapturedLog log;
        const FailingText failure(text.constData());
        const FormVendelFormulaireTicket window;
        QCOMPARE(log.criticals(),
            QStringList(QString("Errors FormVendelFormulaireTicket Constructor : no text")));
    }
};

VENDEL_TEST(TestFormVendelFormulaireTicket)
#include "tst_FormVendelFormulaireTicket.moc"
