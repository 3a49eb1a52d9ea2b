// SPDX-License-Identifier: MIT
#include "central/Book.h"
#include "central/BookError.h"
#include "central/Schema.h"
#include "tests/central/BookServer.h"
#include "tests/central/SoldTill.h"
#include "tests/central/Wire.h"
#include "tests/support/TestProgram.h"

#include <future>
#include <thread>

namespace {
BookServer& server() { return BookServer::get(); }

/// Every table, column and function of the book.
QStringList shape(const std::string& book)
{
    return server().rows(book,
        "select table_name, column_name, data_type from information_schema.columns "
        "where table_schema = 'vendel' order by table_name, ordinal_position");
}
} // namespace

class TestCentralSchema : public QObject
{
    Q_OBJECT

private slots:
    void preparingTwiceIsHarmless()
    {
        const SoldTill till;
        till.sell("2026-03-05 10:00:00.000");
        const std::string book = server().newBook();
        till.send(book);
        const QStringList before = shape(book);
        QVERIFY(before.size() > 50);
        Schema::prepare(server().uri(book));
        QCOMPARE(shape(book), before);
        QCOMPARE(SoldTill::bookLines(book).size(), 1);
        QCOMPARE(server().rows(book, "select version from vendel.version"), QStringList("2"));
    }

    void preparingAtOnceIsHarmless()
    {
        const std::string book = server().newDatabase();
        std::vector<std::thread> preparing;
        for (int count = 0; count < 8; ++count) {
            preparing.emplace_back([&] { Schema::prepare(server().uri(book)); });
        }
        for (std::thread& one : preparing) {
            one.join();
        }
        QCOMPARE(server().rows(book, "select version from vendel.version"), QStringList("2"));
    }

    void aBookOfTheFirstVersionIsUpgraded()
    {
        const SoldTill till;
        for (const char* price : {"2", "2.5"}) {
            till.sell("2026-03-05 10:00:00.000", "Café", price);
            till.sell("2026-03-06 10:00:00.000", "CaFé", price);
        }
        till.sell("2026-03-06 11:00:00.000", "café", "2");
        till.sell("2026-04-01 11:00:00.000", "Thé", "3");
        const std::string book = server().newBook();
        till.send(book);
        const QStringList shapeOfAnew = shape(book);
        server().rows(book,
            "drop table vendel.day_use, vendel.month_use; update vendel.version set version = 1;"
            "create role \"L'auditeur\" login; grant usage on schema vendel to \"L'auditeur\";"
            "grant select on all tables in schema vendel to \"L'auditeur\";"
            "grant insert on vendel.day_sales to public");
        QVERIFY_EXCEPTION_THROWN(till.send(book), BookError);

        Schema::prepare(server().uri(book));
        QCOMPARE(shape(book), shapeOfAnew);
        QCOMPARE(server().rows(book, "select version from vendel.version"), QStringList("2"));
        QCOMPARE(server().rows(book, "select * from vendel.day_use order by day"),
            (QStringList{"2026-03-05|1|café|1", "2026-03-06|1|café|3", "2026-04-01|1|thé|1"}));
        QCOMPARE(server().rows(book, "select * from vendel.month_use order by month"),
            (QStringList{"2026-03-01|1|café|4", "2026-04-01|1|thé|1"}));
        for (const char* table : {"vendel.day_use", "vendel.month_use"}) {
            const auto may = [&](const std::string& right) {
                return server().cell(book,
                    "select has_table_privilege('L''auditeur', '" + std::string(table) + "', '"
                        + right + "')");
            };
            QCOMPARE(may("select"), "t");
            QCOMPARE(may("insert"), "t");
            QCOMPARE(may("delete"), "f");
        }

        till.sell("2026-03-06 12:00:00.000", "café", "2");
        till.send(book, Sender::Depth::New);
        QCOMPARE(SoldTill::wrongSums(book), QStringList());
    }

    void anUpgradeLeavesTheTablesToTheirOwner()
    {
        const SoldTill till;
        till.sell("2026-03-05 10:00:00.000");
        const std::string book = server().newDatabase();
        server().rows(book,
            "create role patron login; create role \"Le chef\" login; grant create on database "
                + book + " to patron");
        Schema::prepare(server().uri(book, "patron"));
        server().rows(book,
            "drop table vendel.day_use, vendel.month_use; update vendel.version set version = 1;"
            "grant select on vendel.day_sales to \"Le chef\" with grant option");
        // By the server's administrator.
        Schema::prepare(server().uri(book));
        QCOMPARE(server().rows(
                     book, "select distinct tableowner from pg_tables where schemaname = 'vendel'"),
            QStringList("patron"));
        QCOMPARE(server().cell(book,
                     "select has_table_privilege('Le chef', 'vendel.month_use', "
                     "'select with grant option')"),
            "t");
        const Said said = till.sendTo(server().uri(book, "patron"));
        QCOMPARE(said.errors, QString());
        QCOMPARE(SoldTill::bookLines(book), till.lines());
    }

