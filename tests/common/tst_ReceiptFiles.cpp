// SPDX-License-Identifier: MIT
#include "common/ReceiptFiles.h"
#include "tests/support/BadDays.h"
#include "tests/support/Shop.h"
#include "tests/support/TestMain.h"

#include <QDir>

#include <sys/stat.h>

class TestReceiptFiles : public QObject
{
    Q_OBJECT

private slots:
    void haveTheirNames();
    void aMissingFileIsNothing();
    void anEmptyFileIsEmptyText();
    void lineEndsStayAsTheyAre();
    void readsUpToTheFirstNul();
    void invalidUtf8BecomesReplacementCharacters();
    void aMegabyteIsReadWhole();
    void aDirectoryIsNothing();
    void anUnreadableFileIsNothing();
    void aFileThatFailsWhileItIsReadIsNothing();
    void anUnreadableFileIsNotReplaced();
};

void TestReceiptFiles::haveTheirNames()
{
    QCOMPARE(QString(ReceiptFiles::header), QStringLiteral("EnteteFormulaire.dat"));
    QCOMPARE(QString(ReceiptFiles::footer), QStringLiteral("PiedFormulaire.dat"));
}

void TestReceiptFiles::aMissingFileIsNothing()
{
    const Shop shop(Shop::Database::None);
    QVERIFY(!ReceiptFiles::read(ReceiptFiles::header).has_value());
}

void TestReceiptFiles::anEmptyFileIsEmptyText()
{
    const Shop shop(Shop::Database::None);
    shop.write(ReceiptFiles::header, QByteArray());
    QVERIFY(ReceiptFiles::read(ReceiptFiles::header).has_value());
    QCOMPARE(*ReceiptFiles::read(ReceiptFiles::header), QString());
}

void TestReceiptFiles::lineEndsStayAsTheyAre()
{
    const Shop shop(Shop::Database::None);
    shop.write(ReceiptFiles::footer, "Merci à vous\r\ntitre:À bientôt €\n");
    QCOMPARE(*ReceiptFiles::read(ReceiptFiles::footer),
        QStringLiteral("Merci à vous\r\ntitre:À bientôt €\n"));
}

void TestReceiptFiles::readsUpToTheFirstNul()
{
    const Shop shop(Shop::Database::None);
    shop.write(ReceiptFiles::header, QByteArray("Bar\nRue\0 du Port\nx\0y", 19));
    QCOMPARE(*ReceiptFiles::read(ReceiptFiles::header), QStringLiteral("Bar\nRue"));
    shop.write(ReceiptFiles::header, QByteArray("\0Bar", 4));
    QCOMPARE(*ReceiptFiles::read(ReceiptFiles::header), QString());
}

void TestReceiptFiles::invalidUtf8BecomesReplacementCharacters()
{
    const Shop shop(Shop::Database::None);
    shop.write(ReceiptFiles::header, "Caf\xE9 noir");
    QCOMPARE(*ReceiptFiles::read(ReceiptFiles::header), QStringLiteral("Caf\uFFFD noir"));
}

void TestReceiptFiles::aMegabyteIsReadWhole()
{
    const Shop shop(Shop::Database::None);
    shop.write(ReceiptFiles::header, QByteArray("12 rue X\n").repeated(120000));
    QCOMPARE(ReceiptFiles::read(ReceiptFiles::header)->size(), 1080000);
}

void TestReceiptFiles::aDirectoryIsNothing()
{
    const Shop shop(Shop::Database::None);
    QVERIFY(QDir().mkdir(ReceiptFiles::header));
    QVERIFY(!ReceiptFiles::read(ReceiptFiles::header).has_value());
}

void TestReceiptFiles::anUnreadableFileIsNothing()
{
    const Shop shop(Shop::Database::None);
    shop.write(ReceiptFiles::header, "Bar");
    QVERIFY(chmod("EnteteFormulaire.dat", 0) == 0);
    QVERIFY(chmod(".", 0777) == 0);
    const OrdinaryUser user;
    QVERIFY(!ReceiptFiles::read(ReceiptFiles::header).has_value());
}

// The first page of a process' memory opens like a file and fails like a damaged disk.
void TestReceiptFiles::aFileThatFailsWhileItIsReadIsNothing()
{
    const Shop shop(Shop::Database::None);
    QVERIFY(QFile::link(QStringLiteral("/proc/self/mem"), ReceiptFiles::header));
    QVERIFY(!ReceiptFiles::read(ReceiptFiles::header).has_value());
    QVERIFY(!ReceiptFiles::replace(ReceiptFiles::header, QStringLiteral("Bar")));
}

void TestReceiptFiles::anUnreadableFileIsNotReplaced()
{
    const Shop shop(Shop::Database::None);
    shop.write(ReceiptFiles::header, "Bar");
    QVERIFY(chmod("EnteteFormulaire.dat", 0222) == 0);
    QVERIFY(chmod(".", 0777) == 0);
    {
        const OrdinaryUser user;
        QVERIFY(!ReceiptFiles::replace(ReceiptFiles::header, QStringLiteral("Rue")));
    }
    QVERIFY(chmod("EnteteFormulaire.dat", 0644) == 0);
    QCOMPARE(shop.read(ReceiptFiles::header), QByteArray("Bar"));
}

VENDEL_TEST_MAIN(TestReceiptFiles)
#include "tst_ReceiptFiles.moc"
