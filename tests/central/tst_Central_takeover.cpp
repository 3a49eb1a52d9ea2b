// SPDX-License-Identifier: MIT
#include "launcher/Refusal.h"
#include "tests/central/CopiedTills.h"
#include "tests/central/Wire.h"
#include "tests/support/TestProgram.h"

#include <QScopeGuard>
#include <QThread>

#include <csignal>

#include <sys/wait.h>

namespace {
BookServer& server() { return BookServer::get(); }
} // namespace

/// A till whose machine died goes on as itself.
class TestCentralTakeover : public QObject, private CopiedTills
{
    Q_OBJECT

private:
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

    void aMachineThatSoldBeforeItsCopyTakesOver()
    {
        const SoldTill dead;
        sellOn(dead, threeMonths);
        QCOMPARE(send(dead, "Bar").status, 0);
        const SoldTill fresh;
        fresh.sell("2026-03-09 10:00:00.000");
        QCOMPARE(send(fresh, "Neuve").status, 0);
        const QStringList before = all();
        copy(dead, fresh);
        fresh.sell("2026-03-10 10:00:00.000");
        refused(fresh.sendTo(server().uri(book_)), refusal);
        refused(fresh.command({"--suivre", uri()}), refusal);
        QCOMPARE(all(), before);

        const Said said = takeOver(fresh);
        QCOMPARE(said.errors, QString());
        QCOMPARE(said.output,
            QString("Cette caisse continue à la place de « Bar » dans le livre central.\n"
                    "Le livre central a reçu 1 nouvelle(s) ligne(s) de vente.\n"));
        QCOMPARE(SoldTill::bookLines(book_, 1), fresh.lines());
        QCOMPARE(SoldTill::bookLines(book_, 2), QStringList("2026-03-09 10:00:00.000 1 Thé 25000"));
        QCOMPARE(fresh.sendTo(server().uri(book_)).status, 0);
        QCOMPARE(tills(), "1|Bar 2|Neuve");
        refused(dead.sendTo(server().uri(book_)), refusal);
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
        QCOMPARE(tills(), "1|Bar");
        QCOMPARE(SoldTill::bookLines(book_), dead.lines());
        QCOMPARE(server().cell(book_, "select count(*) from vendel.progress"), "1");
        const Said again = takeOver(fresh);
        QCOMPARE(again.status, 0);
        QCOMPARE(again.output.section('\n', 0, 0),
            QString("Le livre central a déjà des ventes de cette caisse : il n'y a rien à "
                    "reprendre."));
    }

    void ofSeveralTillsTheOneWithMostOfTheSalesIsIt()
    {
        const SoldTill one;
        sellOn(one, threeMonths);
        const SoldTill other;
        const SoldTill third;
        QCOMPARE(send(one, "Bar").status, 0);
        other.sell("2026-03-09 10:00:00.000");
        QCOMPARE(send(other, "Terrasse").status, 0);
        // As if both had sent the same history for the first time at once.
        server().rows(book_,
            "do $$ declare place text; begin foreach place in array array['line', 'hour_sales', "
            "'day_sales', 'month_sales', 'day_use', 'month_use'] loop "
            "execute format('create temp table taken as select * from vendel.%I as sold "
            "where till = 1 and coalesce(to_jsonb(sold) ->> ''month'', to_jsonb(sold) ->> ''day'', "
            "to_jsonb(sold) ->> ''moment'') < ''2026-03''', place);"
            "update taken set till = 2;"
            "execute format('insert into vendel.%I select * from taken', place);"
            "drop table taken; end loop; end $$");
        copy(one, third);
        third.sql("delete from Historique where date_heure >= '2026-03-01'");
        const QStringList before = all();
        refused(takeOver(third),
            "Plusieurs caisses du livre central ont en commun avec celle-ci autant de ventes (Bar, "
            "Terrasse) : rien n'a été changé.\n");
        const Said said = third.command({"--envoyer", uri(), "--langue", "en"});
        QCOMPARE(said.errors,
            QString("This till's sales are in the central book already, as those of \"Bar, "
                    "Terrasse\": if this machine replaces it, \"vendel-central --reprendre [URI]\" "
                    "goes on in its place; if it is one more till, purge the other one's sales "
                    "from it first.\n"));
        QCOMPARE(all(), before);

        copy(one, third);
        QCOMPARE(takeOver(third).output.section('\n', 0, 0),
            QString("Cette caisse continue à la place de « Bar » dans le livre central."));
        QCOMPARE(tills(), "1|Bar 2|Terrasse");
        QCOMPARE(SoldTill::bookLines(book_, 1), one.lines());
    }

