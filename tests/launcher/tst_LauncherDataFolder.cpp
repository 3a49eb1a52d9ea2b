// SPDX-License-Identifier: MIT
#include "launcher/DataFolder.h"
#include "tests/launcher/ShopFolder.h"
#include "tests/support/TestProgram.h"

#include <chrono>
#include <future>

class TestLauncherDataFolder : public QObject
{
    Q_OBJECT

private slots:
    void theEnvironmentSaysWhere()
    {
        qputenv("XDG_DATA_HOME", "/srv/shop");
        qputenv("HOME", "/home/paul");
        QCOMPARE(DataFolder::find(), std::string("/srv/shop/vendel"));
        qputenv("XDG_DATA_HOME", "relative");
        QCOMPARE(DataFolder::find(), std::string("/home/paul/.local/share/vendel"));
        qunsetenv("HOME");
        QCOMPARE(DataFolder::find(), std::string());
        QCOMPARE(refusal([] { DataFolder folder(""); }),
            QString("No home directory is known for the till's data."));
    }

    void aMissingFolderIsMadeForItsUserAlone()
    {
        const ShopFolder shop;
        const DataFolder folder(shop.name() + "/a/b/vendel");
        QCOMPARE(QDir::currentPath(), shop.path() + "/a/b/vendel");
        QCOMPARE(ShopFolder::mode("."), mode_t(0700));
        QCOMPARE(ShopFolder::mode(".."), mode_t(0700));
    }

    void allInItBecomesItsUsersAlone()
    {
        const ShopFolder shop;
        QVERIFY(QDir().mkdir(QString("copies")));
        shop.write(QString("copies/Vendel-2026-03-05.db"), "copy");
        shop.write(QString("outside"), "theirs");
        QVERIFY(QDir().mkdir(QString("elsewhere")));
        QVERIFY(QFile::rename(QString("outside"), QString("elsewhere/outside")));
        QVERIFY(QFile::link(QString("elsewhere/outside"), QString("link")));
        for (const char* file : {"Vendel.db", "copies/Vendel-2026-03-05.db", "elsewhere/outside"}) {
            QCOMPARE(chmod(file, 0644), 0);
        }
        QCOMPARE(chmod("copies", 0755), 0);
        QCOMPARE(chmod(".", 0755), 0);
        DataFolder folder(shop.name());
        folder.close();
        QCOMPARE(ShopFolder::mode("."), mode_t(0700));
        QCOMPARE(ShopFolder::mode("copies"), mode_t(0700));
        QCOMPARE(ShopFolder::mode("Vendel.db"), mode_t(0600));
        QCOMPARE(ShopFolder::mode("copies/Vendel-2026-03-05.db"), mode_t(0600));
        QCOMPARE(ShopFolder::mode("elsewhere/outside"), mode_t(0644));
    }

    void onlyOneTillAtATime()
    {
        const ShopFolder shop;
        DataFolder first(shop.name());
        first.lock();
        const QString open = "The till is already open on the data in \"" + shop.path() + "\".";
        QCOMPARE(refusal([&] {
            DataFolder second(shop.name());
            second.lock();
        }),
            open);
    }

    void aStartWaitsForTheLastCopyOfTheTillBefore()
    {
        const ShopFolder shop;
        DataFolder first(shop.name());
        first.lock();
        first.announceEnd();
        auto starting = std::async(std::launch::async, [&] {
            return refusal([&] {
                DataFolder second(shop.name());
                second.lock();
            });
        });
        QVERIFY(starting.wait_for(std::chrono::milliseconds(100)) == std::future_status::timeout);
        first.unlock();
        QCOMPARE(starting.get(), QString());
    }

    void anEndThatWasAnnouncedIsNotTheNextTills()
    {
        const ShopFolder shop;
        {
            DataFolder first(shop.name());
            first.lock();
            first.announceEnd();
        }
        DataFolder second(shop.name());
        second.lock();
        QVERIFY(refusal([&] {
            DataFolder third(shop.name());
            third.lock();
        }).contains(QString("already open")));
    }

    void aLockEndsWithItsOwner()
    {
        const ShopFolder shop;
        {
            DataFolder first(shop.name());
            first.lock();
        }
        DataFolder second(shop.name());
        QCOMPARE(refusal([&] { second.lock(); }), QString());
    }

    void aPlantedLockIsRefused()
    {
        const ShopFolder shop;
        shop.write(QString("outside"), "theirs");
        QVERIFY(QFile::link(QString("outside"), QString(".verrou")));
        DataFolder folder(shop.name());
        const QString unwritable = "The data directory \"" + shop.path()
            + "\" cannot be used (nothing can be written there); the copies of the database are in "
              "\""
            + shop.path() + "/copies\".";
        QCOMPARE(refusal([&] { folder.lock(); }), unwritable);
        QVERIFY(QFile::remove(QString(".verrou")));
        QCOMPARE(mkfifo(".verrou", 0600), 0);
        QCOMPARE(refusal([&] { folder.lock(); }), unwritable);
    }

    void somebodyElsesFolderIsRefused()
    {
        if (geteuid() != 0) {
            QSKIP("only root can give a folder away");
        }
        const ShopFolder shop;
        constexpr uid_t somebody = 65534;
        QCOMPARE(chown(".", somebody, somebody), 0);
        const QString refused = refusal([&] { DataFolder folder(shop.name()); });
        QCOMPARE(chown(".", 0, 0), 0);
        QVERIFY2(refused.contains(QString("it belongs to somebody else")), qPrintable(refused));
    }

    void theLanguageIsRemembered()
    {
        const ShopFolder shop;
        QVERIFY(DataFolder::language(shop.name()) == Language::French);
        shop.write(QString("langue"), "en\n");
        QVERIFY(DataFolder::language(shop.name()) == Language::English);
        QVERIFY(DataFolder::language("/nowhere") == Language::French);
    }
};

VENDEL_TEST(TestLauncherDataFolder)
#include "tst_LauncherDataFolder.moc"
