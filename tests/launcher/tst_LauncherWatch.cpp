// SPDX-License-Identifier: MIT
#include "launcher/BookAddress.h"
#include "launcher/Copies.h"
#include "launcher/DataFolder.h"
#include "launcher/Process.h"
#include "launcher/SecondPlace.h"
#include "launcher/Speech.h"
#include "launcher/TillSize.h"
#include "launcher/Watch.h"
#include "tests/launcher/ShopFolder.h"
#include "tests/support/TestProgram.h"

#include <QTemporaryDir>

#include <csignal>

#include <sys/wait.h>

namespace {
/// How watching a till ended.
struct End
{
    int status = 0;
    QString refused;
    QByteArray output;
};

/// A shop, and a script in place of its till. Each start adds a line to the file "starts".
class WatchedShop : public ShopFolder
{
public:
    explicit WatchedShop(const QByteArray& script)
    {
        write(QString("till"), "#!/bin/sh\necho start >>starts\n" + script + '\n');
        write(QString("refused"), {});
        chmod("till", 0700);
        write(QString("dialogue"), "#!/bin/sh\necho \"$2 $1 $3\" >>boxes\n");
        chmod("dialogue", 0700);
        write(QString("boxes"), {});
    }

    /// Gives the shop a book, and \a script in place of the command that sends to it.
    void addCentral(const QByteArray& script) const
    {
        BookAddress(get()).remember("postgresql://machine/base");
        write(QString("central-command"), "#!/bin/sh\n" + script + '\n');
        chmod("central-command", 0700);
    }

    /// Watches the till until it ends, in a process that has one thread only, as the launcher has.
    End watch(Watch::Times times = {}) const
    {
        const pid_t launcher = fork();
        if (launcher == 0) {
            // The test program has a handler of its own for it.
            std::signal(SIGTERM, SIG_DFL);
            const int output = open("output", O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600);
            dup2(output, STDOUT_FILENO);
            dup2(output, STDERR_FILENO);
            // What the test has open is not the launcher's.
            close_range(STDERR_FILENO + 1, ~0U, 0);
            _exit(watchHere(times));
        }
        int state = 0;
        waitpid(launcher, &state, 0);
        return {Process::exitStatus(state), QString::fromUtf8(read(QString("refused"))),
            read(QString("output"))};
    }
    int starts() const { return static_cast<int>(read(QString("starts")).count('\n')); }
    /// A line for each box that was shown.
    QByteArray boxes() const { return read(QString("boxes")); }
    QByteArray log() const { return read(QString("vendel.log")); }

private:
    int watchHere(Watch::Times times) const
    {
        try {
            DataFolder folder(name());
            folder.lock();
            setenv("DISPLAY", ":nowhere", 1);
            const Speech speech(Language::English, "./dialogue");
            TillSize::remembered(folder.get()).apply(speech);
            return Watch(folder, speech, "./till", "./central-command", false, times).run();
        } catch (const Refusal& refusal) {
            write(QString("refused"), refusal.what());
            return refusal.status();
        }
    }
};

const QByteArray sale(
    "sqlite3 Vendel.db \"insert into Historique (id, article, prix) values (1, 'a', "
    "2)\"\n");
} // namespace

class TestLauncherWatch : public QObject
{
    Q_OBJECT

private slots:
    void theTillsStatusIsTheLaunchers() { QCOMPARE(WatchedShop("exit 42").watch().status, 42); }

    void aTillThatIsKilledStartsAgain_data()
    {
        QTest::addColumn<QByteArray>("signal");
        QTest::newRow("KILL") << QByteArray("KILL");
        QTest::newRow("SEGV") << QByteArray("SEGV");
    }

    void aTillThatIsKilledStartsAgain()
    {
        QFETCH(QByteArray, signal);
        const WatchedShop shop("[ -e again ] && exit 3\ntouch again\nkill -" + signal + " $$");
        QCOMPARE(shop.watch().status, 3);
        QCOMPARE(shop.starts(), 2);
        QVERIFY(shop.log().contains("The till ended by itself (signal "));
    }

