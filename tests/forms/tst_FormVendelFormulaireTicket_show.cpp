// SPDX-License-Identifier: MIT
#include "tests/forms/OpenReceiptTexts.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Translation.h"

#include <QAction>
#include <QFile>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>

namespace {
/// The captions of the menu, its entries and the buttons.
QString captions(QWidget& window)
{
    return QStringList({child<QMenu>(window, "menuAfficher").title(),
                           window.findChild<QAction*>("actionEntete_Page")->text(),
                           window.findChild<QAction*>("actionPied_Page")->text(),
                           child<QPushButton>(window, "btn_Entete_Page").text(),
                           child<QPushButton>(window, "btn_Pied_Page").text()})
        .join('|');
}
} // namespace

/// The editor of the receipt's texts, before anything is saved.
class TestFormVendelFormulaireTicketShow : public QObject
{
    Q_OBJECT

private slots:
    void hasAMenuATextAndTwoButtons()
    {
        OpenReceiptTexts editor;
        QCOMPARE(captions(editor.window),
            QString("Afficher|Entête Page|Pied Page|Sauv Entête Page|Sauv Pied Page"));
        QCOMPARE(editor.edit.font().pointSize(), 12);
        QVERIFY(child<QMenuBar>(editor.window, "menubar").isVisible());
        QVERIFY(child<QWidget>(editor.window, "centralwidget").isVisible());
    }

    void everyTextIsLookedUpInItsContext()
    {
        const ContextEcho translation;
        OpenReceiptTexts editor;
        const QString own = "FormVendelFormulaireTicket";
        QCOMPARE(captions(editor.window), QStringList({own, own, own, own, own}).join('|'));
        QCOMPARE(editor.label(), QString("FormVendelFormulaireTicketMessages"));
    }

    void edgesAreAligned()
    {
        OpenReceiptTexts editor;
        const QRect text = editor.edit.geometry();
        const QRect header = child<QPushButton>(editor.window, "btn_Entete_Page").geometry();
        const QRect footer = child<QPushButton>(editor.window, "btn_Pied_Page").geometry();
        QCOMPARE(child<QLabel>(editor.window, "lbl_Formulaire").x(), text.left());
        QCOMPARE(header.left(), text.left());
        QCOMPARE(footer.right(), text.right());
        QCOMPARE(header.top(), footer.top());
        QVERIFY(header.right() < footer.left());
    }

    void returnIsALineEnd()
    {
        OpenReceiptTexts editor;
        editor.typeAtEnd("\n");
        QCOMPARE(editor.text(), QString("Chez Paul\n"));
    }

    void missingFilesAreShownEmpty()
    {
        OpenReceiptTexts editor({}, {});
        QCOMPARE(editor.label(), QString("Entête de page"));
        QCOMPARE(editor.text(), QString());
        QVERIFY(!QFile::exists(headerFile));
        editor.showFooter();
        QCOMPARE(editor.label(), QString("Pied de page"));
        QCOMPARE(editor.text(), QString());
    }

    void theMenuShowsTheFooterAndTheHeaderAgain()
    {
        OpenReceiptTexts editor;
        QCOMPARE(editor.label(), QString("Entête de page"));
        QCOMPARE(editor.text(), QString("Chez Paul"));
        editor.showFooter();
        QCOMPARE(editor.label(), QString("Pied de page"));
        QCOMPARE(editor.text(), QString("Merci"));
        editor.showHeader();
        QCOMPARE(editor.label(), QString("Entête de page"));
        QCOMPARE(editor.text(), QString("Chez Paul"));
    }

    void aFileIsShownAndSavedAsItIsShown_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QByteArray>("shown");
        const auto row = [](const char* name, const QByteArray& file, const QByteArray& shown) {
            QTest::newRow(name) << file << shown;
        };
        const QByteArray lines = "titre:Chez Paul\n\n12 rue des Écoles, 3 €, ☕\n\n\n";
        row("lines in UTF-8", lines, lines);
        row("like HTML", "<b>Chez Paul</b><br>Paris", "Chez Paul\nParis");
        row("Windows line ends", "titre:Chez Paul\r\nParis\r\n", "titre:Chez Paul\nParis\n");
        row("invalid UTF-8", "Caf\xE9 Paul", "Caf\uFFFD Paul");
        row("a NUL", QByteArray("Chez\0Paul", 9), "Chez");
        const QByteArray megabyte = QByteArray("123456789\n").repeated(100000);
        row("a megabyte", megabyte, megabyte);
    }

    void aFileIsShownAndSavedAsItIsShown()
    {
        QFETCH(const QByteArray, file);
        QFETCH(const QByteArray, shown);
        OpenReceiptTexts editor(file);
        QCOMPARE(editor.text(), QString(shown));
        QCOMPARE(editor.header(), file);
        editor.saveHeader();
        QCOMPARE(editor.header(), shown);
    }
};

VENDEL_TEST(TestFormVendelFormulaireTicketShow)
#include "tst_FormVendelFormulaireTicket_show.moc"
