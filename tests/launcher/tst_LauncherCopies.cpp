// SPDX-License-Identifier: MIT
#include "launcher/Copies.h"
#include "launcher/CopyChoice.h"
#include "launcher/SafeFile.h"
#include "tests/launcher/ShopFolder.h"
#include "tests/support/TestProgram.h"

#include <QElapsedTimer>

#include <algorithm>
#include <chrono>
#include <future>

#include <sys/file.h>
#include <sys/wait.h>

namespace {
const Moment noon{"2026-03-05", "120000"};

QStringList copyNames() { return ShopFolder::names("copies", "Vendel-*"); }

void sell(const ShopFolder& shop)
{
    shop.fill("insert into Historique (id, article, prix) values (1, 'Thé', 2)");
}

/// Stands for a day of work with a copy at its end.
void workAndCopy(const ShopFolder& shop, const Moment& moment)
{
    sell(shop);
    Copies(shop.get()).make(moment, Backup::Pace::Full);
}
} // namespace

class TestLauncherCopies : public QObject
{
    Q_OBJECT

private slots:
    void aCopyIsSoundAndItsUsersAlone()
    {
        const ShopFolder shop;
        sell(shop);
        const Copies copies(shop.get());
        QVERIFY(copies.isDueAtStart(noon));
        copies.make(noon, Backup::Pace::Full);
        QCOMPARE(ShopFolder::names("copies"),
            (QStringList{QString(".registre"), QString("Vendel-2026-03-05.db")}));
        QCOMPARE(ShopFolder::unsoundness("copies/Vendel-2026-03-05.db"), QString());
        QCOMPARE(
            ShopFolder::foreign("copies/Vendel-2026-03-05.db", "select count(*) from Historique"),
            QByteArray("1"));
        QCOMPARE(ShopFolder::mode("copies"), mode_t(0700));
        QCOMPARE(ShopFolder::mode("copies/Vendel-2026-03-05.db"), mode_t(0600));
    }

    void anUnchangedDatabaseIsCopiedOncePerDay()
    {
        const ShopFolder shop;
        const Copies copies(shop.get());
        copies.make(noon, Backup::Pace::Full);
        QVERIFY(!copies.isChanged());
        QVERIFY(!copies.isDueAtStart({"2026-03-05", "235959"}));
        QVERIFY(copies.isDueAtStart({"2026-03-06", "000000"}));
        QVERIFY(!copies.isChanged());
        sell(shop);
        QVERIFY(copies.isChanged());
        QVERIFY(copies.isDueAtStart({"2026-03-05", "235959"}));
    }

    void withoutADatabaseNothingIsDue()
    {
        const ShopFolder shop(Shop::Database::None);
        QVERIFY(!Copies(shop.get()).isChanged());
        QVERIFY(!Copies(shop.get()).isDueAtStart(noon));
    }

    void laterCopiesOfADayHaveTheirTime()
    {
        const ShopFolder shop;
        for (int count = 0; count < 4; ++count) {
            workAndCopy(shop, noon);
        }
        QCOMPARE(copyNames(),
            (QStringList{QString("Vendel-2026-03-05-1200-2.db"),
                QString("Vendel-2026-03-05-1200-3.db"), QString("Vendel-2026-03-05-1200.db"),
                QString("Vendel-2026-03-05.db")}));
    }

    void thirtyCopiesOfTheFutureDoNotPushOutTodays()
    {
        const ShopFolder shop;
        for (int day = 1; day <= 30; ++day) {
            const QString date = QString("2099-01-%1").arg(day, 2, 10, QLatin1Char('0'));
            workAndCopy(shop, {date.toStdString(), "090000"});
        }
        for (const char* day : {"2026-03-05", "2026-03-06", "2026-03-07"}) {
            workAndCopy(shop, {day, "090000"});
            QVERIFY(copyNames().contains(QString("Vendel-%1.db").arg(QString(day))));
        }
        // Each of the future is the last of an hour that has one.
        QCOMPARE(copyNames().size(), 33);
    }