    void aSecondCrashWithinAMinuteIsTheLast()
    {
        const WatchedShop shop("kill -SEGV $$");
        const End end = shop.watch();
        QCOMPARE(end.status, 139);
        QCOMPARE(end.refused,
            QString(
                "The till ended by itself twice within a minute (signal 11); what it said is in \""
                + shop.path() + "/vendel.log\"."));
        QVERIFY(shop.log().contains(end.refused.toUtf8()));
        QCOMPARE(shop.starts(), 2);
    }

    void aLaterCrashIsNotTheSecond()
    {
        const WatchedShop shop("[ $(wc -l <starts) -eq 4 ] && exit 0\nkill -SEGV $$");
        Watch::Times times;
        times.crashWindow = -1;
        QCOMPARE(shop.watch(times).status, 0);
        QCOMPARE(shop.starts(), 4);
    }

    void anAskedEndReachesTheTillAndIsNoCrash_data()
    {
        QTest::addColumn<QByteArray>("signal");
        for (const char* name : {"TERM", "INT", "HUP"}) {
            QTest::newRow(name) << QByteArray(name);
        }
    }

    void anAskedEndReachesTheTillAndIsNoCrash()
    {
        QFETCH(QByteArray, signal);
        const WatchedShop shop("kill -" + signal + " $PPID\nexec sleep 60");
        QCOMPARE(shop.watch().status, 143);
        QCOMPARE(shop.starts(), 1);
    }

    void aTillMayEndInItsOwnWay()
    {
        const WatchedShop shop(
            "trap 'exit 5' TERM\nkill -TERM $PPID\nwhile :; do sleep 0.05; done");
        QCOMPARE(shop.watch().status, 5);
    }

    void aTillThatDoesNotEndIsKilled()
    {
        const WatchedShop shop("trap '' TERM\nkill -TERM $PPID\nwhile :; do sleep 0.05; done");
        Watch::Times times;
        times.ending = 0.2;
        QCOMPARE(shop.watch(times).status, 137);
        QCOMPARE(shop.starts(), 1);
    }

    void whatTheTillSaysIsLoggedAndPassedOn()
    {
        const WatchedShop shop("echo to output\necho to errors >&2\nprintf 'no end'");
        const End end = shop.watch();
        QVERIFY2(end.output.contains("to output\n"), end.output.constData());
        QVERIFY(end.output.contains("no end"));
        QVERIFY(shop.log().contains(" to output\n"));
        QVERIFY(shop.log().contains(" to errors\n"));
        QVERIFY(shop.log().contains(" no end\n"));
    }

    void muchOutputHoldsUpNobody()
    {
        const WatchedShop shop("head -c 3000000 /dev/zero | tr '\\0' '.'\nexit 4");
        QCOMPARE(shop.watch().status, 4);
        QCOMPARE(ShopFolder::names(".", "vendel.log*").size(), 3);
        QVERIFY(QFileInfo(QString("vendel.log")).size() <= 1000000);
    }

    void theTillInheritsTheLockAndNothingElse()
    {
        const WatchedShop shop("exec ls -l /proc/self/fd >open");
        shop.watch();
        QStringList inherited;
        const QStringList lines = QString::fromUtf8(shop.read(QString("open"))).split('\n');
        for (const QString& line : lines) {
            const QString link = line.section(QString(" -> "), 0, 0).section(' ', -1);
            if (link.toInt() > STDERR_FILENO && !line.endsWith(QString("/fd"))) {
                inherited.append(line.section(QString(" -> "), 1) + ' ' + link);
            }
        }
        QCOMPARE(inherited, QStringList{shop.path() + "/.verrou 9"});
    }

