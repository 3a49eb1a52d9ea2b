// SPDX-License-Identifier: MIT
#include "launcher/BookStatus.h"
#include "tests/central/BookServer.h"
#include "tests/central/SoldTill.h"
#include "tests/central/Wire.h"
#include "tests/support/TestProgram.h"

#include <QFile>
#include <QScopeGuard>
#include <QThread>

#include <csignal>

#include <sys/wait.h>

namespace {
BookServer& server() { return BookServer::get(); }

constexpr int another = static_cast<int>(BookStatus::AnotherTill);
const QString refusal
    = "Les ventes de cette caisse sont déjà dans le livre central, comme celles de « Bar » : si "
      "cette machine la remplace, « vendel-central --reprendre [URI] » continue à sa place ; si "
      "c'est une caisse de plus, purgez d'abord son historique.\n";
const QString nobody
    = "Aucune autre caisse du livre central n'a les ventes de celle-ci : rien n'a été changé.\n";

/// Puts a copy of the database of \a from in the place of that of \a to.
void copy(const SoldTill& from, const SoldTill& to)
{
    QFile::remove(to.file());
    QVERIFY(QFile::copy(from.file(), to.file()));
}

void sellOn(const SoldTill& till, const QStringList& days, const QString& time = "10:00:00.000")
{
    for (const QString& day : days) {
        till.sell(day + ' ' + time);
    }
}

const QStringList threeMonths{"2026-01-05", "2026-01-06", "2026-02-05", "2026-02-06", "2026-02-07",
    "2026-03-05", "2026-03-06", "2026-03-07"};
} // namespace

/// A till whose machine died goes on as itself, and no history arrives under a second till.
class TestCentralTakeover : public QObject
{
    Q_OBJECT

private:
    std::string book_;

    QString uri() const { return QString::fromStdString(server().uri(book_)); }
    Said send(const SoldTill& till, const QString& name) const
    {
        return till.command({"--envoyer", uri(), "--nom", name});
    }
    Said takeOver(const SoldTill& till) const { return till.command({"--reprendre", uri()}); }
    QString tills() const
    {
        return server().rows(book_, "select id, name from vendel.till order by id").join(' ');
    }
    /// All that the book holds.
    QStringList all() const
    {
        return server().rows(book_, "select * from vendel.till order by id")
            + server().rows(book_, "select * from vendel.progress order by till")
            + server().rows(book_, "select * from vendel.month order by till, month")
            + server().rows(book_, "select * from vendel.line order by till, moment");
    }
    void refused(const Said& said, const QString& sentence) const
    {
        QCOMPARE(said.errors, sentence);
        QCOMPARE(said.output, QString());
        QCOMPARE(said.status, another);
    }

    /// Kills the take-over of \a till when the server has done the request \a number.
    void cutOff(const SoldTill& till, int number) const
    {
        std::atomic<pid_t> sender = 0;
        const Wire wire(
            server().folder(),
            [=](int request) {
                return request == number ? Wire::Fate::Unanswered : Wire::Fate::Pass;
            },
            [&] {
                while (sender == 0) {
                    QThread::yieldCurrentThread();
                }
                kill(sender, SIGKILL);
            });
        sender = till.start(
            {"--reprendre", QString::fromStdString(server().uri(book_, "owner", wire.folder()))});
        waitpid(sender, nullptr, 0);
        QVERIFY(wire.isCut());
    }

private slots:
    void init() { book_ = server().newBook(); }
    void cleanup() { QCOMPARE(SoldTill::wrongSums(book_), QStringList()); }

    void aRestoredCopyGoesOnInTheDeadTillsPlace_data()
    {
        QTest::addColumn<QStringList>("copied");
        QTest::addColumn<QStringList>("lost");
        QTest::addColumn<QStringList>("later");
        const QStringList none;
        QTest::newRow("whole months") << threeMonths << none << none;
        QTest::newRow("an older copy") << threeMonths << QStringList{"2026-03-08"} << none;
        QTest::newRow("with later sales") << threeMonths << QStringList{"2026-03-08", "2026-04-01"}
                                          << QStringList{"2026-03-09", "2026-04-02"};
        QTest::newRow("first month") << QStringList{"2026-03-05", "2026-03-06"}
                                     << QStringList{"2026-03-07"} << QStringList{"2026-03-08"};
        QTest::newRow("two sales, and one that is lost")
            << QStringList{"2026-03-05"} << QStringList{"2026-03-06"} << none;
        QTest::newRow("first month, nothing else")
            << QStringList{"2026-03-05", "2026-03-06"} << none << none;
    }
    void aRestoredCopyGoesOnInTheDeadTillsPlace()
    {
        QFETCH(QStringList, copied);
        QFETCH(QStringList, lost);
        QFETCH(QStringList, later);
        const SoldTill dead;
        sellOn(dead, copied);
        sellOn(dead, copied, "10:00:02.000");
        const SoldTill fresh;
        copy(dead, fresh);
        sellOn(dead, lost);
        QCOMPARE(send(dead, "Bar").status, 0);
        sellOn(fresh, later);
        const QStringList before = all();
        refused(fresh.sendTo(server().uri(book_)), refusal);
        refused(fresh.command({"--suivre", uri()}), refusal);
        QCOMPARE(all(), before);

        const Said said = takeOver(fresh);
        QCOMPARE(said.errors, QString());
        QCOMPARE(said.output,
            QString("Cette caisse continue à la place de « Bar » dans le livre central.\n"
                    "Le livre central a reçu %1 nouvelle(s) ligne(s) de vente.\n")
                .arg(later.size()));
        QCOMPARE(said.status, 0);
        QStringList sold = dead.lines();
        for (const QString& day : std::as_const(later)) {
            sold.append(day + " 10:00:00.000 1 Thé 25000");
        }
        sold.sort();
        QCOMPARE(SoldTill::bookLines(book_), sold);
        // The name has come along, and the dead machine is a stranger.
        QCOMPARE(fresh.sendTo(server().uri(book_)).status, 0);
        QCOMPARE(tills(), "1|Bar");
        refused(dead.sendTo(server().uri(book_)), refusal);
        QCOMPARE(SoldTill::bookLines(book_), sold);
    }

