// SPDX-License-Identifier: MIT
#include "app/FormVendel.h"
#include "app/FormVendelStart.h"
#include "common/Messages.h"
#include "tests/support/Captured.h"
#include "tests/support/Shop.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Widgets.h"
#include "widgets/Application.h"

#include <QApplication>
#include <QFile>
#include <QFontInfo>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTranslator>

#include <sys/stat.h>

namespace {
const QString translationName = "FormVendelTr_Us";

void installTranslationFile(const QString& name = translationName)
{
    if (!QFile::copy(TRANSLATION_FILE, name)) {
        qFatal("no compiled translation");
    }
}

void setUp() { Application::setUp(*qApp); }

QString catalogueText(const char* source, int count = -1)
{
    return QCoreApplication::translate("FormVendelMessages", source, nullptr, count);
}

/// The text of a line of the totals, in the language of the running set-up.
QString shownText()
{
    setUp();
    return catalogueText("Total ticket");
}

QString yesCaption()
{
    QMessageBox box(QMessageBox::Information, "", "", QMessageBox::Yes | QMessageBox::No);
    return box.button(QMessageBox::Yes)->text();
}
} // namespace

/// How the program is set up: its typeface, and its language from a file in the working directory.
class TestApplication : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { qDeleteAll(qApp->findChildren<QTranslator*>()); }

    void textIsLaidOutAt96DotsPerInch()
    {
        QVERIFY(QCoreApplication::testAttribute(Qt::AA_Use96Dpi));
        QCOMPARE(QWidget().logicalDpiX(), 96);
    }

    void theTillHasANarrowTypeface()
    {
        setUp();
        QCOMPARE(QApplication::font().families().constFirst(), QString("Carlito"));
        QCOMPARE(QFontInfo(QApplication::font()).family(), QString("Carlito"));
    }

    void withoutATranslationTheTextsAreFrench()
    {
        const Shop shop;
        const CapturedLog log;
        QCOMPARE(shownText(), QString("Total ticket"));
        FormVendel form;
        QCOMPARE(child<QPushButton>(form, "btn_Payer").text(), QString("Payer"));
        QCOMPARE(yesCaption(), QString("&Oui"));
        QCOMPARE(log.warnings(), QStringList());
        QCOMPARE(log.criticals(), QStringList());
    }

    void theTranslationOfTheWorkingDirectoryIsShown()
    {
        const Shop shop;
        installTranslationFile();
        QCOMPARE(shownText(), QString("Ticket total"));
        FormVendel form;
        // The window's own context comes first, the catalogue's serves the rest.
        QCOMPARE(child<QPushButton>(form, "btn_Payer").text(), QString("Pay now"));
        QCOMPARE(child<QPushButton>(form, "btn_11").text(), QString("."));
        QCOMPARE(child<QPushButton>(form, "btn_Afficher").text(), QString("Afficher"));
        FormVendelStart splash(&form);
        QCOMPARE(child<QLabel>(splash, "lbl_Titre").text(), QString("Vendel System"));
        QCOMPARE(yesCaption(), QString("&Sure"));
    }

    void theTranslationHasItsNames_data()
    {
        QTest::addColumn<QString>("shown");
        for (const char* name :
            {"FormVendelTr_Us.qm", "FormVendelTr_Us", "FormVendelTr.qm", "FormVendelTr"}) {
            QTest::newRow(name) << "Ticket total";
        }
        for (const char* name : {"FormVendel.qm", "FormVendel", "FormVendelTr_",
                 "FormVendelTr_Us.ts", "FormVendelTr_Us.qm.qm", "formvendeltr_us.qm"}) {
            QTest::newRow(name) << "Total ticket";
        }
    }

    void theTranslationHasItsNames()
    {
        const Shop shop;
        const CapturedLog log;
        installTranslationFile(QTest::currentDataTag());
        QTEST(shownText(), "shown");
        QCOMPARE(log.criticals(), QStringList());
    }

    void theFirstFileOfTheNamesDecides()
    {
        const Shop shop;
        shop.write("FormVendelTr_Us.qm", "not a translation");
        installTranslationFile();
        QCOMPARE(shownText(), QString("Total ticket"));
        QVERIFY(QFile::rename("FormVendelTr_Us.qm", "FormVendelTr.qm"));
        QCOMPARE(shownText(), QString("Ticket total"));
    }

    void aFileThatMustNotBeReadCountsAsMissing()
    {
        const Shop shop;
        const CapturedLog log;
        QVERIFY(mkfifo("FormVendelTr_Us.qm", 0600) == 0);
        installTranslationFile();
        QVERIFY(QFile::resize(translationName, 4'194'305));
        installTranslationFile("FormVendelTr");
        QCOMPARE(shownText(), QString("Ticket total"));
        QCOMPARE(log.criticals(),
            QStringList({"FormVendelTr_Us.qm is not read: it is not a regular file",
                "FormVendelTr_Us is not read: it is larger than 4 MB"}));
    }

    void aTranslationThatNamesAnotherFileIsRefused_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        const Shop shop;
        const QByteArray recursive = shop.read(RECURSIVE_TRANSLATION_FILE);
        const auto magic = recursive.left(16);
        const QByteArray section(
            "\x96\0\0\0\x22\0\0\0\x1e\0F\0o\0r\0m\0V\0e\0n\0d\0e\0l\0T\0r\0_\0U\0s", 39);
        QTest::newRow("as the compiler writes it") << recursive;
        QTest::newRow("alone") << magic + section;
        QTest::newRow("behind another section")
            << magic + QByteArray("\x42\0\0\0\x01x", 6) + section;
        QTest::newRow("behind an empty section") << magic + QByteArray("\x42\0\0\0\0", 5) + section;
    }

    void aTranslationThatNamesAnotherFileIsRefused()
    {
        QFETCH(QByteArray, bytes);
        const Shop shop;
        const CapturedLog log;
        shop.write(translationName, bytes);
        QCOMPARE(shownText(), QString("Total ticket"));
        QCOMPARE(log.criticals(),
            QStringList("FormVendelTr_Us is not shown: it names another file to load"));
    }

    void theTranslationOutlivesItsFileAndNotItself()
    {
        const Shop shop;
        installTranslationFile();
        setUp();
        shop.write(translationName, "not a translation");
        QCOMPARE(catalogueText("Total ticket"), QString("Ticket total"));
        cleanup();
        QCOMPARE(catalogueText("Total ticket"), QString("Total ticket"));
    }

    void pluralsOfTheTranslationFollowTheCount()
    {
        const Shop shop;
        installTranslationFile();
        setUp();
        const std::string& source = Messages::Messages23[0];
        QCOMPARE(catalogueText(source.c_str(), 1), QString("Delete 1 double marked X..."));
        QCOMPARE(catalogueText(source.c_str(), 3), QString("Delete 3 doubles marked X..."));
    }

    void aBrokenTranslationIsNoError()
    {
        const Shop shop;
        const CapturedLog log;
        shop.write(translationName, QByteArray("not a translation\n").repeated(50));
        QCOMPARE(shownText(), QString("Total ticket"));
        QCOMPARE(log.warnings(), QStringList());
        QCOMPARE(log.criticals(), QStringList());
    }

    void anotherFolderIsNotAsked()
    {
        const Shop outer;
        installTranslationFile();
        const Shop inner;
        QCOMPARE(shownText(), QString("Total ticket"));
    }
};

VENDEL_BARE_TEST(TestApplication)
#include "tst_Application.moc"
