// SPDX-License-Identifier: MIT
#include "app/Application.h"
#include "app/FormVendel.h"
#include "app/FormVendelStart.h"
#include "common/Messages.h"
#include "tests/support/Captured.h"
#include "tests/support/Shop.h"
#include "tests/support/Widgets.h"

#include <QApplication>
#include <QFontInfo>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTranslator>

class TestApplication : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();

    void textIsLaidOutAt96DotsPerInch();
    void theTillHasANarrowTypeface();
    void withoutATranslationTheTextsAreFrench();
    void qtsOwnTextsAreFrench();
    void theTranslationOfTheWorkingDirectoryIsShown();
    void theTranslationMayHaveItsSuffix();
    void theTranslationMayReplaceQtsTexts();
    void pluralsOfTheTranslationFollowTheCount();
    void aBrokenTranslationIsNoError();
    void anotherFolderIsNotAsked();
};

namespace {
const QString translationName = QStringLiteral("FormVendelTr_Us");

void installTranslationFile(const QString& name)
{
    if (!QFile::copy(QStringLiteral(TRANSLATION_FILE), name)) {
        qFatal("no compiled translation");
    }
}

void setUp()
{
    Application::setUp(*qApp);
}

QString catalogueText(const char* source, int count = -1)
{
    return QCoreApplication::translate("FormVendelMessages", source, nullptr, count);
}

QString yesCaption()
{
    QMessageBox box(
        QMessageBox::Information, QString(), QString(), QMessageBox::Yes | QMessageBox::No);
    return box.button(QMessageBox::Yes)->text();
}
} // namespace

void TestApplication::cleanup()
{
    qDeleteAll(qApp->findChildren<QTranslator*>());
}

void TestApplication::textIsLaidOutAt96DotsPerInch()
{
    QVERIFY(QCoreApplication::testAttribute(Qt::AA_Use96Dpi));
    QCOMPARE(QWidget().logicalDpiX(), 96);
}

void TestApplication::theTillHasANarrowTypeface()
{
    setUp();
    QCOMPARE(QApplication::font().families().constFirst(), QStringLiteral("Carlito"));
    QCOMPARE(QFontInfo(QApplication::font()).family(), QStringLiteral("Carlito"));
}

void TestApplication::withoutATranslationTheTextsAreFrench()
{
    const Shop shop;
    const CapturedLog log;
    setUp();
    FormVendel form;
    QCOMPARE(child<QPushButton>(form, "btn_Payer").text(), QStringLiteral("Payer"));
    QCOMPARE(catalogueText("Total ticket"), QStringLiteral("Total ticket"));
    QCOMPARE(log.warnings(), QStringList());
    QCOMPARE(log.criticals(), QStringList());
}

void TestApplication::qtsOwnTextsAreFrench()
{
    const Shop shop;
    setUp();
    QCOMPARE(yesCaption(), QStringLiteral("&Oui"));
}

void TestApplication::theTranslationOfTheWorkingDirectoryIsShown()
{
    const Shop shop;
    installTranslationFile(translationName);
    setUp();
    FormVendel form;
    QCOMPARE(catalogueText("Total ticket"), QStringLiteral("Ticket total"));
    // The window's own context comes first, the catalogue's serves the rest.
    QCOMPARE(child<QPushButton>(form, "btn_Payer").text(), QStringLiteral("Pay now"));
    QCOMPARE(child<QPushButton>(form, "btn_11").text(), QStringLiteral("."));
    QCOMPARE(child<QPushButton>(form, "btn_Afficher").text(), QStringLiteral("Afficher"));
    FormVendelStart splash(&form);
    QCOMPARE(child<QLabel>(splash, "lbl_Titre").text(), QStringLiteral("Vendel System"));
}

void TestApplication::theTranslationMayHaveItsSuffix()
{
    const Shop shop;
    installTranslationFile(translationName + QStringLiteral(".qm"));
    setUp();
    QCOMPARE(catalogueText("Total ticket"), QStringLiteral("Ticket total"));
}

void TestApplication::theTranslationMayReplaceQtsTexts()
{
    const Shop shop;
    installTranslationFile(translationName);
    setUp();
    QCOMPARE(yesCaption(), QStringLiteral("&Sure"));
}

void TestApplication::pluralsOfTheTranslationFollowTheCount()
{
    const Shop shop;
    installTranslationFile(translationName);
    setUp();
    const std::string& source = Messages::Messages23[0];
    QCOMPARE(catalogueText(source.c_str(), 1), QStringLiteral("Delete 1 double marked X..."));
    QCOMPARE(catalogueText(source.c_str(), 3), QStringLiteral("Delete 3 doubles marked X..."));
}

void TestApplication::aBrokenTranslationIsNoError()
{
    const Shop shop;
    const CapturedLog log;
    shop.write(translationName, QByteArray("not a translation\n").repeated(50));
    setUp();
    QCOMPARE(catalogueText("Total ticket"), QStringLiteral("Total ticket"));
    QCOMPARE(log.warnings(), QStringList());
    QCOMPARE(log.criticals(), QStringList());
}

void TestApplication::anotherFolderIsNotAsked()
{
    const Shop outer;
    installTranslationFile(translationName);
    const Shop inner;
    setUp();
    QCOMPARE(catalogueText("Total ticket"), QStringLiteral("Total ticket"));
}

int main(int argc, char* argv[])
{
    Application::setAttributes();
    QApplication application(argc, argv);
    TestApplication tests;
    return QTest::qExec(&tests, argc, argv);
}
#include "tst_Application.moc"
