// SPDX-License-Identifier: MIT
#include "launcher/BookStatus.h"
#include "launcher/Refusal.h"
#include "tests/central/BookServer.h"
#include "tests/central/SoldTill.h"
#include "tests/central/Wire.h"
#include "tests/support/TestProgram.h"

#include <QDir>
#include <QFile>

namespace {
BookServer& server() { return BookServer::get(); }

constexpr int statusOf(BookStatus status) { return static_cast<int>(status); }
} // namespace

/// What vendel-central says when something goes wrong while it works.
class TestCentralAnswers : public QObject
{
    Q_OBJECT

private slots:
    void anErrorOfTheServerIsOneSentence_data()
    {
        QTest::addColumn<QString>("state");
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("sentence");
        const QString silent = "Le livre central ne répond pas (%1).";
        QTest::newRow("no room") << "53100" << statusOf(BookStatus::Full)
                                 << "Le livre central n'a plus de place.";
        QTest::newRow("no memory")
            << "53200" << statusOf(BookStatus::Full) << "Le livre central n'a plus de place.";
        QTest::newRow("cancelled")
            << "57014" << statusOf(BookStatus::Unreachable) << silent.arg("pas de réponse à temps");
        QTest::newRow("locked") << "55P03" << statusOf(BookStatus::Unreachable)
                                << silent.arg("pas de réponse à temps");
        QTest::newRow("stopping") << "57P01" << statusOf(BookStatus::Unreachable)
                                  << silent.arg("le serveur démarre ou s'arrête");
        QTest::newRow("read only")
            << "25006" << statusOf(BookStatus::NoRight)
            << "Cet utilisateur n'a pas le droit d'écrire dans le livre central.";
        // Tried again each time.
        QTest::newRow("two at once for ever")
            << "40001" << statusOf(BookStatus::Unreachable) << silent.arg("pas de réponse à temps");
        QTest::newRow("damaged")
            << "XX001" << statusOf(BookStatus::Failed)
            << "Le livre central répond par une erreur (ERROR:  Papperlapapp).";
    }
    void anErrorOfTheServerIsOneSentence()
    {
        QFETCH(QString, state);
        QFETCH(int, status);
        QFETCH(QString, sentence);
        const std::string book = server().newBook();
        server().rows(book,
            "create function fail() returns trigger language plpgsql as $$ begin "
            "raise exception 'Papperlapapp' using errcode = '"
                + state.toStdString()
                + "'; end $$; create trigger fail before insert on vendel.line "
                  "for each statement execute function fail()");
        const SoldTill till;
        till.sell("2026-03-05 10:00:00.000");
        const Said said = till.sendTo(server().uri(book));
        QCOMPARE(said.errors, sentence + '\n');
        QCOMPARE(said.status, status);
        QCOMPARE(said.output, QString());

        server().rows(book, "drop trigger fail on vendel.line");
        QCOMPARE(till.sendTo(server().uri(book)).status, 0);
        QCOMPARE(SoldTill::bookLines(book), till.lines());
    }

    void aCutWireIsSaid()
    {
        const std::string book = server().newBook();
        const SoldTill till;
        till.sell("2026-03-05 10:00:00.000");
        // The first is the greeting.
        const Wire wire(server().folder(),
            [](int request) { return request == 3 ? Wire::Fate::Lost : Wire::Fate::Pass; });
        const Said said = till.sendTo(server().uri(book, "owner", wire.folder()));
        QVERIFY(wire.isCut());
        QCOMPARE(
            said.errors, QString("Le livre central ne répond pas (la liaison a été coupée).\n"));
        QCOMPARE(said.status, statusOf(BookStatus::Unreachable));
    }

    void linesKeptAsideAreSaid()
    {
        const std::string book = server().newBook();
        const SoldTill till;
        till.sell("2026-03-05 10:00:00.000");
        till.sell("hier");
        till.sell("demain");
        QCOMPARE(till.sendTo(server().uri(book)).output,
            QString("Le livre central a reçu 1 nouvelle(s) ligne(s) de vente.\n"
                    "2 ligne(s) sans date ni prix utilisables sont gardées à part dans le livre "
                    "central.\n"));
    }

    void aNameThatCannotBeWrittenIsSaid()
    {
        const SoldTill till;
        QVERIFY(QDir(till.path()).mkdir("central-nom"));
        const Said said = till.command({"--envoyer",
            QString::fromStdString(server().uri(server().newBook())), "--nom", "Bar"});
        QVERIFY2(said.errors.startsWith("L'identité de la caisse n'a pas pu être écrite dans « "
                     + till.path() + " » ("),
            qPrintable(said.errors));
        QCOMPARE(said.errors.count('\n'), 1);
        QCOMPARE(said.status, statusOf(BookStatus::Folder));
    }

    void aTillThatChangesAllTheTimeIsSentLater()
    {
        const SoldTill till;
        till.sell("2026-03-05 10:00:00.000");
        const std::string book = server().newBook();
        // Its database is another one after each look.
        Timing timing = SoldTill::pausing(till);
        int replaced = 0;
        timing.sleep = [&](qint64) {
            const QString part = till.file() + ".part";
            ++replaced;
            QVERIFY(QFile::copy(till.file(), part));
            QCOMPARE(::rename(QFile::encodeName(part).constData(),
                         QFile::encodeName(till.file()).constData()),
                0);
        };
        TillLines lines(till.path(), {}, timing);
        Book entered(server().uri(book), "identity", "Caisse");
        try {
            Sender(entered, lines).sendLines(Sender::Depth::All);
            QFAIL("sent");
        } catch (const Refusal& refusal) {
            QCOMPARE(QString::fromStdString(refusal.words().french),
                QString("La base de la caisse change sans cesse : les ventes seront envoyées plus "
                        "tard."));
            QCOMPARE(refusal.status(), statusOf(BookStatus::Till));
        }
        QVERIFY(replaced >= 10);

        QCOMPARE(till.send(book), std::int64_t{1});
    }
};

VENDEL_TEST(TestCentralAnswers)
#include "tst_Central_answers.moc"