    void copiesOfTheFutureThatNobodyRegisteredDoNotEither()
    {
        const ShopFolder shop;
        QVERIFY(QDir().mkdir(QString("copies")));
        for (int day = 1; day <= 60; ++day) {
            shop.write(QString("copies/Vendel-20%1-01-01.db").arg(day + 30), "from a stick");
        }
        workAndCopy(shop, noon);
        QCOMPARE(copyNames().size(), 48);
        QCOMPARE(copyNames().constFirst(), QString("Vendel-2026-03-05.db"));
        QCOMPARE(copyNames().at(1), QString("Vendel-2044-01-01.db"));
    }

    void aClockThatIsStuckMakesOneCopyAfterTheOther()
    {
        const ShopFolder shop;
        const Moment stuck{"1970-01-01", "010000"};
        for (int day = 0; day < 15; ++day) {
            sell(shop);
            QVERIFY(Copies(shop.get()).isDueAtStart(stuck));
            Copies(shop.get()).make(stuck, Backup::Pace::Full);
        }
        const auto left = Copies(shop.get()).entries();
        QCOMPARE(left.size(), std::size_t(11));
        QCOMPARE(ShopFolder::foreign(("copies/" + left.back().name.file()).c_str(),
                     "select count(*) from Historique"),
            QByteArray("15"));
        QCOMPARE(ShopFolder::foreign(("copies/" + left.front().name.file()).c_str(),
                     "select count(*) from Historique"),
            QByteArray("1"));
    }

    void withoutItsRegisterNamesGiveTheOrder()
    {
        const ShopFolder shop;
        for (const char* time : {"080000", "090000", "100000"}) {
            workAndCopy(shop, {"2026-03-05", time});
        }
        QVERIFY(QFile::remove(QString("copies/.registre")));
        const auto all = Copies(shop.get()).entries();
        QCOMPARE(all.at(0).name.stem, std::string("2026-03-05"));
        QCOMPARE(all.at(1).name.stem, std::string("2026-03-05-0900"));
        QCOMPARE(all.at(2).name.stem, std::string("2026-03-05-1000"));
        QVERIFY(Copies(shop.get()).isChanged());
    }

    void aCopyThatSomebodyPutThereStays()
    {
        const ShopFolder shop;
        for (int day = 1; day <= 31; ++day) {
            const QString date = QString("2026-01-%1").arg(day, 2, 10, QLatin1Char('0'));
            workAndCopy(shop, {date.toStdString(), "090000"});
        }
        shop.write(QString("copies/Vendel-2025-12-24.db"), "from a stick");
        workAndCopy(shop, {"2026-02-01", "090000"});
        workAndCopy(shop, {"2026-02-02", "090000"});
        QVERIFY(QFile::exists(QString("copies/Vendel-2025-12-24.db")));
        QVERIFY(!QFile::exists(QString("copies/Vendel-2026-01-03.db")));
        QVERIFY(QFile::exists(QString("copies/Vendel-2026-01-04.db")));
    }

    void onlyFilesWithOurNamesGo()
    {
        const ShopFolder shop;
        QVERIFY(QDir().mkdir(QString("copies")));
        const QStringList strange{QString("Vendel-2020-01-01-avant.db"),
            QString("Vendel-2020-01-01-1200-02.db"), QString("Vendel-remplacee-2020-01-01-1200.db"),
            QString("note.txt")};
        for (const QString& name : strange) {
            shop.write("copies/" + name, "theirs");
        }
        for (int day = 1; day <= 31; ++day) {
            shop.write(QString("copies/Vendel-2026-01-%1.db").arg(day, 2, 10, QLatin1Char('0')),
                "january");
        }
        workAndCopy(shop, noon);
        for (const QString& name : strange) {
            QVERIFY(QFile::exists("copies/" + name));
        }
        QVERIFY(!QFile::exists(QString("copies/Vendel-2026-01-02.db")));
        QVERIFY(QFile::exists(QString("copies/Vendel-2026-01-03.db")));
    }

