// SPDX-License-Identifier: MIT
#include "common/SmallFile.h"
#include "tests/support/Captured.h"
#include "tests/support/Failures.h"
#include "tests/support/Rows.h"
#include "tests/support/Shop.h"
#include "tests/support/TestProgram.h"

#include <QDir>
#include <QFile>

#include <functional>

#include <sys/stat.h>

namespace {
using Make = std::function<void()>;

const QString name = "Essai é.dat";

Make sparse(qint64 size)
{
    return [=] {
        QFile file(name);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QVERIFY(file.resize(size));
    };
}

Make link(const char* target)
{
    return [=] { QVERIFY(QFile::link(target, name)); };
}
} // namespace

class TestSmallFileFailures : public QObject
{
    Q_OBJECT

private slots:
    void whatCannotBeReadIsLogged()
    {
        const char* noFile = "it is not a regular file";
        const char* tooLarge = "it is larger than 4 MB";
        const Make fifo = [] { QCOMPARE(mkfifo(QFile::encodeName(name).constData(), 0600), 0); };
        const Rows<Make, QString> rows{
            {"a byte too many", sparse(4'194'305), tooLarge},
            {"a huge sparse file", sparse(1LL << 40), tooLarge},
            {"a FIFO that nobody writes to", fifo, noFile},
            {"a folder", [] { QVERIFY(QDir().mkdir(name)); }, noFile},
            {"a device that never ends", link("/dev/zero"), noFile},
            {"a device that nothing comes from", link("/dev/null"), noFile},
            {"a link to itself", link("Essai é.dat"), "Too many levels of symbolic links"},
            // The first page of a process' memory opens like a file and fails like a damaged
            // disk.
            {"a damaged disk", link("/proc/self/mem"), "Input/output error"},
            // The kernel writes a process' page map as it is read: no size, and far more than
            // 4 MB.
            {"a file that never ends", link("/proc/self/pagemap"), tooLarge},
        };
        for (const auto& [row, make, reason] : rows) {
            const InRow inRow(row);
            const Shop shop(Shop::Database::None);
            make();
            const CapturedLog log;
            QVERIFY(!SmallFile::read(name));
            QCOMPARE(log.criticals(), QStringList("Essai é.dat is not read: " + reason));
        }
    }

    void aFileWithoutRightsIsLogged()
    {
        const Shop shop(Shop::Database::None);
        shop.write(name, "Bar");
        QCOMPARE(chmod(QFile::encodeName(name).constData(), 0), 0);
        QCOMPARE(chmod(".", 0777), 0);
        const OrdinaryUser user;
        const CapturedLog log;
        QVERIFY(!SmallFile::read(name));
        QCOMPARE(log.criticals(), QStringList("Essai é.dat is not read: Permission denied"));
    }
};

VENDEL_TEST(TestSmallFileFailures)
#include "tst_SmallFile_failures.moc"
