// SPDX-License-Identifier: MIT
#include "backoffice/sales/BookDatabase.h"
#include "backoffice/sales/BookSource.h"
#include "backoffice/sales/BookStatements.h"
#include "backoffice/sales/TillSource.h"
#include "central/Schema.h"
#include "tests/central/BookFigures.h"
#include "tests/support/TestProgram.h"

#include <algorithm>

using namespace BookFigures;

namespace {
BookServer& server() { return BookServer::get(); }

QString sentence(const std::function<void()>& act)
{
    try {
        act();
    } catch (const SalesError& error) {
        return QString(error.sentence()).replace(QChar(0xa0), ' ');
    }
    return {};
}
} // namespace

/// The pages' figures from a book are those of its tills.
class TestCentralBookSource : public QObject
{
    Q_OBJECT

private slots:
    void readsTheSchemaThatIsMade() { QCOMPARE(BookStatements::schemaVersion, Schema::current); }

    void isToTheDigitWhatTheTillSays_data()
    {
        QTest::addColumn<QString>("first");
        QTest::addColumn<QString>("last");
        QTest::newRow("a day") << "2026-02-01"
                               << "2026-02-01";
        QTest::newRow("a month") << "2026-02-01"
                                 << "2026-02-28";
        QTest::newRow("a month and a day before") << "2026-01-31"
                                                  << "2026-02-28";
        QTest::newRow("parts of two months") << "2026-01-31"
                                             << "2026-02-01";
        QTest::newRow("nothing") << "2025-02-01"
                                 << "2025-02-28";
    }

    void isToTheDigitWhatTheTillSays()
    {
        QFETCH(QString, first);
        QFETCH(QString, last);
        const DayRange range = days(qPrintable(first), qPrintable(last));
        const SoldTill till;
        fill(till);
        const std::string book = server().newBook();
        send(till, book, "Bar");
        BookSource source(uri(book));
        TillSource own(till.path(), SoldTill::hasty());
        QCOMPARE(shown(source.uses(range, {})), shown(own.uses(range, {})));
        QCOMPARE(shown(source.hours(range, {})), shown(own.hours(range, {})));
        QCOMPARE(shown(source.articles(range, {})), shown(own.articles(range, {})));
        for (const auto part : {SalesSource::TillPart::Hour, SalesSource::TillPart::Day,
                 SalesSource::TillPart::Month, SalesSource::TillPart::WeekHour}) {
            QCOMPARE(
                shown(source.tillSales(range, part, {})), shown(own.tillSales(range, part, {})));
        }
        QCOMPARE(source.menu().size(), std::size_t{3});
        QCOMPARE(source.menu().at(0).article, own.menu().at(0).article);
        QCOMPARE(source.taxRate(), own.taxRate());
        QVERIFY(!source.taxRemark(QLocale::c()));
    }

    void twoTillsAreTheirSum()
    {
        const SoldTill one;
        const SoldTill other;
        fill(one);
        other.sql(QString(emptied)
            + "insert into ArticleStock values (1, 'Café');"
              "insert into DoseStock values (1, 1, 'Lait', 4, 'cl'), (2, 1, 'Eau', 5, 'cl')");
        other.sell("2026-02-01 10:30:00.000", "café", "2");
        other.sell("2026-02-01 10:40:00.000", "Cognac", "7.5");
        const std::string book = server().newBook();
        send(one, book, "Bar");
        send(other, book, "Terrasse");
        BookSource source(uri(book));
        const DayRange day = days("2026-02-01", "2026-02-01");
        QCOMPARE(shown(source.hours(day, {})),
            (QStringList{"0: 2026-02-01 10h 8 230000", "0: 2026-02-01 11h 1 20000"}));
        QCOMPARE(shown(source.tillSales(day, SalesSource::TillPart::Day, {})),
            (QStringList{"0: 2026-02-01 0h 7 155000", "1: 2026-02-01 0h 2 95000"}));
        QCOMPARE(shown(source.articles(day, {})),
            (QStringList{"0: CAFé 7 155000", "1: café 1 20000", "1: Cognac 1 75000"}));
        QCOMPARE(shown(source.uses(day, {})),
            (QStringList{"0: * Lait 17.5 cl = 0 ", "0: * Sucre 0.7 g = 0 ", "1: * Eau 5 cl = 0 ",
                "1: * Lait 4 cl = 0 ", "0: 2026-02-01 Eau 5 cl = 0 ",
                "0: 2026-02-01 Lait 4 cl = 0 ", "0: 2026-02-01 Lait 17.5 cl = 0 ",
                "0: 2026-02-01 Sucre 0.7 g = 0 "}));
        source.choose({"Terrasse"});
        QCOMPARE(list(source.tills()), QStringList("Terrasse"));
        QCOMPARE(list(source.allTills()), (QStringList{"Bar", "Terrasse"}));
        QCOMPARE(shown(source.hours(day, {})), QStringList("0: 2026-02-01 10h 2 95000"));
        QCOMPARE(
            shown(source.articles(day, {})), (QStringList{"0: café 1 20000", "0: Cognac 1 75000"}));
        source.choose({});
        QCOMPARE(list(source.tills()), (QStringList{"Bar", "Terrasse"}));
    }