    void aDamagedDatabaseMakesNoCopy()
    {
        const ShopFolder shop;
        workAndCopy(shop, noon);
        QByteArray bytes = shop.read(QString("Vendel.db"));
        bytes.replace(8192, 4096, QByteArray(4096, '\xff'));
        shop.write(QString("Vendel.db"), bytes);
        QVERIFY_EXCEPTION_THROWN(
            Copies(shop.get()).make({"2026-03-06", "120000"}, Backup::Pace::Full), DatabaseError);
        QCOMPARE(copyNames(), QStringList{QString("Vendel-2026-03-05.db")});
        QCOMPARE(ShopFolder::names("copies", ".Vendel*"), QStringList());
    }

    void aLinkInTheWayOfACopyIsNotFollowed()
    {
        const ShopFolder shop;
        QVERIFY(QDir().mkdir(QString("copies")));
        shop.write(QString("outside"), "theirs");
        QVERIFY(QFile::link(shop.path() + "/outside", QString("copies/.Vendel.neuf")));
        QVERIFY(QFile::link(shop.path() + "/outside", QString("copies/.registre")));
        workAndCopy(shop, noon);
        QCOMPARE(shop.read(QString("outside")), QByteArray("theirs"));
        QCOMPARE(ShopFolder::unsoundness("copies/Vendel-2026-03-05.db"), QString());
    }

    void tenThousandCopiesAreListed()
    {
        if (qEnvironmentVariableIsSet("VENDEL_TEST_EMULATED")) {
            QSKIP("an emulator is not as fast as a till");
        }
        const ShopFolder shop;
        QVERIFY(QDir().mkdir(QString("copies")));
        for (int minute = 0; minute < 10000; ++minute) {
            const QString name = QString("copies/Vendel-2026-01-%1-%2%3.db")
                                     .arg(minute / 1440 + 1, 2, 10, QLatin1Char('0'))
                                     .arg(minute / 60 % 24, 2, 10, QLatin1Char('0'))
                                     .arg(minute % 60, 2, 10, QLatin1Char('0'));
            shop.write(name, "x");
        }
        const auto items = CopyChoice::items(Copies(shop.get()));
        QCOMPARE(items.size(), std::size_t(10000));
        QCOMPARE(items.front().name, std::string("2026-01-07-2239"));
    }

    void onlyPlainNamesAreShown()
    {
        const ShopFolder shop;
        QVERIFY(QDir().mkdir(QString("copies")));
        for (const char* name : {"2026-03-05", "2026 03", "2026\n03", "2026-\033[31m", "2026;x",
                 "remplacee-2026-03-05-120000", "remplacee-é", "inachevee-1", "2026-avant"}) {
            shop.write("copies/Vendel-" + QString(name) + ".db", "12345");
        }
        QVERIFY(QFile::link(QString("/etc/passwd"), QString("copies/Vendel-2026-link.db")));
        QCOMPARE(CopyChoice::lines(CopyChoice::items(Copies(shop.get()))),
            std::string("2026-03-05\t5\n2026-avant\t5\nremplacee-2026-03-05-120000\t5\n"));
    }

    void sizesAreRoundedUp()
    {
        QCOMPARE(CopyChoice::readableSize(0), std::string("0"));
        QCOMPARE(CopyChoice::readableSize(1023), std::string("1023"));
        QCOMPARE(CopyChoice::readableSize(1024), std::string("1.0K"));
        QCOMPARE(CopyChoice::readableSize(1025), std::string("1.1K"));
        QCOMPARE(CopyChoice::readableSize(10137), std::string("9.9K"));
        QCOMPARE(CopyChoice::readableSize(10138), std::string("10K"));
        QCOMPARE(CopyChoice::readableSize(253952), std::string("248K"));
        QCOMPARE(CopyChoice::readableSize(1048575), std::string("1.0M"));
    }

