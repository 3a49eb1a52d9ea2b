// SPDX-License-Identifier: MIT
#include "common/ReceiptFiles.h"
#include "tests/support/Captured.h"
#include "tests/support/Failures.h"
#include "tests/support/Rows.h"
#include "tests/support/Shop.h"
#include "tests/support/TestProgram.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <functional>

#include <sys/stat.h>

/// Files that cannot be read, and texts that cannot be written.
class TestReceiptFilesFailures : public QObject
{
    Q_OBJECT

private slots:
    void whatIsNoFileToReadIsNothingAndNotReplaced()
    {
        using Make = std::function<bool()>;
        const Rows<Make> rows{
            {"a folder", [] { return QDir().mkdir(ReceiptFiles::header); }},
            {"a FIFO", [] { return mkfifo("EnteteFormulaire.dat", 0600) == 0; }},
            // The first page of a process' memory opens like a file and fails like a damaged disk.
            {"a damaged disk", [] { return QFile::link("/proc/self/mem", ReceiptFiles::header); }},
        };
        for (const auto& [row, make] : rows) {
            const InRow inRow(row);
            const Shop shop(Shop::Database::None);
            QVERIFY(make());
            const mode_t before = modeOfHeader();
            const CapturedLog log;
            compareUnreadable();
            QCOMPARE(modeOfHeader(), before);
            QCOMPARE(log.criticals().size(), 2);
        }
    }

    void anUnreadableFileIsNothingAndNotReplaced()
    {
        const Shop shop(Shop::Database::None);
        shop.write(ReceiptFiles::header, "Bar");
        QVERIFY(chmod("EnteteFormulaire.dat", 0222) == 0 && chmod(".", 0777) == 0);
        {
            const OrdinaryUser user;
            compareUnreadable();
        }
        QVERIFY(chmod("EnteteFormulaire.dat", 0644) == 0);
        QCOMPARE(shop.read(ReceiptFiles::header), QByteArray("Bar"));
    }

    void aFileThatIsTooLargeIsNothingAndNotReplaced()
    {
        const Shop shop(Shop::Database::None);
        shop.write(ReceiptFiles::header, "Bar");
        QVERIFY(QFile::resize(ReceiptFiles::header, 4'194'305));
        const CapturedLog log;
        compareUnreadable();
        QCOMPARE(QFileInfo(ReceiptFiles::header).size(), 4'194'305);
        const QString line = "EnteteFormulaire.dat is not read: it is larger than 4 MB";
        QCOMPARE(log.criticals(), QStringList({line, line}));
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

private:
    static mode_t modeOfHeader()
    {
        struct stat status
        { };
        return stat("EnteteFormulaire.dat", &status) == 0 ? status.st_mode : 0;
    }

    static void compareUnreadable()
    {
        QVERIFY(!ReceiptFiles::read(ReceiptFiles::header).has_value());
        QVERIFY(!ReceiptFiles::replace(ReceiptFiles::header, "Rue"));
    }
};

VENDEL_TEST(TestReceiptFilesFailures)
#include "tst_ReceiptFiles_failures.moc"
