// SPDX-License-Identifier: MIT
#include "launcher/Copies.h"
#include "launcher/DataFolder.h"
#include "launcher/FileClaim.h"
#include "tests/launcher/StatedShop.h"
#include "tests/support/TestProgram.h"

#include <QElapsedTimer>
#include <QProcess>

#include <algorithm>
#include <chrono>
#include <future>

#include <sys/wait.h>

namespace {
const EmulatedPrinter::Setup noPrinter{.devices = {}};

/// What is said of the database in \a state after its size, in English.
QString verdict(const State& state)
{
    const QString line = StatedShop::english(state).at(2);
    return line.mid(line.indexOf(QString(", ")) + 2);
}

QString french(const State& state)
{
    const QString line = StatedShop::french(state).at(2);
    return line.mid(line.indexOf(QString(", ")) + 2);
}

/// Runs \a sql on the shop's database in a process that is killed before it ends its work.
void cutOff(const char* sql)
{
    QProcess tool;
    tool.start(QString("sqlite3"),
        {QString("-batch"), QString("-init"), QString("/dev/null"), QString("Vendel.db")});
    tool.write(QByteArray(sql) + ";\nselect 'done';\n");
    QVERIFY(tool.waitForStarted());
    QByteArray said;
    while (!said.contains("done") && tool.waitForReadyRead()) {
        said += tool.readAll();
    }
    tool.kill();
    QVERIFY(tool.waitForFinished());
}

/// A change whose first half is in the file, and whose journal undoes it.
const char* const halfAChange
    = "pragma cache_size = 1; begin exclusive; update Config set valeur = 1; insert into "
      "Historique (id, article, prix) with recursive n(i) as (select 1 union all select i + 1 from "
      "n where i < 5000) select i, 'x', 1 from n";
/// The sales of some years: the copy of so much takes long enough to be noticed.
const char* const years
    = "pragma synchronous = off; insert into Historique (id, article, prix) with recursive n(i) as "
      "(select 1 union all select i + 1 from n where i < 600000) select i, 'Thé à la menthe', 1 "
      "from n";
} // namespace

class TestLauncherStateDatabase : public QObject
{
    Q_OBJECT

private slots:
    void aSoundDatabaseIsLeftAsItIs()
    {
        const StatedShop shop(noPrinter);
        shop.addCopy("2026-03-04", 1024);
        QCOMPARE(chmod("Vendel.db", 0644), 0);
        const QStringList before = shop.snapshot();
        const State state = shop.state();
        QCOMPARE(verdict(state), QString("sound"));
        QCOMPARE(state.status, 0);
        QCOMPARE(shop.snapshot(), before);
        QCOMPARE(Copies(shop.get()).entries().size(), std::size_t(1));
    }

    void withoutAFolderOfCopiesNoneIsMade()
    {
        const StatedShop shop(noPrinter);
        const State state = shop.state();
        QCOMPARE(verdict(state), QString("sound"));
        QCOMPARE(StatedShop::english(state).constLast(), QString("To be looked at: the copies."));
        QCOMPARE(ShopFolder::names("."), QStringList{QString("Vendel.db")});
        QVERIFY(!QFile::exists(QString("copies")));
    }

    void aDamagedDatabaseIsTrouble()
    {
        const StatedShop shop(noPrinter);
        shop.addCopy("2026-03-04", 1024);
        QByteArray bytes = shop.read(QString("Vendel.db"));
        bytes.replace(8192, 4096, QByteArray(4096, '\xff'));
        shop.write(QString("Vendel.db"), bytes);
        const QStringList before = shop.snapshot();
        const State state = shop.state();
        QCOMPARE(verdict(state), QString("cannot be used (it is damaged)"));
        QCOMPARE(french(state), QString("inutilisable (elle est endommagée)"));
        QCOMPARE(StatedShop::french(state).constLast(), QString("À voir : la base de données."));
        QCOMPARE(state.status, 1);
        QCOMPARE(shop.snapshot(), before);
    }

    void aForeignDatabaseRunsNothing()
    {
        const StatedShop shop(noPrinter);
        shop.addCopy("2026-03-04", 1024);
        shop.fill("create trigger t after insert on Ticket begin delete from Historique; end");
        const QStringList before = shop.snapshot();
        const State state = shop.state();
        QCOMPARE(verdict(state),
            QString("cannot be used (it contains something other than the till's tables)"));
        QCOMPARE(french(state),
            QString("inutilisable (elle contient autre chose que les tables de la caisse)"));
        QCOMPARE(state.status, 1);
        QCOMPARE(shop.snapshot(), before);
    }