    void twoProgramsMakeTheirCopiesOneAfterTheOther()
    {
        const ShopFolder shop;
        constexpr int copiesEach = 8;
        const auto makeSome = [&] {
            for (int count = 0; count < copiesEach; ++count) {
                Copies(shop.get()).make(noon, Backup::Pace::Gentle);
            }
        };
        const pid_t other = fork();
        if (other == 0) {
            try {
                makeSome();
                _exit(0);
            } catch (const std::exception&) {
                _exit(1);
            }
        }
        makeSome();
        int state = -1;
        QCOMPARE(waitpid(other, &state, 0), other);
        QCOMPARE(state, 0);
        // The register knows them all: the ten newest, and the day's first.
        const auto lines = shop.read(QString("copies/.registre")).split('\n');
        const QStringList files = copyNames();
        QCOMPARE(files.size(), 11);
        for (const QString& file : files) {
            QCOMPARE(std::count_if(lines.begin(), lines.end(),
                         [&](const QByteArray& line) {
                             return line.startsWith(file.toUtf8() + ' ') && !line.endsWith(" ?");
                         }),
                1);
            QCOMPARE(ShopFolder::unsoundness(("copies/" + file).toUtf8().constData()), QString());
        }
    }

    void aCopyThatAnotherProgramMakesIsWaitedForInVain()
    {
        const ShopFolder shop;
        workAndCopy(shop, noon);
        const Descriptor other(open("copies", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
        QCOMPARE(flock(other.get(), LOCK_EX), 0);
        try {
            Copies(shop.get()).make(noon, Backup::Pace::Gentle, 0);
            QFAIL("a copy was made");
        } catch (const DatabaseError& error) {
            QCOMPARE(error.code(), SQLITE_BUSY);
        }
        QCOMPARE(copyNames(), QStringList{QString("Vendel-2026-03-05.db")});
    }

    void theTillNeverWaitsLongForACopy()
    {
        if (qEnvironmentVariableIsSet("VENDEL_TEST_EMULATED")) {
            QSKIP("an emulator is not as fast as a till");
        }
        const ShopFolder shop;
        shop.fill(
            "insert into Historique (id, article, prix) with recursive n(i) as (select 1 union "
            "all select i + 1 from n where i < 200000) select i, 'Thé à la menthe', 1 from n");
        sqlite3* opened = nullptr;
        sqlite3_open("Vendel.db", &opened);
        const Handle<sqlite3, sqlite3_close> till(opened);
        // Without waiting for the disk, what is left is the wait for the copy.
        sqlite3_exec(opened, "pragma synchronous = off", nullptr, nullptr, nullptr);
        sqlite3_busy_timeout(opened, 2000);

        auto copying = std::async(
            std::launch::async, [&] { Copies(shop.get()).make(noon, Backup::Pace::Gentle); });
        // Each sale makes a copy begin again: nobody sells for ever at this pace.
        constexpr std::size_t sales = 25;
        std::vector<qint64> waits;
        while (waits.size() < sales
            && copying.wait_for(std::chrono::milliseconds(40)) == std::future_status::timeout) {
            QElapsedTimer time;
            time.start();
            QCOMPARE(
                sqlite3_exec(opened, "insert into Ticket (id, article, prix) values (1, 'a', 2)",
                    nullptr, nullptr, nullptr),
                SQLITE_OK);
            waits.push_back(time.elapsed());
        }
        copying.get();
        QVERIFY(waits.size() > 2);
        // A busy machine may once hold up anybody.
        std::sort(waits.begin(), waits.end());
        QVERIFY2(waits[waits.size() - 2] <= 50, qPrintable(QString::number(waits.back())));
        QCOMPARE(ShopFolder::unsoundness("copies/Vendel-2026-03-05.db"), QString());
    }
};

VENDEL_TEST(TestLauncherCopies)
#include "tst_LauncherCopies.moc"