    void aTakeOverByMistakeIsUndone()
    {
        const SoldTill one;
        sellOn(one, threeMonths);
        const SoldTill other;
        sellOn(other, threeMonths, "11:00:00.000");
        const SoldTill copied;
        copy(other, copied);
        QCOMPARE(send(one, "Bar").status, 0);
        QCOMPARE(send(other, "Terrasse").status, 0);
        copy(one, other);
        QCOMPARE(takeOver(other).status, 0);
        refused(one.sendTo(server().uri(book_)), refusal);
        copy(copied, other);
        refused(
            other.sendTo(server().uri(book_)), QString(refusal).replace("« Bar »", "« Terrasse »"));
        QCOMPARE(takeOver(other).status, 0);
        QCOMPARE(takeOver(one).status, 0);
        QCOMPARE(one.sendTo(server().uri(book_)).status, 0);
        QCOMPARE(tills(), "1|Bar 2|Terrasse");
        QCOMPARE(SoldTill::bookLines(book_, 1), one.lines());
        QCOMPARE(SoldTill::bookLines(book_, 2), other.lines());
    }

    void twoTillsExchangeTheirMachines()
    {
        const SoldTill one;
        sellOn(one, threeMonths);
        const SoldTill other;
        sellOn(other, threeMonths, "11:00:00.000");
        QCOMPARE(send(one, "Bar").status, 0);
        QCOMPARE(send(other, "Terrasse").status, 0);
        const SoldTill aside;
        copy(one, aside);
        copy(other, one);
        copy(aside, other);
        QCOMPARE(takeOver(one).status, 0);
        QCOMPARE(takeOver(other).status, 0);
        QCOMPARE(one.sendTo(server().uri(book_)).status, 0);
        QCOMPARE(tills(), "1|Bar 2|Terrasse");
        QCOMPARE(SoldTill::bookLines(book_, 2), one.lines());
        QCOMPARE(SoldTill::bookLines(book_, 1), other.lines());
    }

    void aNameThatIsGivenIsTheTills()
    {
        const SoldTill dead;
        sellOn(dead, threeMonths);
        QCOMPARE(send(dead, "Bar").status, 0);
        const SoldTill fresh;
        copy(dead, fresh);
        QCOMPARE(fresh.command({"--reprendre", uri(), "--nom", "Comptoir"}).status, 0);
        QCOMPARE(tills(), "1|Comptoir");
    }

    /// A machine whose place is taken while it takes another one's has none to leave.
    void whoseTillIsTakenMeanwhileLeavesNothing()
    {
        const SoldTill one;
        sellOn(one, threeMonths);
        const SoldTill other;
        sellOn(other, threeMonths, "11:00:00.000");
        QCOMPARE(send(one, "Bar").status, 0);
        QCOMPARE(send(other, "Terrasse").status, 0);
        Book leaving(server().uri(book_),
            server().cell(book_, "select identity from vendel.till where id = 2").toStdString(),
            "Terrasse");
        server().rows(book_, "update vendel.till set identity = 'another machine' where id = 2");
        const QString bar = server().cell(book_, "select identity from vendel.till where id = 1");
        leaving.takeOver({1, bar.toStdString(), "Bar", 8});
        QCOMPARE(server().cell(book_, "select identity from vendel.till where id = 2"),
            "another machine");
    }

    void aTakeOverDuringASendingIsSaid()
    {
        const SoldTill dead;
        sellOn(dead, threeMonths);
        QCOMPARE(send(dead, "Bar").status, 0);
        const SoldTill fresh;
        copy(dead, fresh);
        dead.sell("2026-03-09 10:00:00.000");
        // Between a look at the book and the next sending.
        Timing timing = SoldTill::pausing(dead);
        bool isTaken = false;
        timing.sleep = [&](qint64) {
            if (!std::exchange(isTaken, true)) {
                QCOMPARE(takeOver(fresh).status, 0);
            }
        };
        TillLines lines(dead.path(), {}, timing);
        const std::string identity
            = server().cell(book_, "select identity from vendel.till").toStdString();
        Book book(server().uri(book_), identity, "Bar");
        try {
            Sender(book, lines).sendLines(Sender::Depth::New);
            QFAIL("sent");
        } catch (const Refusal& words) {
            QCOMPARE(QString::fromStdString(words.words().french) + '\n', refusal);
        }
        QVERIFY(isTaken);
        QCOMPARE(SoldTill::bookLines(book_), fresh.lines());
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
