// SPDX-License-Identifier: MIT
#include "launcher/Process.h"
#include "tests/central/BookServer.h"
#include "tests/central/SoldTill.h"
#include "tests/support/TestProgram.h"

#include <QElapsedTimer>
#include <QFile>

#include <csignal>

#include <pqxx/connection>
#include <pqxx/transaction>
#include <sys/wait.h>

namespace {
BookServer& server() { return BookServer::get(); }

/// The command that stays; it is asked to end with the object.
class Following
{
public:
    Following(const SoldTill& till, const std::string& book)
        : process_(till.start({"--suivre", QString::fromStdString(server().uri(book))}))
    { }
    Following(const Following&) = delete;
    Following& operator=(const Following&) = delete;
    Following(Following&&) = delete;
    Following& operator=(Following&&) = delete;
    ~Following() { end(SIGKILL); }

    /// The exit status after the signal \a number.
    int end(int number)
    {
        int state = 0;
        if (process_ > 0) {
            kill(process_, number);
            waitpid(std::exchange(process_, -1), &state, 0);
        }
        return Process::exitStatus(state);
    }
    bool isRunning() const { return waitpid(process_, nullptr, WNOHANG) == 0; }

private:
    pid_t process_;
};

QByteArray said(const SoldTill& till)
{
    QFile file(till.path() + "/errors");
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

constexpr int tenSeconds = 10000;
} // namespace

class TestCentralFollower : public QObject
{
    Q_OBJECT

private slots:
    void eachSaleArrivesWithinTenSeconds()
    {
        const SoldTill till;
        till.sell("2026-03-05 10:00:00.000");
        const std::string book = server().newBook();
        const Following following(till, book);
        QTRY_COMPARE_WITH_TIMEOUT(SoldTill::bookLines(book).size(), 1, tenSeconds);
        till.sell("2026-03-05 10:00:05.000");
        QTRY_COMPARE_WITH_TIMEOUT(SoldTill::bookLines(book).size(), 2, tenSeconds);
        QVERIFY(following.isRunning());
    }

    void aServerThatGoesAndComesBackIsFoundAgain()
    {
        const SoldTill till;
        till.sell("2026-03-05 10:00:00.000");
        const std::string book = server().newBook();
        const Following following(till, book);
        QTRY_COMPARE_WITH_TIMEOUT(SoldTill::bookLines(book).size(), 1, tenSeconds);
        server().crash();
        till.sell("2026-03-05 10:00:05.000");
        QTRY_VERIFY_WITH_TIMEOUT(!said(till).isEmpty(), tenSeconds);
        server().start();
        QTRY_COMPARE_WITH_TIMEOUT(SoldTill::bookLines(book).size(), 2, tenSeconds);
        QCOMPARE(QString::fromUtf8(said(till)),
            QString("Le livre central ne répond pas (pas de serveur ou pas de réseau).\n"));
    }

    void aRestoredTillIsReadAgain()
    {
        const SoldTill till;
        till.sell("2026-03-05 10:00:00.000");
        const std::string book = server().newBook();
        const Following following(till, book);
        QTRY_COMPARE_WITH_TIMEOUT(SoldTill::bookLines(book).size(), 1, tenSeconds);
        const SoldTill other;
        other.sell("2026-03-06 10:00:00.000");
        other.sell("2026-03-07 10:00:00.000");
        QCOMPARE(::rename(QFile::encodeName(other.file()).constData(),
                     QFile::encodeName(till.file()).constData()),
            0);
        QTRY_COMPARE_WITH_TIMEOUT(SoldTill::bookLines(book).size(), 3, tenSeconds);

        // Its last line says nothing of what is before it.
        const SoldTill third;
        third.sell("2026-02-01 10:00:00.000");
        third.sell("2026-03-07 10:00:00.000");
        QCOMPARE(::rename(QFile::encodeName(third.file()).constData(),
                     QFile::encodeName(till.file()).constData()),
            0);
        QTRY_COMPARE_WITH_TIMEOUT(SoldTill::bookLines(book).size(), 4, tenSeconds);
    }

    void itEndsInOrder()
    {
        const SoldTill till;
        till.sell("2026-03-05 10:00:00.000");
        const std::string book = server().newBook();
        Following following(till, book);
        QTRY_COMPARE_WITH_TIMEOUT(SoldTill::bookLines(book).size(), 1, tenSeconds);
        QElapsedTimer ending;
        ending.start();
        QCOMPARE(following.end(SIGTERM), 0);
        QVERIFY(ending.elapsed() < tenSeconds);
        QCOMPARE(said(till), QByteArray());
    }

    void itEndsWhileTheServerMakesItWait()
    {
        const SoldTill till;
        till.sell("2026-03-05 10:00:00.000");
        const std::string book = server().newBook();
        Following following(till, book);
        QTRY_COMPARE_WITH_TIMEOUT(SoldTill::bookLines(book).size(), 1, tenSeconds);
        pqxx::connection other(server().uri(book));
        pqxx::work holding(other);
        holding.exec("lock table vendel.progress");
        till.sell("2026-03-05 10:00:05.000");
        QTRY_COMPARE_WITH_TIMEOUT(server().cell(book,
                                      "select count(*) from pg_locks where not granted and "
                                      "relation = 'vendel.progress'::regclass"),
            "1", tenSeconds);
        QElapsedTimer ending;
        ending.start();
        QCOMPARE(following.end(SIGTERM), 0);
        QVERIFY(ending.elapsed() < tenSeconds);
        holding.abort();
        QCOMPARE(till.sendTo(server().uri(book)).status, 0);
        QCOMPARE(SoldTill::bookLines(book), till.lines());
    }

    void aServerThatStartsLaterIsWaitedFor()
    {
        const SoldTill till;
        till.sell("2026-03-05 10:00:00.000");
        const std::string book = server().newBook();
        server().stop();
        const Following following(till, book);
        QTRY_VERIFY_WITH_TIMEOUT(!said(till).isEmpty(), tenSeconds);
        server().start();
        QTRY_COMPARE_WITH_TIMEOUT(SoldTill::bookLines(book).size(), 1, tenSeconds);
        QVERIFY(following.isRunning());
        QCOMPARE(QString::fromUtf8(said(till)),
            QString("Le livre central ne répond pas (pas de serveur ou pas de réseau).\n"));
    }

    void whatNobodyCanWaitForEndsIt()
    {
        const SoldTill till;
        const Said said = till.command(
            {"--suivre", QString::fromStdString(server().uri(server().newDatabase()))});
        QCOMPARE(said.status, 6);
        QCOMPARE(said.errors.count('\n'), 1);
    }
};

VENDEL_TEST(TestCentralFollower)
#include "tst_CentralFollower.moc"
