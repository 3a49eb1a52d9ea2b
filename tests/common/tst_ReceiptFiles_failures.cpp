// SPDX-License-Identifier: MIT
#include "common/ReceiptFiles.h"
#include "tests/support/Captured.h"
#include "tests/support/Failures.h"
#include "tests/support/Shop.h"
#include "tests/support/TestProgram.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <sys/stat.h>

namespace {
/// Compares that the header's file is nothing to a receipt, and is not replaced.
void compareUnreadable()
{
    QVERIFY(!ReceiptFiles::read(ReceiptFiles::header).has_value());
    QVERIFY(!ReceiptFiles::replace(ReceiptFiles::header, "Rue"));
}
} // namespace

/// Files that cannot be read, and texts that cannot be written.
class TestReceiptFilesFailures : public QObject
{
    Q_OBJECT

private slots:
    void aDirectoryIsNothing()
    {
        const Shop shop(Shop::Database::None);
        QVERIFY(QDir().mkdir(ReceiptFiles::header));
        compareUnreadable();
    }

    void anUnreadableFileIsNothingAndNotReplaced()
    {
        const Shop shop(Shop::Database::None);
        shop.write(ReceiptFiles::header, "Bar");
        QVERIFY(chmod("EnteteFormulaire.dat", 0222) == 0);
        QVERIFY(chmod(".", 0777) == 0);
        {
            const OrdinaryUser user;
            compareUnreadable();
        }
        QVERIFY(chmod("EnteteFormulaire.dat", 0644) == 0);
        QCOMPARE(shop.read(ReceiptFiles::header), QByteArray("Bar"));
    }

    // The first page of a process' memory opens like a file and fails like a damaged disk.
    void aFileThatFailsWhileItIsReadIsNothing()
    {
        const Shop shop(Shop::Database::None);
        QVERIFY(QFile::link("/proc/self/mem", ReceiptFiles::header));
        compareUnreadable();
    }

    void aFifoIsNeitherReadNorReplaced()
    {
        const Shop shop(Shop::Database::None);
        QVERIFY(mkfifo("EnteteFormulaire.dat", 0600) == 0);
        const CapturedLog log;
        compareUnreadable();
        struct stat status
        { };
        QVERIFY(stat("EnteteFormulaire.dat", &status) == 0);
        QVERIFY(S_ISFIFO(status.st_mode));
        const QString line = "EnteteFormulaire.dat is not read: it is not a regular file";
        QCOMPARE(log.criticals(), QStringList({line, line}));
    }

    void aFileThatIsTooLargeIsNeitherReadNorReplaced()
    {
        const Shop shop(Shop::Database::None);
        shop.write(ReceiptFiles::header, "Bar");
        QVERIFY(QFile::resize(ReceiptFiles::header, 4'194'305));
        const CapturedLog log;
        compareUnreadable();
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

VENDEL_TEST(TestReceiptFilesFailures)
#include "tst_ReceiptFiles_failures.moc"