    void aCopyThatWasPurgedOrNeverSentInPartIsKnown()
    {
        const SoldTill dead;
        sellOn(dead, threeMonths);
        const SoldTill purged;
        const SoldTill early;
        copy(dead, purged);
        copy(dead, early);
        dead.sql("delete from Historique where date_heure < '2026-01-06'");
        QCOMPARE(send(dead, "Bar").status, 0);
        purged.sql("delete from Historique where date_heure < '2026-02-07'");
        refused(purged.sendTo(server().uri(book_)), refusal);
        refused(early.sendTo(server().uri(book_)), refusal);
        QCOMPARE(takeOver(early).status, 0);
        QCOMPARE(SoldTill::bookLines(book_), early.lines());
        QCOMPARE(tills(), "1|Bar");
    }

    void aCloneIsLetInOncePurged()
    {
        const SoldTill one;
        sellOn(one, threeMonths);
        const SoldTill other;
        copy(one, other);
        QCOMPARE(send(one, "Bar").status, 0);
        refused(send(other, "Terrasse"), refusal);
        other.sql("delete from Historique");
        sellOn(other, threeMonths, "10:00:01.000");
        QCOMPARE(send(other, "Terrasse").status, 0);
        QCOMPARE(tills(), "1|Bar 2|Terrasse");
        QCOMPARE(SoldTill::bookLines(book_, 2), other.lines());
        // They are known now, whatever is copied.
        copy(one, other);
        QCOMPARE(send(other, "Terrasse").status, 0);
    }

    void aMachineThatWasThereBeforeItsCopyTakesOver()
    {
        const SoldTill dead;
        sellOn(dead, threeMonths);
        const SoldTill fresh;
        QCOMPARE(send(dead, "Bar").status, 0);
        QCOMPARE(send(fresh, "Neuve").status, 0);
        QCOMPARE(tills(), "1|Bar 2|Neuve");
        copy(dead, fresh);
        refused(fresh.sendTo(server().uri(book_)), refusal);
        QCOMPARE(takeOver(fresh).status, 0);
        QCOMPARE(tills(), "1|Neuve");
        QCOMPARE(SoldTill::bookLines(book_), dead.lines());
        QCOMPARE(server().cell(book_, "select count(*) from vendel.progress"), "1");
        const Said again = takeOver(fresh);
        QCOMPARE(again.status, 0);
        QCOMPARE(again.output.section('\n', 0, 0),
            QString("Le livre central a déjà des ventes de cette caisse : il n'y a rien à "
                    "reprendre."));
    }

    void tillsWithoutACommonHistoryAreNeverRefused_data()
    {
        QTest::addColumn<QStringList>("one");
        QTest::addColumn<QStringList>("other");
        const QStringList none;
        const QString morning = "2026-03-05 10:00:00.000";
        QTest::newRow("empty") << none << none;
        QTest::newRow("one line of 1970")
            << QStringList{"1970-01-01 00:00:00.000"} << QStringList{"1970-01-01 00:00:00.000"};
        QTest::newRow("same sales, other moments")
            << QStringList{morning, "2026-03-05 10:00:05.000", "2026-04-05 10:00:00.000"}
            << QStringList{
                   "2026-03-05 10:00:00.001", "2026-03-05 10:00:05.001", "2026-04-05 10:00:00.001"};
        QTest::newRow("two by chance")
            << QStringList{"2026-03-05 09:00:00.000", morning, "2026-04-05 10:00:00.000"}
            << QStringList{"2026-03-05 09:00:00.001", morning, "2026-04-05 10:00:00.000"};
        QTest::newRow("lines of one sale")
            << QStringList{morning, "2026-03-05 10:00:00.001", "2026-03-05 10:00:00.002"}
            << QStringList{morning, "2026-03-05 10:00:00.001", "2026-03-05 10:00:00.002"};
        QTest::newRow("lines that no page can show") << QStringList{"hier", "12:00",
            "2026-02-30 10:00:00.000"} << QStringList{"hier", "12:00", "2026-02-30 10:00:00.000"};
    }
    void tillsWithoutACommonHistoryAreNeverRefused()
    {
        QFETCH(QStringList, one);
        QFETCH(QStringList, other);
        const SoldTill first;
        const SoldTill second;
        for (const QString& moment : one) {
            first.sell(moment);
        }
        for (const QString& moment : other) {
            second.sell(moment);
        }
        QCOMPARE(send(first, "Bar").status, 0);
        refused(takeOver(second), nobody);
        QCOMPARE(tills(), "1|Bar");
        const Said said = send(second, "Terrasse");
        QCOMPARE(said.errors, QString());
        QCOMPARE(tills(), "1|Bar 2|Terrasse");
    }

