// SPDX-License-Identifier: MIT
#include "launcher/DataFolder.h"
#include "launcher/Restore.h"
#include "launcher/Speech.h"
#include "tests/launcher/ShopFolder.h"
#include "tests/support/Captured.h"
#include "tests/support/TestProgram.h"

#include <csignal>

#include <sqlite3.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {
const char* const copyName = "copies/Vendel-2026-03-03.db";

/// A shop whose only article costs 5, and its copy of an earlier day, where it cost 3.
class ShopWithCopy : public ShopFolder
{
public:
    ShopWithCopy()
    {
        QDir().mkdir(QString("copies"));
        fill("insert into Article (article, prix) values ('Thé', 3)");
        QFile::copy(QString("Vendel.db"), QString(copyName));
        fill("update Article set prix = 5");
    }

    /// What restoring \a name is refused with; empty when it is done.
    QString restore(const char* name = "2026-03-03") const
    {
        const CapturedOutput output;
        return refusal([&] {
            DataFolder folder(this->name());
            Restore::run(folder, Speech(Language::English, "/nowhere"), name);
        });
    }

    static QByteArray price(const QString& file = QString("Vendel.db"))
    {
        return foreign(file.toUtf8().constData(), "select prix from Article");
    }
    static QStringList replaced() { return names("copies", "Vendel-remplacee-*"); }
};

/// Runs \a sql on \a file in a process that is killed before it ends its work.
void cutOff(const char* file, const char* sql)
{
    constexpr int refused = 1;
    const pid_t worker = fork();
    if (worker == 0) {
        sqlite3* database = nullptr;
        sqlite3_open(file, &database);
        if (sqlite3_exec(database, sql, nullptr, nullptr, nullptr) != SQLITE_OK) {
            _exit(refused);
        }
        kill(getpid(), SIGKILL);
    }
    int status = 0;
    QCOMPARE(waitpid(worker, &status, 0), worker);
    QVERIFY(WIFSIGNALED(status));
}

/// The first change reaches the journal for good when the second needs room in memory.
const char* const halfAChange = "pragma cache_size = 1; begin exclusive; update Article set prix = "
                                "99; insert into Historique "
                                "(id, article, prix) with recursive n(i) as (select 1 union all "
                                "select i + 1 from n where i < "
                                "5000) select i, 'x', 1 from n";
} // namespace

class TestLauncherRestore : public QObject
{
    Q_OBJECT

private slots:
    void aCopyTakesTheDatabasesPlace()
    {
        const ShopWithCopy shop;
        QCOMPARE(shop.restore(), QString());
        QCOMPARE(shop.price(), QByteArray("3"));
        QCOMPARE(shop.replaced().size(), 1);
        QCOMPARE(shop.price("copies/" + shop.replaced().constFirst()), QByteArray("5"));
        QCOMPARE(ShopFolder::names(".", "*"), QStringList{QString("Vendel.db")});
    }

    void aCopyThatMayOnlyBeReadBecomesADatabase()
    {
        const ShopWithCopy shop;
        QCOMPARE(chmod(copyName, 0444), 0);
        QCOMPARE(shop.restore(), QString());
        QCOMPARE(ShopFolder::mode("Vendel.db"), mode_t(0600));
    }

    void aJournalBesideACopyIsNotTaken()
    {
        const ShopWithCopy shop;
        // Applied to the copy, it would bring back the price of 5.
        QVERIFY(QFile::copy(QString("Vendel.db"), QString("other.db")));
        cutOff("other.db", halfAChange);
        const QByteArray journal = shop.read(QString("other.db-journal"));
        QVERIFY(QFile::rename(QString("other.db-journal"), copyName + QString("-journal")));
        QCOMPARE(shop.restore(), QString());
        QCOMPARE(shop.price(), QByteArray("3"));
        QCOMPARE(shop.read(copyName + QString("-journal")), journal);
    }

    void aLogBesideACopyIsNotTaken()
    {
        const ShopWithCopy shop;
        cutOff(copyName, "pragma journal_mode = wal; update Article set prix = 4");
        QCOMPARE(shop.restore(), QString());
        QCOMPARE(shop.price(), QByteArray("3"));
        QCOMPARE(ShopFolder::foreign("Vendel.db", "pragma journal_mode"), QByteArray("delete"));
    }

    void aHostileCopyIsRefused()
    {
        const ShopWithCopy shop;
        ShopFolder::foreign(copyName,
            "create trigger theirs after insert on Historique begin delete from Ticket; end");
        QCOMPARE(shop.restore(),
            QString(
                "The copy \"2026-03-03\" is refused (it contains something other than the till's "
                "tables); the database has not been changed."));
        QCOMPARE(shop.price(), QByteArray("5"));
        QCOMPARE(shop.replaced(), QStringList());
        QCOMPARE(ShopFolder::names("."), QStringList{QString("Vendel.db")});
    }