    void whatIsNoDatabaseIsTrouble()
    {
        const StatedShop shop(noPrinter);
        shop.write(QString("Vendel.db"), QByteArray(5000, 'x'));
        QCOMPARE(verdict(shop.state()), QString("cannot be used (it is not a database)"));
        shop.write(QString("Vendel.db"), {});
        QCOMPARE(verdict(shop.state()), QString("cannot be used (it lacks tables)"));
        QVERIFY(QFile::remove(QString("Vendel.db")));
        QVERIFY(QDir().mkdir(QString("Vendel.db")));
        QCOMPARE(StatedShop::french(shop.state()).at(2),
            QString("Base de données : taille inconnue, inutilisable (ce n'est pas un fichier)"));
    }

    void aDatabaseThatIsHeldIsNotWaitedForLong()
    {
        const StatedShop shop(noPrinter);
        shop.addCopy("2026-03-04", 1024);
        sqlite3* opened = nullptr;
        sqlite3_open("Vendel.db", &opened);
        const Handle<sqlite3, sqlite3_close> other(opened);
        QCOMPARE(sqlite3_exec(opened, "begin exclusive", nullptr, nullptr, nullptr), SQLITE_OK);
        const State state = shop.state();
        QCOMPARE(verdict(state), QString("not checked (another program is using it)"));
        QCOMPARE(french(state), QString("pas contrôlée (un autre programme l'occupe)"));
        QCOMPARE(state.status, 1);
    }

    void aDatabaseThatIsBeingReplacedIsNotOpened()
    {
        const StatedShop shop(noPrinter);
        shop.addCopy("2026-03-04", 1024);
        const FileClaim claim(shop.get(), FileClaim::Purpose::Replace, 0);
        const State state = shop.state();
        QCOMPARE(verdict(state), QString("not checked (another program is using it)"));
        QCOMPARE(state.status, 1);
    }

    void aCheckThatTakesTooLongLeavesNothing()
    {
        const StatedShop shop(noPrinter);
        shop.fill(years);
        shop.addCopy("2026-03-04", 1024);
        const QStringList before = shop.snapshot();
        const State state = shop.state({.database = 0.15});
        QCOMPARE(StatedShop::english(state).at(2),
            QString("Database: of unknown size, not checked (checking it did not come to an end)"));
        QCOMPARE(StatedShop::french(state).at(2),
            QString("Base de données : taille inconnue, pas contrôlée (son contrôle n'a pas "
                    "abouti)"));
        QCOMPARE(state.status, 1);
        QCOMPARE(shop.snapshot(), before);
    }

    void aDatabaseLargerThanTheDiskIsNotCopied()
    {
        const StatedShop shop(noPrinter);
        QCOMPARE(truncate("Vendel.db", off_t(1) << 42), 0);
        QCOMPARE(StatedShop::english(shop.state()).at(2),
            QString("Database: 4.0T, not checked (there is not enough room on the disk for that)"));
        QCOMPARE(StatedShop::french(shop.state()).at(2),
            QString("Base de données : 4.0T, pas contrôlée (il n'y a pas assez de place sur le "
                    "disque pour cela)"));
    }

    void aChangeThatWasCutOffIsUndoneInTheCopyOnly()
    {
        const StatedShop shop(noPrinter);
        shop.addCopy("2026-03-04", 1024);
        cutOff(halfAChange);
        QVERIFY(shop.read(QString("Vendel.db-journal")).startsWith("\xd9\xd5\x05\xf9"));
        const QStringList before = shop.snapshot();
        const State state = shop.state();
        QCOMPARE(verdict(state), QString("sound"));
        // The change would have sent receipts to paper.
        QCOMPARE(StatedShop::english(state).at(6), QString("Printer: not on the USB bus"));
        QCOMPARE(shop.snapshot(), before);
    }