    void anotherArticleOrPriceIsAnotherSale()
    {
        const SoldTill one;
        sellOn(one, threeMonths);
        QCOMPARE(send(one, "Bar").status, 0);
        for (const char* change : {"article = 'Café'", "prix = 3", "prix = 2.50001", "id = 7"}) {
            const SoldTill other;
            copy(one, other);
            other.sql(QString("update Historique set ") + change);
            QCOMPARE(send(other, change).status, 0);
        }
    }

    void severalTillsAreNamed()
    {
        const SoldTill one;
        sellOn(one, threeMonths);
        const SoldTill other;
        const SoldTill third;
        QCOMPARE(send(one, "Bar").status, 0);
        other.sell("2026-03-09 10:00:00.000");
        QCOMPARE(send(other, "Terrasse").status, 0);
        copy(one, other);
        copy(one, third);
        QCOMPARE(send(other, "Terrasse").status, 0);
        const QStringList before = all();
        refused(takeOver(third),
            "Plusieurs caisses du livre central ont les ventes de celle-ci (Bar, Terrasse) : rien "
            "n'a été changé.\n");
        const Said said = third.command({"--envoyer", uri(), "--langue", "en"});
        QCOMPARE(said.errors,
            QString("This till's sales are in the central book already, as those of \"Bar, "
                    "Terrasse\": if this machine replaces it, \"vendel-central --reprendre [URI]\" "
                    "goes on in its place; if it is one more till, purge its history first.\n"));
        QCOMPARE(all(), before);
    }

    void whoFollowsEndsWhenItsPlaceIsTaken()
    {
        const SoldTill dead;
        sellOn(dead, threeMonths);
        const SoldTill fresh;
        copy(dead, fresh);
        const pid_t following = dead.start({"--suivre", uri(), "--nom", "Bar"});
        int state = 0;
        bool isOver = false;
        const auto ending = qScopeGuard([&] {
            if (!isOver) {
                kill(following, SIGKILL);
                waitpid(following, &state, 0);
            }
        });
        constexpr int tenSeconds = 10000;
        QTRY_COMPARE_WITH_TIMEOUT(SoldTill::bookLines(book_), dead.lines(), tenSeconds);
        QCOMPARE(takeOver(fresh).status, 0);
        dead.sell("2026-03-09 10:00:00.000");
        QTRY_VERIFY_WITH_TIMEOUT(
            isOver = isOver || waitpid(following, &state, WNOHANG) == following, tenSeconds);
        QVERIFY(WIFEXITED(state));
        QCOMPARE(WEXITSTATUS(state), another);
        QFile errors(dead.path() + "/errors");
        QVERIFY(errors.open(QIODevice::ReadOnly));
        QCOMPARE(QString::fromUtf8(errors.readAll()), refusal);
        QCOMPARE(SoldTill::bookLines(book_), fresh.lines());
    }

    void aTakeOverThatIsCutOffIsWholeOrNothing_data()
    {
        QTest::addColumn<bool>("isEntered");
        QTest::newRow("a machine that the book does not know") << false;
        QTest::newRow("a machine that the book knows without sales") << true;
    }
    void aTakeOverThatIsCutOffIsWholeOrNothing()
    {
        QFETCH(bool, isEntered);
        const SoldTill dead;
        sellOn(dead, threeMonths);
        dead.send(book_);
        const SoldTill fresh;
        if (isEntered) {
            QCOMPARE(fresh.sendTo(server().uri(book_)).status, 0);
        }
        copy(dead, fresh);
        fresh.sell("2026-03-09 10:00:00.000");
        const QStringList before = all();
        int trials = 0;
        // What comes behind it is sending, which is cut off elsewhere.
        while (
            server().cell(book_, "select identity from vendel.till where id = 1") == dead.path()) {
            QCOMPARE(all(), before);
            cutOff(fresh, ++trials);
        }
        QVERIFY2(trials > 15, qPrintable(QString::number(trials)));
        QCOMPARE(tills(), "1|Caisse");
        QCOMPARE(takeOver(fresh).status, 0);
        QCOMPARE(tills(), "1|Caisse");
        QCOMPARE(SoldTill::bookLines(book_), fresh.lines());
    }
};

VENDEL_TEST(TestCentralTakeover)
#include "tst_Central_takeover.moc"