    void anUpgradeThatIsCutOffChangesNothing()
    {
        const std::string book = server().newBook();
        server().rows(book,
            "drop table vendel.day_use, vendel.month_use; update vendel.version set version = 1");
        const QStringList before = shape(book);
        int trials = 0;
        for (bool isCut = true; isCut;) {
            ++trials;
            const Wire wire(server().folder(), [=](int request) {
                return request == trials ? Wire::Fate::Unanswered : Wire::Fate::Pass;
            });
            try {
                Schema::prepare(server().uri(book, "owner", wire.folder()));
            } catch (const BookError&) {
                QVERIFY(wire.isCut());
            }
            isCut = wire.isCut();
            if (server().cell(book, "select version from vendel.version") == "1") {
                QCOMPARE(shape(book), before);
            }
        }
        QVERIFY2(trials > 5, qPrintable(QString::number(trials)));
        QCOMPARE(server().cell(book, "select version from vendel.version"), "2");
        QCOMPARE(SoldTill::wrongSums(book), QStringList());
    }

    void anUpgradeWaitsAsLongAsItTakes()
    {
        // Longer than a sender waits for anything, where there is time for it.
        const int seconds = qEnvironmentVariableIsSet("VENDEL_TEST_PATIENCE") ? 95 : 1;
        const std::string book = server().newBook();
        server().rows(book,
            "drop table vendel.day_use, vendel.month_use; update vendel.version set version = 1");
        const auto holding = std::async(std::launch::async, [&] {
            server().rows(book,
                "lock table vendel.progress; select pg_sleep(" + std::to_string(seconds) + ")");
        });
        const std::string held = "select count(*) from pg_locks where granted and mode = "
                                 "'AccessExclusiveLock' and relation = 'vendel.progress'::regclass";
        QTRY_COMPARE(server().cell(book, held), "1");
        Schema::prepare(server().uri(book));
        QCOMPARE(server().cell(book, "select version from vendel.version"), "2");
    }

    void tillsSendWhileABookIsUpgraded()
    {
        const SoldTill till;
        till.sell("2026-03-05 10:00:00.000", "Café", "2");
        const std::string book = server().newBook();
        QCOMPARE(till.send(book), std::int64_t{1});
        server().rows(book,
            "drop table vendel.day_use, vendel.month_use; update vendel.version set version = 1");
        // A till of the first version is in the middle of a batch.
        pqxx::connection old(server().uri(book));
        pqxx::work batch(old);
        batch.exec("select * from vendel.progress where till = 1 for update");
        std::thread upgrade([&] { Schema::prepare(server().uri(book)); });
        QTRY_COMPARE(server().cell(book,
                         "select count(*) from pg_locks where not granted and "
                         "relation = 'vendel.progress'::regclass"),
            "1");
        batch.exec("insert into vendel.line (till, moment, article, name, price, ordinal) values "
                   "(1, '2026-03-05 11:00', 1, 1, 20000, 1);"
                   "insert into vendel.hour_sales values ('2026-03-05', 1, 11, 1, 20000);"
                   "update vendel.day_sales set lines = lines + 1;"
                   "update vendel.month_sales set lines = lines + 1;"
                   "update vendel.progress set number = number + 1");
        batch.commit();
        upgrade.join();
        QCOMPARE(server().rows(book, "table vendel.day_use"), QStringList("2026-03-05|1|café|2"));
        QCOMPARE(SoldTill::wrongSums(book), QStringList());
    }

    void aSenderUnderWayIsStoppedByAnUpgrade()
    {
        const SoldTill till;
        const std::string book = server().newBook();
        Book open(server().uri(book), "identity", "Bar");
        open.enter({});
        Book::Progress progress = open.progress().value();
        server().rows(book, "update vendel.version set version = 3");
        Batch batch;
        batch.lines = {Line{}};
        QVERIFY_EXCEPTION_THROWN(open.add(batch, progress), BookError);
        QCOMPARE(server().cell(book, "select count(*) from vendel.odd_line"), "0");
    }

    void whatIsInTheDatabaseAlreadyStays()
    {
        const std::string book = server().newDatabase();
        server().rows(book, "create table public.line (id integer); insert into line values (7)");
        Schema::prepare(server().uri(book));
        QCOMPARE(server().cell(book, "select id from public.line"), "7");
    }

    void aSenderNeedsNoRightToMakeTables()
    {
        const SoldTill till;
        till.sell("2026-03-05 10:00:00.000");
        const std::string book = server().newBook();
        server().rows(book,
            "create role caisse login; grant usage on schema vendel to caisse;"
            "grant select, insert, update, delete on all tables in schema vendel to caisse;"
            "grant execute on function vendel.make_month to caisse");
        const Said said = till.sendTo(server().uri(book, "caisse"));
        QCOMPARE(said.errors, QString());
        QCOMPARE(
            said.output, QString("Le livre central a reçu 1 nouvelle(s) ligne(s) de vente.\n"));
        QCOMPARE(SoldTill::bookLines(book), till.lines());
    }

    void aMonthHasAPlaceOfItsOwn()
    {
        const SoldTill till;
        till.sell("2026-02-28 23:59:59.999");
        till.sell("2026-03-01 00:00:00.000");
        const std::string book = server().newBook();
        till.send(book);
        QCOMPARE(server().rows(book, "select count(*) from vendel.line_2026_02"), QStringList("1"));
        QCOMPARE(server().rows(book, "select count(*) from vendel.line_2026_03"), QStringList("1"));
    }
};

VENDEL_TEST(TestCentralSchema)
#include "tst_CentralSchema.moc"
