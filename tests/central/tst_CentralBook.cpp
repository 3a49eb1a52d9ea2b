// SPDX-License-Identifier: MIT
#include "tests/central/BookServer.h"
#include "tests/central/SoldTill.h"
#include "tests/support/TestProgram.h"

#include <thread>

namespace {
BookServer& server() { return BookServer::get(); }
} // namespace

/// What the pages read.
class TestCentralBook : public QObject
{
    Q_OBJECT

private slots:
    void sumsAreKeptByHourDayAndMonth()
    {
        const SoldTill till;
        till.sell("2026-02-28 23:59:59.999", "Thé", "2.5");
        till.sell("2026-03-05 10:00:00.000", "Thé", "2.5");
        till.sell("2026-03-05 10:59:59.000", "Thé", "2.5");
        till.sell("2026-03-05 11:00:00.000", "thé", "3");
        till.sell("2026-03-06 11:00:00.000", "Thé", "2.5");
        const std::string book = server().newBook();
        till.send(book);
        QCOMPARE(server().rows(
                     book, "select day, hour, lines, takings from vendel.hour_sales order by 1, 2"),
            (QStringList{"2026-02-28|23|1|25000", "2026-03-05|10|2|50000", "2026-03-05|11|1|30000",
                "2026-03-06|11|1|25000"}));
        QCOMPARE(server().rows(book,
                     "select day, n.name, price, lines from vendel.day_sales s "
                     "join vendel.name n on n.id = s.name order by 1, 3"),
            (QStringList{"2026-02-28|Thé|25000|1", "2026-03-05|Thé|25000|2",
                "2026-03-05|thé|30000|1", "2026-03-06|Thé|25000|1"}));
        QCOMPARE(server().rows(book,
                     "select month, n.name, price, lines from vendel.month_sales s "
                     "join vendel.name n on n.id = s.name order by 1, 3"),
            (QStringList{
                "2026-02-01|Thé|25000|1", "2026-03-01|Thé|25000|3", "2026-03-01|thé|30000|1"}));
        till.sell("2026-03-05 10:30:00.000", "Thé", "2.5");
        till.send(book, Sender::Depth::New);
        QCOMPARE(server().cell(book,
                     "select lines from vendel.hour_sales where day = '2026-03-05' and hour = 10"),
            "3");
    }

    void usesAreCountedAsTheTillsWindowDoes()
    {
        const SoldTill till;
        for (const char* price : {"2", "2.5"}) {
            for (const char* day : {"2026-03-05", "2026-03-06"}) {
                till.sell(QString(day) + " 10:00:00.000", "Café", price);
                till.sell(QString(day) + " 11:00:00.000", "CaFé", price);
            }
        }
        const std::string book = server().newBook();
        till.send(book);
        const std::string days = "select day, folded, lines from vendel.day_use order by 1";
        const std::string months = "select month, folded, lines from vendel.month_use";
        QCOMPARE(
            server().rows(book, days), (QStringList{"2026-03-05|café|2", "2026-03-06|café|2"}));
        QCOMPARE(server().rows(book, months), QStringList("2026-03-01|café|4"));

        // Two at 2 and three at 2.5 are five.
        till.sell("2026-03-06 12:00:00.000", "Café", "2.5");
        till.send(book, Sender::Depth::New);
        QCOMPARE(
            server().rows(book, days), (QStringList{"2026-03-05|café|2", "2026-03-06|café|5"}));
        QCOMPARE(server().rows(book, months), QStringList("2026-03-01|café|7"));

        // Three at each are three.
        till.sell("2026-03-06 13:00:00.000", "café", "2");
        till.send(book, Sender::Depth::New);
        QCOMPARE(
            server().rows(book, days), (QStringList{"2026-03-05|café|2", "2026-03-06|café|3"}));
        QCOMPARE(server().rows(book, months), QStringList("2026-03-01|café|5"));
    }

    void namesThatAreOneArticlesAreKnown()
    {
        const SoldTill till;
        till.sell("2026-03-05 10:00:00.000", "ÉCLAIR Zzz");
        const std::string book = server().newBook();
        till.send(book);
        QCOMPARE(server().rows(book, "select name, folded from vendel.name"),
            QStringList("ÉCLAIR Zzz|Éclair zzz"));
    }