    void theTillIsToldItsSize()
    {
        const WatchedShop shop("env | grep ^QT_SCALE_FACTOR= >size");
        shop.write(QString("taille"), "150\n");
        shop.watch();
        QCOMPARE(shop.read(QString("size")), QByteArray("QT_SCALE_FACTOR=1.50\n"));
    }

    void aCopyIsMadeWhenTheTillIsClosed()
    {
        const WatchedShop shop(sale);
        QCOMPARE(shop.watch().status, 0);
        const QStringList made = ShopFolder::names("copies", "Vendel-*");
        QCOMPARE(made.size(), 1);
        QCOMPARE(ShopFolder::foreign(("copies/" + made.first()).toUtf8().constData(),
                     "select count(*) from Historique"),
            QByteArray("1"));
    }

    void anUnchangedDatabaseIsNotCopiedAgain()
    {
        const WatchedShop shop("exit 0");
        Copies(shop.get()).make({"2026-03-05", "120000"}, Backup::Pace::Full);
        shop.watch();
        QCOMPARE(ShopFolder::names("copies", "Vendel-*").size(), 1);
    }

    void aCopyIsMadeWhileTheTillRuns()
    {
        const WatchedShop shop(
            sale + "until ls copies/Vendel-*.db; do sleep 0.02; done >/dev/null 2>&1");
        Watch::Times times;
        times.betweenCopies = 0.1;
        QCOMPARE(shop.watch(times).status, 0);
        QCOMPARE(ShopFolder::names("copies", "Vendel-*").size(), 1);
    }

    void aFailedCopyIsSaidOnce()
    {
        const WatchedShop shop(
            sale + "until grep -q 'could not be made' vendel.log; do sleep 0.02; done");
        shop.write(QString("copies"), "in the way");
        Watch::Times times;
        times.betweenCopies = 0.02;
        shop.watch(times);
        QCOMPARE(shop.log().count("could not be made"), 1);
        QCOMPARE(shop.boxes(),
            QByteArray("--avertissement --en Today's copy of the database could not be made in \""
                + shop.path().toUtf8() + "/copies\".\n"));
    }

    void whoseSessionEndsIsShownNoBox()
    {
        const WatchedShop shop(sale + "kill -TERM $PPID\nexec sleep 60");
        shop.write(QString("copies"), "in the way");
        shop.watch();
        QCOMPARE(shop.log().count("could not be made"), 1);
        QCOMPARE(shop.boxes(), QByteArray());
    }

    void whoEndsTheLauncherEndsItAtItsBoxToo()
    {
        const WatchedShop shop(sale);
        shop.write(QString("copies"), "in the way");
        shop.write(QString("dialogue"), "#!/bin/sh\nkill -TERM $PPID\nexec sleep 60\n");
        QCOMPARE(shop.watch().status, 143);
    }

    void aFailureThatHasGoneIsNotShown()
    {
        const WatchedShop shop(sale
            + "until grep -q 'could not be made' vendel.log; do sleep 0.02; done\nrm copies\n");
        shop.write(QString("copies"), "in the way");
        Watch::Times times;
        times.betweenCopies = 0.02;
        shop.watch(times);
        QCOMPARE(ShopFolder::names("copies", "Vendel-*").size(), 1);
        QCOMPARE(shop.boxes(), QByteArray());
    }

    void aForeignDatabaseIsNotCalledDamaged()
    {
        const WatchedShop shop(
            "sqlite3 Vendel.db 'create view theirs as select 1; insert into Config (param, valeur) "
            "values (1, 2)'");
        shop.watch();
        QVERIFY2(shop.boxes().contains(
                     "cannot be used (it contains something other than the till's tables)"),
            shop.boxes().constData());
    }