    void aWriteAheadLogIsReadInTheCopyOnly()
    {
        const StatedShop shop(noPrinter);
        shop.addCopy("2026-03-04", 1024);
        cutOff("pragma journal_mode = wal; update Config set valeur = 1");
        QVERIFY(QFile::remove(QString("Vendel.db-shm")));
        const QStringList before = shop.snapshot();
        const State state = shop.state();
        QCOMPARE(verdict(state), QString("sound"));
        QCOMPARE(StatedShop::english(state).at(6),
            QString("Printer: not on the USB bus, and receipts are printed on paper"));
        QCOMPARE(shop.snapshot(), before);
    }

    void aForeignJournalIsNotGivenToSqlite()
    {
        const StatedShop shop(noPrinter);
        shop.write(QString("victim"), "precious");
        shop.write(QString("Vendel.db-journal"),
            QByteArray("\xd9\xd5\x05\xf9\x20\xa1\x63\xd7", 8) + QByteArray(504, '\0')
                + QByteArray("\xd9\xd5\x05\xf9\x20\xa1\x63\xd7", 8));
        const QStringList before = shop.snapshot();
        QCOMPARE(verdict(shop.state()), QString("cannot be used (its journal is not the till's)"));
        QCOMPARE(shop.snapshot(), before);
    }

    void whatAKilledLookLeftIsSweptAway()
    {
        const StatedShop shop(noPrinter);
        shop.addCopy("2026-03-04", 1024);
        const pid_t ended = fork();
        if (ended == 0) {
            _exit(0);
        }
        QCOMPARE(waitpid(ended, nullptr, 0), ended);
        const QString left = QString("copies/.Vendel.etat-%1").arg(ended);
        const QString running = QString("copies/.Vendel.etat-%1").arg(getppid());
        for (const QString& name : {left, left + "-journal", running}) {
            shop.write(name, "left");
        }
        shop.state();
        QVERIFY(!QFile::exists(left));
        QVERIFY(!QFile::exists(left + "-journal"));
        QVERIFY(QFile::exists(running));
    }

    void theLockOfAnOpenTillIsSeenAndNotTaken()
    {
        const StatedShop shop(noPrinter);
        shop.addCopy("2026-03-04", 1024);
        QVERIFY(!DataFolder::isLocked(shop.get()));
        DataFolder folder(shop.name());
        QVERIFY(!DataFolder::isLocked(shop.get()));
        folder.lock();
        const State state = shop.state();
        QCOMPARE(StatedShop::french(state).at(0), QString("Vendel 1.2.3, la caisse est ouverte"));
        QCOMPARE(StatedShop::english(state).at(0), QString("Vendel 1.2.3, the till is open"));
        QCOMPARE(verdict(state), QString("sound"));
        QCOMPARE(state.status, 0);
    }

    void anOpenTillNeverWaitsLong()
    {
        const StatedShop shop(noPrinter);
        shop.fill(years);
        shop.addCopy("2026-03-04", 1024);
        DataFolder folder(shop.name());
        folder.lock();
        sqlite3* opened = nullptr;
        sqlite3_open("Vendel.db", &opened);
        const Handle<sqlite3, sqlite3_close> till(opened);
        // Without waiting for the disk, what is left is the wait for the look.
        sqlite3_exec(opened, "pragma synchronous = off", nullptr, nullptr, nullptr);
        sqlite3_busy_timeout(opened, 2000);

        // A customer's articles, one after the other, at each of the looks.
        constexpr int looks = 3;
        constexpr int articles = 15;
        constexpr std::chrono::milliseconds pause(40);
        std::vector<qint64> waits;
        for (int look = 0; look < looks; ++look) {
            auto looking = std::async(std::launch::async, [&] { return verdict(shop.state()); });
            for (int article = 0; article < articles; ++article) {
                looking.wait_for(pause);
                QElapsedTimer time;
                time.start();
                QCOMPARE(sqlite3_exec(opened,
                             "insert into Ticket (id, article, prix) values (1, 'a', 2)", nullptr,
                             nullptr, nullptr),
                    SQLITE_OK);
                waits.push_back(time.elapsed());
            }
            QCOMPARE(looking.get(), QString("sound"));
        }
        // A busy machine may once hold up anybody.
        std::sort(waits.begin(), waits.end());
        QVERIFY2(
            waits[waits.size() - 2] <= 50, qPrintable(QString::number(waits[waits.size() - 2])));
    }
};

VENDEL_TEST(TestLauncherStateDatabase)
#include "tst_LauncherStateDatabase.moc"
