// SPDX-License-Identifier: MIT
#include "launcher/SafeFile.h"
#include "tests/launcher/ShopFolder.h"
#include "tests/support/TestProgram.h"

#include <system_error>

using SafeFile::Existing;

class TestLauncherSafeFile : public QObject
{
    Q_OBJECT

private slots:
    void aFileWithASecondNameIsOnlyRead()
    {
        const ShopFolder shop;
        shop.write(QString("precious"), "theirs");
        QCOMPARE(link("precious", "planted"), 0);
        QVERIFY(SafeFile::openRegular(shop.get(), "planted", O_RDONLY));
        QVERIFY(!SafeFile::openRegular(shop.get(), "planted", O_RDWR));
        QVERIFY(!SafeFile::openRegular(shop.get(), "planted", O_WRONLY | O_APPEND));
    }

    void whatIsWrittenIsReadForItsUserAlone()
    {
        const ShopFolder shop;
        SafeFile::write(shop.get(), "langue", "en\n", Existing::Keep);
        QCOMPARE(*SafeFile::read(shop.get(), "langue", 10), std::string("en\n"));
        QCOMPARE(ShopFolder::mode("langue"), mode_t(0600));
        SafeFile::write(shop.get(), "langue", "fr\n", Existing::Replace);
        QCOMPARE(shop.read(QString("langue")), QByteArray("fr\n"));
        QCOMPARE(ShopFolder::names(".", ".*"), QStringList());
    }

    void onlySmallRegularFilesAreRead()
    {
        const ShopFolder shop;
        shop.write(QString("large"), "12345");
        QVERIFY(!SafeFile::read(shop.get(), "large", 4));
        QVERIFY(SafeFile::read(shop.get(), "large", 5));
        QVERIFY(QFile::link(QString("large"), QString("link")));
        QVERIFY(!SafeFile::read(shop.get(), "link", 10));
        QCOMPARE(mkfifo("fifo", 0600), 0);
        QVERIFY(!SafeFile::read(shop.get(), "fifo", 10));
        QVERIFY(!SafeFile::read(shop.get(), "missing", 10));
    }

    void nothingIsWrittenThroughALink()
    {
        const ShopFolder shop;
        shop.write(QString("outside"), "theirs");
        QVERIFY(QFile::link(QString("outside"), QString("langue")));
        QVERIFY(QFile::link(QString("outside"), QString(".langue.neuf")));
        SafeFile::write(shop.get(), "langue", "en\n", Existing::Replace);
        QCOMPARE(shop.read(QString("outside")), QByteArray("theirs"));
        QVERIFY(!QFileInfo(QString("langue")).isSymLink());
        QCOMPARE(shop.read(QString("langue")), QByteArray("en\n"));
    }

    void aFifoInTheWayIsNotWaitedFor()
    {
        const ShopFolder shop;
        QCOMPARE(mkfifo(".langue.neuf", 0600), 0);
        QCOMPARE(mkfifo("langue", 0600), 0);
        SafeFile::write(shop.get(), "langue", "en\n", Existing::Replace);
        QCOMPARE(shop.read(QString("langue")), QByteArray("en\n"));
    }

    void whatIsThereCanBeKept()
    {
        const ShopFolder shop;
        shop.write(QString("a"), "old");
        QVERIFY_EXCEPTION_THROWN(
            SafeFile::write(shop.get(), "a", "new", Existing::Keep), std::system_error);
        QCOMPARE(shop.read(QString("a")), QByteArray("old"));
        QVERIFY(!QFile::exists(QString(".a.neuf")));
    }

    void aFailureLeavesNothing()
    {
        const ShopFolder shop;
        QVERIFY(QDir().mkdir(QString("langue")));
        QVERIFY_EXCEPTION_THROWN(
            SafeFile::write(shop.get(), "langue", "en\n", Existing::Replace), std::system_error);
        QCOMPARE(ShopFolder::names("."), QStringList{QString("Vendel.db")});
    }
};

VENDEL_TEST(TestLauncherSafeFile)
#include "tst_LauncherSafeFile.moc"