    void aSecondPlaceThatFailsIsSaid()
    {
        const QTemporaryDir stick;
        const WatchedShop shop(sale);
        SecondPlace(shop.get()).remember(stick.path().toStdString(), {"2026-03-05", "120000"});
        // What is in the way of the copy cannot be removed as a file can.
        QVERIFY(QDir(stick.path()).mkpath(QString(".Vendel.neuf/theirs")));
        shop.watch();
        QVERIFY2(shop.boxes().startsWith("--avertissement --en The copy of the database could not "
                                         "be put into \""
                     + stick.path().toUtf8() + "\" (the system says \""),
            shop.boxes().constData());
        QCOMPARE(ShopFolder::names("copies", "Vendel-*").size(), 1);
    }

    void theLastCopyFollowsOneThatWasStillUnderWay()
    {
        const QTemporaryDir stick;
        const WatchedShop shop(sale);
        SecondPlace(shop.get()).remember(stick.path().toStdString(), {"2026-03-05", "120000"});
        Copies(shop.get()).make({"2026-03-05", "120000"}, Backup::Pace::Full);
        shop.watch();
        QStringList made = ShopFolder::names("copies", "Vendel-*");
        QCOMPARE(made.size(), 2);
        made.removeOne(QString("Vendel-2026-03-05.db"));
        QVERIFY(QDir(stick.path()).exists(made.constFirst()));
    }

    void eachCopyReachesTheSecondPlace()
    {
        const QTemporaryDir stick;
        const WatchedShop shop(sale);
        SecondPlace(shop.get()).remember(stick.path().toStdString(), {"2026-03-05", "120000"});
        shop.watch();
        QCOMPARE(QDir(stick.path()).entryList({QString("Vendel-*")}, QDir::Files).size(), 1);
        QCOMPARE(shop.boxes(), QByteArray());
    }

    void salesAreSentAfterEachCopy()
    {
        const WatchedShop shop("until grep -q . sendings; do sleep 0.02; done 2>/dev/null\n" + sale
            + "cp sendings before");
        shop.addCentral("echo \"$*\" >>sendings");
        QCOMPARE(shop.watch().status, 0);
        const QByteArray one = "--envoyer --dossier " + shop.path().toUtf8() + '\n';
        QCOMPARE(shop.read(QString("before")), one);
        // The second one follows the last copy.
        QVERIFY(shop.read(QString("sendings")).startsWith(one + one));
        QVERIFY(!QFile::exists("vendel.log"));
    }

    void withoutABookNothingIsSent()
    {
        const WatchedShop shop(sale);
        shop.addCentral("echo \"$*\" >>sendings");
        BookAddress(shop.get()).forget();
        QCOMPARE(shop.watch().status, 0);
        QVERIFY(!QFile::exists("sendings"));
    }

    void aBookThatFailsIsLoggedOnceAndShownInNoBox()
    {
        const WatchedShop shop("until test $(grep -c . sendings) -gt 2; do sleep 0.02; done");
        shop.addCentral("echo sent >>sendings; echo words; exit 3");
        Watch::Times times;
        times.betweenCopies = 0.02;
        const End end = shop.watch(times);
        QCOMPARE(end.status, 0);
        QCOMPARE(
            shop.log().count("Sales could not be sent to the central book (it does not answer)."),
            1);
        QCOMPARE(shop.boxes(), QByteArray());
        QVERIFY(!end.output.contains("words"));
    }

    void aBookThatHangsHoldsUpNobody()
    {
        const WatchedShop shop("exit 0");
        shop.addCentral("exec sleep 60");
        Watch::Times times;
        times.lastSending = 0.2;
        QCOMPARE(shop.watch(times).status, 0);
        QCOMPARE(shop.log().count(
                     "Sales could not be sent to the central book (sending takes too long)."),
            1);
    }

    void aTillThatCannotRunIsSaid()
    {
        const WatchedShop shop("");
        shop.write(QString("till"), "");
        const End end = shop.watch();
        QCOMPARE(end.status, 126);
        QCOMPARE(end.refused, QString("The till cannot be started (./till)."));
    }
};

VENDEL_TEST(TestLauncherWatch)
#include "tst_LauncherWatch.moc"