    void menuAndRecipesAreThoseOfTheTill()
    {
        const SoldTill till;
        till.sql("delete from Article; delete from ArticleStock; delete from DoseStock;"
                 "update Config set valeur = 5.5 where param = 'TVA';"
                 "insert into Article values (3, 'Thé', 2.5), (4, 'Éclair', 3.2);"
                 "insert into ArticleStock values (3, 'Thé');"
                 "insert into DoseStock values (9, 3, 'Lait', 0.25, 'cl')");
        const std::string book = server().newBook();
        till.send(book);
        QCOMPARE(server().rows(book, "select id, article, price from vendel.menu order by id"),
            (QStringList{"3|Thé|25000", "4|Éclair|32000"}));
        QCOMPARE(server().rows(book, "select id, article from vendel.stock_article"),
            QStringList("3|Thé"));
        QCOMPARE(server().rows(
                     book, "select line, stock_article, composition, dose, unit from vendel.dose"),
            QStringList("9|3|Lait|0.25|cl"));
        QCOMPARE(server().cell(book, "select tax_rate from vendel.till"), "5.5");

        till.sql("delete from Article where id = 3; update DoseStock set dose = 0.3");
        till.send(book);
        QCOMPARE(server().rows(book, "select id from vendel.menu"), QStringList("4"));
        QCOMPARE(server().rows(book, "select dose from vendel.dose"), QStringList("0.3"));
    }

    void anUnchangedMenuIsNotWrittenAgain()
    {
        const SoldTill till;
        const std::string book = server().newBook();
        till.sql("insert into Article values (3, 'Thé', 2.5)");
        till.send(book);
        const QStringList before = server().rows(book, "select xmin from vendel.menu");
        till.send(book);
        QCOMPARE(server().rows(book, "select xmin from vendel.menu"), before);
    }

    void twoTillsOfOneNameAreTwo()
    {
        const SoldTill one;
        const SoldTill other;
        one.sell("2026-03-05 10:00:00.000");
        other.sell("2026-03-05 10:00:00.000");
        const std::string book = server().newBook();
        for (const SoldTill* till : {&one, &other}) {
            const Said said = till->command(
                {"--envoyer", QString::fromStdString(server().uri(book)), "--nom", "Caisse"});
            QCOMPARE(said.status, 0);
        }
        QCOMPARE(server().rows(book, "select id, name from vendel.till order by id"),
            (QStringList{"1|Caisse", "2|Caisse"}));
        QCOMPARE(SoldTill::bookLines(book, 1).size(), 1);
        QCOMPARE(SoldTill::bookLines(book, 2).size(), 1);
    }

    void aTillThatIsRenamedStaysTheSame()
    {
        const SoldTill till;
        const std::string book = server().newBook();
        const auto uri = QString::fromStdString(server().uri(book));
        QCOMPARE(till.command({"--envoyer", uri, "--nom", "Bar"}).status, 0);
        QCOMPARE(till.command({"--envoyer", uri, "--nom", "Terrasse"}).status, 0);
        QCOMPARE(till.command({"--envoyer", uri}).status, 0);
        QCOMPARE(server().rows(book, "select name from vendel.till"), QStringList("Terrasse"));
    }

    void fiftyTillsSendAtOnce()
    {
        constexpr int count = 50;
        const std::string book = server().newBook();
        std::vector<std::unique_ptr<SoldTill>> tills;
        for (int till = 0; till < count; ++till) {
            tills.push_back(std::make_unique<SoldTill>());
            // The same new months and names for all, in other orders.
            tills.back()->sql(
                QString("with recursive n(i) as (select 0 union all select i + 1 from n "
                        "where i < 119) insert into Historique (id, article, prix, date_heure) "
                        "select 1, 'Article ' || ((i * 7 + %1) % 40), 2, strftime("
                        "'%Y-%m-%d %H:%M:%f', '2026-01-01', (((i + %1) % 12) * 30) || ' days', "
                        "i || ' seconds') from n")
                    .arg(till));
        }
        std::vector<std::thread> sending;
        std::atomic<int> done = 0;
        for (const auto& till : tills) {
            sending.emplace_back([&] { done += till->send(book) == 120 ? 1 : 0; });
        }
        for (std::thread& one : sending) {
            one.join();
        }
        QCOMPARE(done, count);
        QCOMPARE(server().cell(book, "select count(*) from vendel.line"), "6000");
        QCOMPARE(server().cell(book, "select count(*) from vendel.name"), "40");
        QCOMPARE(SoldTill::wrongSums(book), QStringList());
    }
};

VENDEL_TEST(TestCentralBook)
#include "tst_CentralBook.moc"