    void aNameWithAPathIsNoCopy()
    {
        const ShopWithCopy shop;
        QCOMPARE(shop.restore("../copies/Vendel-2026-03-03"),
            QString("There is no copy \"../copies/Vendel-2026-03-03\" in \"" + shop.path()
                + "/copies\"."));
        QVERIFY(QFile::link(shop.path() + '/' + copyName, QString("copies/Vendel-2026-link.db")));
        QCOMPARE(shop.restore("2026-link"),
            QString("There is no copy \"2026-link\" in \"" + shop.path() + "/copies\"."));
    }

    void halfAChangeIsKeptWithItsJournalAndComesBackUndone()
    {
        const ShopWithCopy shop;
        cutOff("Vendel.db", halfAChange);
        const QByteArray database = shop.read(QString("Vendel.db"));
        const QByteArray journal = shop.read(QString("Vendel.db-journal"));
        QCOMPARE(shop.restore(), QString());
        QCOMPARE(shop.price(), QByteArray("3"));
        QCOMPARE(shop.replaced().size(), 2);
        QCOMPARE(shop.read("copies/" + shop.replaced().at(0)), database);
        QCOMPARE(shop.read("copies/" + shop.replaced().at(1)), journal);
        const QByteArray name = shop.replaced().at(0).mid(7).chopped(3).toUtf8();
        QCOMPARE(shop.restore(name.constData()), QString());
        QCOMPARE(shop.price(), QByteArray("5"));
        QCOMPARE(ShopFolder::unsoundness("Vendel.db"), QString());
    }

    void aLogIsKeptAndComesBack()
    {
        const ShopWithCopy shop;
        cutOff("Vendel.db", "pragma journal_mode = wal; update Article set prix = 6");
        QVERIFY(QFile::exists(QString("Vendel.db-wal")));
        QCOMPARE(shop.restore(), QString());
        QCOMPARE(ShopFolder::names(".", "*"), QStringList{QString("Vendel.db")});
        QCOMPARE(shop.price(), QByteArray("3"));
        QCOMPARE(shop.replaced().size(), 2);
        const QByteArray name = shop.replaced().at(0).mid(7).chopped(3).toUtf8();
        QCOMPARE(shop.restore(name.constData()), QString());
        QCOMPARE(shop.price(), QByteArray("6"));
    }

    void aJournalWithoutADatabaseIsNotAppliedToTheCopy()
    {
        const ShopWithCopy shop;
        cutOff("Vendel.db", halfAChange);
        QVERIFY(QFile::remove(QString("Vendel.db")));
        QCOMPARE(shop.restore(), QString());
        QCOMPARE(shop.price(), QByteArray("3"));
        QCOMPARE(ShopFolder::unsoundness("Vendel.db"), QString());
        QCOMPARE(shop.replaced().size(), 1);
    }

    void garbageWithAJournalIsReplaced()
    {
        const ShopWithCopy shop;
        cutOff("Vendel.db", halfAChange);
        const QByteArray garbage(20000, 'x');
        shop.write(QString("Vendel.db"), garbage);
        shop.write(QString("Vendel.db-journal"), QByteArray(600, 'y'));
        QCOMPARE(shop.restore(), QString());
        QCOMPARE(shop.price(), QByteArray("3"));
        QCOMPARE(shop.read("copies/" + shop.replaced().constFirst()), garbage);
        QCOMPARE(ShopFolder::names("."), QStringList{QString("Vendel.db")});
    }

    void aDatabaseInUseIsNotReplaced()
    {
        const ShopWithCopy shop;
        sqlite3* opened = nullptr;
        sqlite3_open("Vendel.db", &opened);
        const Handle<sqlite3, sqlite3_close> other(opened);
        QCOMPARE(sqlite3_exec(opened, "begin immediate; update Article set prix = 7", nullptr,
                     nullptr, nullptr),
            SQLITE_OK);
        QVERIFY(shop.restore().contains(QString("another program is using it")));
        QCOMPARE(sqlite3_exec(opened, "commit", nullptr, nullptr, nullptr), SQLITE_OK);
        QCOMPARE(shop.price(), QByteArray("7"));
        QCOMPARE(shop.replaced(), QStringList());
    }

    void leftoversOfAnEarlierTryAreNotApplied()
    {
        const ShopWithCopy shop;
        cutOff("Vendel.db", halfAChange);
        QVERIFY(QFile::rename(QString("Vendel.db-journal"), QString("Vendel.db.neuf-journal")));
        shop.write(QString("Vendel.db.neuf"), "part");
        QVERIFY(QFile::remove(QString("Vendel.db")));
        QCOMPARE(shop.restore(), QString());
        QCOMPARE(shop.price(), QByteArray("3"));
        QCOMPARE(ShopFolder::names("."), QStringList{QString("Vendel.db")});
    }
};

VENDEL_TEST(TestLauncherRestore)
#include "tst_LauncherRestore.moc"
