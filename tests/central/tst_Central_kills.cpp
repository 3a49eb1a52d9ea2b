// SPDX-License-Identifier: MIT
#include "launcher/Process.h"
#include "tests/central/BookServer.h"
#include "tests/central/SoldTill.h"
#include "tests/central/Wire.h"
#include "tests/support/TestProgram.h"

#include <QThread>

#include <csignal>
#include <random>

#include <sys/wait.h>

namespace {
using Fate = Wire::Fate;

/// How many random moments, and one of how many statements.
struct Sample
{
    int moments = 4;
    int step = 13;
};

/// What the environment asks for: all for one \a victim, or a little for both.
std::optional<Sample> sampleFor(const char* victim)
{
    const QByteArray asked = qgetenv("VENDEL_TEST_KILLS");
    if (asked.isEmpty()) {
        return Sample{};
    }
    return asked == victim ? std::optional(Sample{300, 1}) : std::nullopt;
}
} // namespace

/// A sender or a server that is killed loses no line and doubles none.
class TestCentralKills : public QObject
{
    Q_OBJECT

private:
    std::string book_;
    SoldTill till_;
    int trials_ = 0;

    /// A sale with equal lines, a new article and a new month.
    void sell()
    {
        ++trials_;
        const int month = trials_ % 12 + 1;
        const int year = 2000 + trials_ / 12;
        const QString moment
            = QString("%1-%2-05 10:00:00.000").arg(year).arg(month, 2, 10, QChar('0'));
        for (const char* article : {"Thé", "Thé", "Café"}) {
            till_.sell(moment, article);
        }
        till_.sell(moment, "Nouveau " + QString::number(trials_), "3.1");
    }

    void requireWhole()
    {
        const Said said = till_.sendTo(BookServer::get().uri(book_));
        QCOMPARE(said.errors, QString());
        QCOMPARE(said.status, 0);
        QCOMPARE(SoldTill::bookLines(book_), till_.lines());
        QCOMPARE(SoldTill::wrongSums(book_), QStringList());
    }

    /// How many requests a sending has.
    int requests()
    {
        sell();
        const Wire wire(BookServer::get().folder(), [](int) { return Fate::Pass; });
        till_.sendTo(BookServer::get().uri(book_, "owner", wire.folder()));
        return wire.requests();
    }

    /// Sends through a wire that has \a fate for the request \a number; \a kill is called then.
    template <class Kill> void disturb(int number, Fate fate, Kill&& kill)
    {
        sell();
        std::atomic<pid_t> sender = 0;
        const Wire wire(
            BookServer::get().folder(),
            [=](int request) { return request == number ? fate : Fate::Pass; },
            [&] {
                while (sender == 0) {
                    QThread::yieldCurrentThread();
                }
                kill(sender);
            });
        const auto uri = BookServer::get().uri(book_, "owner", wire.folder());
        sender = till_.start({"--envoyer", QString::fromStdString(uri)});
        int state = 0;
        waitpid(sender, &state, 0);
        QVERIFY2(wire.isCut(), qPrintable(QString("%1 of %2").arg(number).arg(wire.requests())));
        QVERIFY(Process::exitStatus(state) != 0);
    }

private slots:
    void initTestCase()
    {
        book_ = BookServer::get().newBook();
        sell();
        requireWhole();
    }

    void aCutWireLosesNothing()
    {
        const int count = requests();
        QVERIFY2(count > 20, qPrintable(QString::number(count)));
        const auto sample = sampleFor("SENDER");
        for (int number = 1; sample && number <= count; number += sample->step) {
            for (const Fate fate : {Fate::Lost, Fate::Unanswered}) {
                disturb(number, fate, [](pid_t) {});
                requireWhole();
            }
        }
    }

    void aKilledSenderLosesNothing()
    {
        const int count = requests();
        const auto sample = sampleFor("SENDER");
        for (int number = 1; sample && number <= count; number += sample->step) {
            for (const Fate fate : {Fate::Lost, Fate::Unanswered}) {
                disturb(number, fate, [](pid_t sender) { kill(sender, SIGKILL); });
                requireWhole();
            }
        }
    }

    void aKilledServerLosesNothing()
    {
        const int count = requests();
        const auto sample = sampleFor("SERVER");
        for (int number = 1; sample && number <= count; number += sample->step) {
            for (const Fate fate : {Fate::Lost, Fate::Unanswered}) {
                disturb(number, fate, [](pid_t) { BookServer::get().crash(); });
                BookServer::get().start();
                requireWhole();
            }
        }
    }

    void aSenderKilledAtAnyMomentLosesNothing()
    {
        const auto sample = sampleFor("SENDER");
        std::minstd_rand random(1);
        for (int trial = 0; sample && trial < sample->moments; ++trial) {
            sell();
            const pid_t sender
                = till_.start({"--envoyer", QString::fromStdString(BookServer::get().uri(book_))});
            QThread::usleep(random() % 90000);
            kill(sender, SIGKILL);
            waitpid(sender, nullptr, 0);
            if (trial % 10 == 9 || trial + 1 == sample->moments) {
                requireWhole();
            }
        }
    }

    void aServerKilledAtAnyMomentLosesNothing()
    {
        const auto sample = sampleFor("SERVER");
        std::minstd_rand random(2);
        for (int trial = 0; sample && trial < sample->moments; ++trial) {
            sell();
            const pid_t sender
                = till_.start({"--envoyer", QString::fromStdString(BookServer::get().uri(book_))});
            QThread::usleep(random() % 90000);
            BookServer::get().crash();
            waitpid(sender, nullptr, 0);
            BookServer::get().start();
            if (trial % 10 == 9 || trial + 1 == sample->moments) {
                requireWhole();
            }
        }
    }
};

VENDEL_TEST(TestCentralKills)
#include "tst_Central_kills.moc"
