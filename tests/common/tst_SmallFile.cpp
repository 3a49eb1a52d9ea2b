// SPDX-License-Identifier: MIT
#include "common/SmallFile.h"
#include "tests/support/Failures.h"
#include "tests/support/Captured.h"
#include "tests/support/Shop.h"
#include "tests/support/TestProgram.h"

#include <QDir>

#include <functional>

#include <sys/stat.h>

Q_DECLARE_METATYPE(std::function<void()>)

namespace {
const QString name = QString("Essai é.dat");
constexpr qint64 fourMegabytes = 4'194'304;

void makeSparse(qint64 size)
{
    QFile file(name);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(file.resize(size));
}
} // namespace

class TestSmallFile : public QObject
{
    Q_OBJECT

private slots:
    void everyByteIsRead()
    {
        const Shop shop(Shop::Database::None);
        const CapturedLog log;
        shop.write(name, QByteArray("a\r\n\0\xff", 5));
        QCOMPARE(SmallFile::read(name).value(), QByteArray("a\r\n\0\xff", 5));
        shop.write(name, QByteArray());
        QCOMPARE(SmallFile::read(name).value(), QByteArray());
        shop.write(name, QByteArray("123456789\n").repeated(100'000));
        QVERIFY(SmallFile::read(name).value() == QByteArray("123456789\n").repeated(100'000));
        QCOMPARE(log.criticals(), QStringList());
    }

    void aLinkIsFollowed()
    {
        const Shop shop(Shop::Database::None);
        shop.write(QString("Bar"), "Rue");
        QVERIFY(QFile::link(QString("Bar"), QString("Lien")));
        QVERIFY(QFile::link(QString("Lien"), name));
        QCOMPARE(SmallFile::read(name).value(), QByteArray("Rue"));
    }

    void aMissingFileIsNoTrouble()
    {
        const Shop shop(Shop::Database::None);
        const CapturedLog log;
        QVERIFY(!SmallFile::read(name));
        QVERIFY(QFile::link(QString("nowhere"), name));
        QVERIFY(!SmallFile::read(name));
        QCOMPARE(log.criticals(), QStringList());
    }

    void fourMegabytesAreRead()
    {
        const Shop shop(Shop::Database::None);
        const CapturedLog log;
        makeSparse(fourMegabytes);
        QCOMPARE(SmallFile::read(name).value().size(), 4'194'304);
        QCOMPARE(log.criticals(), QStringList());
    }

    void whatCannotBeReadIsLogged_data()
    {
        QTest::addColumn<std::function<void()>>("make");
        QTest::addColumn<QString>("reason");
        const auto row
            = [](const char* what, const std::function<void()>& make, const char* reason) {
                  QTest::newRow(what) << make << QString::fromUtf8(reason);
              };
        const auto link = [](const char* target) {
            return [target] { QVERIFY(QFile::link(QString::fromUtf8(target), name)); };
        };
        const char* noFile = "it is not a regular file";
        const char* tooLarge = "it is larger than 4 MB";
        row(
            "a byte too many", [] { makeSparse(fourMegabytes + 1); }, tooLarge);
        row(
            "a huge sparse file", [] { makeSparse(1LL << 40); }, tooLarge);
        row(
            "a FIFO that nobody writes to",
            [] { QVERIFY(mkfifo(QFile::encodeName(name).constData(), 0600) == 0); }, noFile);
        row(
            "a folder", [] { QVERIFY(QDir().mkdir(name)); }, noFile);
        row("a device that never ends", link("/dev/zero"), noFile);
        row("a device that nothing comes from", link("/dev/null"), noFile);
        row("a link to itself", link("Essai é.dat"), "Too many levels of symbolic links");
        // The first page of a process' memory opens like a file and fails like a damaged disk.
        row("a damaged disk", link("/proc/self/mem"), "Input/output error");
    }

    void whatCannotBeReadIsLogged()
    {
        QFETCH(std::function<void()>, make);
        QFETCH(QString, reason);
        const Shop shop(Shop::Database::None);
        make();
        const CapturedLog log;
        QVERIFY(!SmallFile::read(name));
        QCOMPARE(log.criticals(), QStringList(QString("Essai é.dat is not read: ") + reason));
    }

    void aFileWithoutRightsIsLogged()
    {
        const Shop shop(Shop::Database::None);
        shop.write(name, "Bar");
        QVERIFY(chmod(QFile::encodeName(name).constData(), 0) == 0);
        QVERIFY(chmod(".", 0777) == 0);
        const OrdinaryUser user;
        const CapturedLog log;
        QVERIFY(!SmallFile::read(name));
        QCOMPARE(
            log.criticals(), QStringList(QString("Essai é.dat is not read: Permission denied")));
    }

    void aFileWithoutASizeIsReadToItsEnd()
    {
        const Shop shop(Shop::Database::None);
        QVERIFY(QFile::link(QString("/proc/self/comm"), name));
        QCOMPARE(SmallFile::read(name).value(), QByteArray("tests_common\n"));
    }

    // The kernel writes a process' page map as it is read: no size, and far more than 4 MB.
    void aFileThatNeverEndsIsRefused()
    {
        const Shop shop(Shop::Database::None);
        QVERIFY(QFile::link(QString("/proc/self/pagemap"), name));
        const CapturedLog log;
        QVERIFY(!SmallFile::read(name));
        QCOMPARE(log.criticals(),
            QStringList(QString("Essai é.dat is not read: it is larger than 4 MB")));
    }
};

VENDEL_TEST(TestSmallFile)
#include "tst_SmallFile.moc"
