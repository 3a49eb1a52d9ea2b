// SPDX-License-Identifier: MIT
#include "common/ReceiptFiles.h"
#include "tests/support/Failures.h"
#include "tests/support/Captured.h"
#include "tests/support/Shop.h"
#include "tests/support/TestProgram.h"

#include <QDir>
#include <QFileInfo>

#include <sys/stat.h>

class TestReceiptFiles : public QObject
{
    Q_OBJECT

private slots:
    void haveTheirNames()
    {
        QCOMPARE(QString(ReceiptFiles::header), QString("EnteteFormulaire.dat"));
        QCOMPARE(QString(ReceiptFiles::footer), QString("PiedFormulaire.dat"));
    }

    void aMissingFileIsNothing()
    {
        const Shop shop(Shop::Database::None);
        QVERIFY(!ReceiptFiles::read(ReceiptFiles::header).has_value());
    }

    void anEmptyFileIsEmptyText()
    {
        const Shop shop(Shop::Database::None);
        shop.write(ReceiptFiles::header, QByteArray());
        QVERIFY(ReceiptFiles::read(ReceiptFiles::header).has_value());
        QCOMPARE(*ReceiptFiles::read(ReceiptFiles::header), QString());
    }

    void lineEndsStayAsTheyAre()
    {
        const Shop shop(Shop::Database::None);
        shop.write(ReceiptFiles::footer, "Merci à vous\r\ntitre:À bientôt €\n");
        QCOMPARE(*ReceiptFiles::read(ReceiptFiles::footer),
            QString("Merci à vous\r\ntitre:À bientôt €\n"));
    }

    void readsUpToTheFirstNul()
    {
        const Shop shop(Shop::Database::None);
        shop.write(ReceiptFiles::header, QByteArray("Bar\nRue\0 du Port\nx\0y", 19));
        QCOMPARE(*ReceiptFiles::read(ReceiptFiles::header), QString("Bar\nRue"));
        shop.write(ReceiptFiles::header, QByteArray("\0Bar", 4));
        QCOMPARE(*ReceiptFiles::read(ReceiptFiles::header), QString());
    }

    void invalidUtf8BecomesReplacementCharacters()
    {
        const Shop shop(Shop::Database::None);
        shop.write(ReceiptFiles::header, "Caf\xE9 noir");
        QCOMPARE(*ReceiptFiles::read(ReceiptFiles::header), QString("Caf\uFFFD noir"));
    }

    void aMegabyteIsReadWhole()
    {
        const Shop shop(Shop::Database::None);
        shop.write(ReceiptFiles::header, QByteArray("12 rue X\n").repeated(120000));
        QCOMPARE(ReceiptFiles::read(ReceiptFiles::header)->size(), 1080000);
    }

    void aDirectoryIsNothing()
    {
        const Shop shop(Shop::Database::None);
        QVERIFY(QDir().mkdir(ReceiptFiles::header));
        QVERIFY(!ReceiptFiles::read(ReceiptFiles::header).has_value());
    }

    void anUnreadableFileIsNothing()
    {
        const Shop shop(Shop::Database::None);
        shop.write(ReceiptFiles::header, "Bar");
        QVERIFY(chmod("EnteteFormulaire.dat", 0) == 0);
        QVERIFY(chmod(".", 0777) == 0);
        const OrdinaryUser user;
        QVERIFY(!ReceiptFiles::read(ReceiptFiles::header).has_value());
    }

    // The first page of a process' memory opens like a file and fails like a damaged disk.
    void aFileThatFailsWhileItIsReadIsNothing()
    {
        const Shop shop(Shop::Database::None);
        QVERIFY(QFile::link(QString("/proc/self/mem"), ReceiptFiles::header));
        QVERIFY(!ReceiptFiles::read(ReceiptFiles::header).has_value());
        QVERIFY(!ReceiptFiles::replace(ReceiptFiles::header, QString("Bar")));
    }

    void anUnreadableFileIsNotReplaced()
    {
        const Shop shop(Shop::Database::None);
        shop.write(ReceiptFiles::header, "Bar");
        QVERIFY(chmod("EnteteFormulaire.dat", 0222) == 0);
        QVERIFY(chmod(".", 0777) == 0);
        {
            const OrdinaryUser user;
            QVERIFY(!ReceiptFiles::replace(ReceiptFiles::header, QString("Rue")));
        }
        QVERIFY(chmod("EnteteFormulaire.dat", 0644) == 0);
        QCOMPARE(shop.read(ReceiptFiles::header), QByteArray("Bar"));
    }

    void aFifoIsNeitherReadNorReplaced()
    {
        const Shop shop(Shop::Database::None);
        QVERIFY(mkfifo("EnteteFormulaire.dat", 0600) == 0);
        const CapturedLog log;
        QVERIFY(!ReceiptFiles::read(ReceiptFiles::header).has_value());
        QVERIFY(!ReceiptFiles::replace(ReceiptFiles::header, QString("Bar")));
        struct stat status
        { };
        QVERIFY(stat("EnteteFormulaire.dat", &status) == 0);
        QVERIFY(S_ISFIFO(status.st_mode));
        const QString line = QString("EnteteFormulaire.dat is not read: it is not a regular file");
        QCOMPARE(log.criticals(), (QStringList{line, line}));
    }

    void aFileThatIsTooLargeIsNeitherReadNorReplaced()
    {
        const Shop shop(Shop::Database::None);
        shop.write(ReceiptFiles::header, "Bar");
        QVERIFY(QFile::resize(ReceiptFiles::header, 4'194'305));
        const CapturedLog log;
        QVERIFY(!ReceiptFiles::read(ReceiptFiles::header).has_value());
        QVERIFY(!ReceiptFiles::replace(ReceiptFiles::header, QString("Rue")));
        QCOMPARE(QFileInfo(ReceiptFiles::header).size(), 4'194'305);
        QCOMPARE(log.criticals().size(), 2);
    }

    void aTextThatIsTooLongIsNotWritten()
    {
        const Shop shop(Shop::Database::None);
        shop.write(ReceiptFiles::footer, "Merci");
        QVERIFY(!ReceiptFiles::replace(ReceiptFiles::footer, QString(4'194'305, 'x')));
        QCOMPARE(shop.read(ReceiptFiles::footer), QByteArray("Merci"));
        QVERIFY(ReceiptFiles::replace(ReceiptFiles::footer, QString(4'194'304, 'x')));
        QCOMPARE(ReceiptFiles::read(ReceiptFiles::footer)->size(), 4'194'304);
    }
};

VENDEL_TEST(TestReceiptFiles)
#include "tst_ReceiptFiles.moc"