    void aMenuNamesItsTills()
    {
        const SoldTill one;
        const SoldTill other;
        one.sql(QString(emptied) + "insert into Article (article, prix) values ('Thé', 3)");
        other.sql(QString(emptied)
            + "insert into Article (article, prix) values ('thé', 3.5), ('Bière', 4)");
        const std::string book = server().newBook();
        send(one, book, "Bar");
        send(other, book, "Terrasse");
        BookSource source(uri(book));
        const auto shownMenu = [&] {
            QStringList lines;
            for (const MenuArticle& article : source.menu()) {
                lines << QString("%1: %2 %3")
                             .arg(article.till)
                             .arg(article.article)
                             .arg(article.price);
            }
            return lines;
        };
        QCOMPARE(shownMenu(), (QStringList{"1: Bière 40000", "0: Thé 30000", "1: thé 35000"}));
        source.choose({"Terrasse"});
        QCOMPARE(shownMenu(), (QStringList{"0: Bière 40000", "0: thé 35000"}));
    }

    void tillsOfOneNameHaveNumbers()
    {
        const std::string book = server().newBook();
        const SoldTill tills[3];
        for (const SoldTill& till : tills) {
            send(till, book, "Bar %1");
        }
        BookSource source(uri(book));
        QCOMPARE(list(source.tills()), (QStringList{"Bar %1", "Bar %1 (2)", "Bar %1 (3)"}));
        QCOMPARE(sentence([&] { source.choose({"Cave"}); }),
            QString("Le livre central n'a pas de caisse « Cave ». Il a : Bar %1, Bar %1 (2), "
                    "Bar %1 (3)."));
    }

    void aPageIsOfOneMoment()
    {
        const std::string book = server().newBook();
        const SoldTill till;
        till.sql(emptied);
        till.sell("2026-02-01 10:00:00.000", "Café", "2");
        send(till, book, "Bar");
        BookSource source(uri(book));
        const DayRange day = days("2026-02-01", "2026-02-01");
        std::shared_ptr<void> moment = source.hold();
        QCOMPARE(shown(source.hours(day, {})), QStringList("0: 2026-02-01 10h 1 20000"));
        till.sell("2026-02-01 10:30:00.000", "Café", "2");
        send(till, book, "Bar");
        QCOMPARE(shown(source.articles(day, {})), QStringList("0: Café 1 20000"));
        moment.reset();
        QCOMPARE(shown(source.articles(day, {})), QStringList("0: Café 2 40000"));
    }

    void aBrokenPageDoesNotHoldTheNextOne()
    {
        const std::string book = server().newBook();
        const SoldTill till;
        till.sql(emptied);
        send(till, book, "Bar");
        BookDatabase database(uri(book));
        const auto count = [&database] {
            qint64 lines = -1;
            database.read("select count(*) from vendel.line", {},
                [&](const QSqlQuery& row) { lines = row.value(0).toLongLong(); });
            return lines;
        };
        QVERIFY_EXCEPTION_THROWN(([&] {
            const std::shared_ptr<void> moment = database.hold();
            count();
            database.read("select nonsense", {}, [](const QSqlQuery&) {});
        }()),
            SalesError);
        till.sell("2026-02-01 10:30:00.000", "Café", "2");
        send(till, book, "Bar");
        const std::shared_ptr<void> moment = database.hold();
        QCOMPARE(count(), 1);
    }

    void anotherTaxRateIsSaid()
    {
        const std::string book = server().newBook();
        const SoldTill tills[3];
        tills[1].sql("update Config set valeur = 5.5 where param = 'TVA'");
        const double rate = TillSource(tills[0].path(), SoldTill::hasty()).taxRate();
        send(tills[0], book, "Bar");
        send(tills[1], book, "Cave");
        send(tills[2], book, "Salle");
        BookSource source(uri(book));
        QCOMPARE(source.taxRate(), rate);
        QCOMPARE(source.taxRemark(QLocale(QLocale::French)).value_or("").replace(QChar(0xa0), ' '),
            QString("La TVA est calculée à un seul taux, mais des caisses en ont un autre : "
                    "Cave (5,5 %)."));
        source.choose({"Cave"});
        QCOMPARE(source.taxRate(), 5.5);
        QVERIFY(!source.taxRemark(QLocale::c()));
    }

    void whatArrivesIsSeen()
    {
        const std::string book = server().newBook();
        const SoldTill bar;
        const SoldTill cave;
        send(bar, book, "Bar");
        send(cave, book, "Cave");
        BookSource source(uri(book));
        QVERIFY(source.isChanged());
        QVERIFY(!source.isChanged());
        bar.sell("2026-03-05 10:00:00.000");
        send(bar, book, "Bar");
        QVERIFY(source.isChanged());
        QVERIFY(!source.isChanged());
        send(bar, book, "Comptoir");
        QVERIFY(source.isChanged());
        QCOMPARE(list(source.tills()), (QStringList{"Cave", "Comptoir"}));
        source.choose({"Cave"});
        source.isChanged();
        bar.sell("2026-03-05 11:00:00.000");
        send(bar, book, "Comptoir");
        QVERIFY(!source.isChanged());
    }
};

VENDEL_TEST(TestCentralBookSource)
#include "tst_CentralBookSource.moc"
