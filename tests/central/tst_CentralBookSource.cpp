// SPDX-License-Identifier: MIT
#include "backoffice/sales/BookDatabase.h"
#include "backoffice/sales/BookSource.h"
#include "backoffice/sales/BookStatements.h"
#include "backoffice/sales/TillSource.h"
#include "central/Schema.h"
#include "tests/central/BookServer.h"
#include "tests/central/SoldTill.h"
#include "tests/support/TestProgram.h"

#include <algorithm>

namespace {
BookServer& server() { return BookServer::get(); }

QString uri(const std::string& book) { return QString::fromStdString(server().uri(book)); }

DayRange days(const char* first, const char* last)
{
    return {QDate::fromString(first, Qt::ISODate), QDate::fromString(last, Qt::ISODate)};
}

QStringList shown(const std::vector<HourSales>& sales)
{
    QStringList lines;
    for (const HourSales& part : sales) {
        lines << QString("%1: %2 %3h %4 %5")
                     .arg(part.till)
                     .arg(part.day.toString(Qt::ISODate))
                     .arg(part.hour)
                     .arg(part.lines)
                     .arg(part.takings);
    }
    return lines;
}

QStringList shown(const std::vector<ArticleSales>& articles)
{
    QStringList lines;
    for (const ArticleSales& part : articles) {
        lines << QString("%1: %2 %3 %4")
                     .arg(part.till)
                     .arg(part.article)
                     .arg(part.lines)
                     .arg(part.takings);
    }
    return lines;
}

/// With all digits that a number may differ in.
QStringList shown(const std::vector<Use>& uses)
{
    constexpr int digits = 15;
    QStringList lines;
    for (const Use& use : uses) {
        lines << QString("%1: %2 %3 %4 %5 = %6 %7")
                     .arg(QString::number(use.till),
                         use.day.isValid() ? use.day.toString(Qt::ISODate) : QString("*"),
                         use.composition, QString::number(use.amount, 'g', digits), use.unit,
                         QString::number(use.converted, 'g', digits), use.convertedUnit);
    }
    return lines;
}

QStringList list(const std::vector<QString>& names) { return {names.begin(), names.end()}; }

QString sentence(const std::function<void()>& act)
{
    try {
        act();
    } catch (const SalesError& error) {
        return QString(error.sentence()).replace(QChar(0xa0), ' ');
    }
    return {};
}

constexpr const char* emptied = "delete from Historique; delete from Article; delete from "
                                "ArticleStock; delete from DoseStock; ";

/// A till with recipes, and days on which its window counts in its own way.
void fill(const SoldTill& till)
{
    till.sql(QString(emptied)
        + "insert into Article (article, prix) values ('Café', 2), ('Thé', 3), ('Bière', 4);"
          "insert into ArticleStock values (1, 'Café'), (2, 'Thé'), (3, 'Bière'), (6, 'Double'), "
          "(7, 'double');"
          "insert into DoseStock values (1, 1, 'Lait', 2.5, 'cl'), (2, 1, 'Sucre', 0.1, 'g'), "
          "(3, 2, 'lait', 10, 'g'), (4, 2, 'Eau', 20, 'cl'), (5, 3, 'Houblon', 8, 'oz'), "
          "(6, 3, 'Malt', 2.6666666666666665, 'fl. oz'), (9, 6, 'Rhum', 3, 'cl'), "
          "(10, 7, 'Rhum', 3, 'cl'), (12, 99, 'Rien', 1, 'g')");
    for (const char* price : {"2", "2.5"}) {
        for (const char* day : {"2026-01-31", "2026-02-01", "2026-02-28", "2026-03-01"}) {
            for (int count = 0; count < 3; ++count) {
                till.sell(QString(day) + " 10:00:00.000", "Café", price);
            }
        }
    }
    till.sell("2026-02-01 11:00:00.000", "CAFé", "2");
    till.sell("2026-02-02 00:00:00.000", "Thé", "3");
    till.sell("2026-02-02 12:00:00.000", "Thé", "-3");
    till.sell("2026-02-03 12:00:00.000", "Bière", "4");
    till.sell("2026-02-03 12:59:59.999", "BIèRE", "4.5");
    till.sell("2026-02-04 12:00:00.000", "Double", "1");
    till.sell("2026-02-04 12:00:00.000", "DOUBLE", "1.5");
    till.sell("2026-02-04 12:00:00.000", "----", "-0.5");
}

/// Sends what \a till sold to \a book as the till \a name.
void send(const SoldTill& till, const std::string& book, const char* name)
{
    TillLines lines(till.path(), {}, SoldTill::hasty());
    Book target(server().uri(book), till.path().toStdString(), name);
    Sender sender(target, lines);
    sender.sendLines(Sender::Depth::All);
    sender.sendMenu();
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

    void monthsOfALongRangeAreTheSumsOfTheirDays()
    {
        const SoldTill till;
        fill(till);
        const std::string book = server().newBook();
        send(till, book, "Bar");
        BookSource source(uri(book));
        // By day the coffee counts three times on 31 January, and seven on 1 February, which has
        // four at 2 and three at 2.5; in all January to March, it is 13 at 2 and 12 at 2.5.
        const QStringList found
            = shown(source.uses(days("2026-01-15", "2026-03-31"), {})).filter("Lait");
        QCOMPARE(found,
            (QStringList{"0: * Lait 72.5 cl = 0 ", "0: 2026-01-15 Lait 7.5 cl = 0 ",
                "0: 2026-02-01 Lait 35 cl = 0 ", "0: 2026-03-01 Lait 7.5 cl = 0 "}));
        // March is not a whole month here, and is not counted twice.
        QCOMPARE(shown(source.uses(days("2025-12-15", "2026-03-15"), {})).filter("Lait"),
            (QStringList{"0: * Lait 72.5 cl = 0 ", "0: 2026-01-01 Lait 7.5 cl = 0 ",
                "0: 2026-02-01 Lait 35 cl = 0 ", "0: 2026-03-01 Lait 7.5 cl = 0 "}));
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

    void recipesOfAllKindsAreThoseOfTheTill_data()
    {
        QTest::addColumn<QString>("doses");
        QTest::addColumn<QStringList>("firstDay");
        QTest::newRow("a line twice")
            << "(1, 1, 'Lait', 2, 'cl'), (2, 1, 'Lait', 2.0, 'cl'), (3, 1, 'Lait', 3, 'cl')"
            << QStringList{"0: 2026-02-01 Lait 10 cl = 0 "};
        QTest::newRow("large units") << "(1, 1, 'Sirop', 4, 'oz'), (2, 2, 'Eau', 8, 'fl. oz')"
                                     << QStringList{"0: 2026-02-01 Eau 8 fl. oz = 0.25 quart",
                                            "0: 2026-02-01 Sirop 8 oz = 0.5 pound"};
        QTest::newRow("an article twice")
            << "(1, 1, 'Lait', 2, 'cl'), (2, 3, 'Lait', 2, 'cl'), (3, 3, 'Sucre', 1, 'g')"
            << QStringList{"0: 2026-02-01 Lait 4 cl = 0 ", "0: 2026-02-01 Sucre 2 g = 0 "};
        // Which of the units, or of the spellings, is shown is up to the till's statement.
        QTest::newRow("two units")
            << "(1, 1, 'Lait', 2, 'cl'), (2, 2, 'Lait', 3, 'oz')" << QStringList();
        QTest::newRow("two spellings")
            << "(1, 1, 'Lait', 2, 'cl'), (2, 2, 'LAIT', 2, 'cl'), (3, 1, 'lait', 2, 'cl')"
            << QStringList();
        QTest::newRow("another letter")
            << "(1, 1, 'Épice', 2, 'g'), (2, 2, 'épice', 2, 'g')"
            << QStringList{"0: 2026-02-01 Épice 4 g = 0 ", "0: 2026-02-01 épice 2 g = 0 "};
    }

    void recipesOfAllKindsAreThoseOfTheTill()
    {
        QFETCH(QString, doses);
        QFETCH(QStringList, firstDay);
        const SoldTill till;
        till.sql(QString(emptied)
            + "insert into ArticleStock values (1, 'Café'), (2, 'Thé'), (3, 'CAFé');"
              "insert into DoseStock values "
            + doses);
        for (const char* moment :
            {"2026-02-01 10:00:00.000", "2026-02-01 11:00:00.000", "2026-02-02 10:00:00.000"}) {
            till.sell(moment, "Café");
        }
        till.sell("2026-02-01 12:00:00.000", "thé");
        const std::string book = server().newBook();
        send(till, book, "Bar");
        // Another till, whose recipes are plain, changes nothing.
        const SoldTill other;
        other.sql(QString(emptied)
            + "insert into ArticleStock values (1, 'Café');"
              "insert into DoseStock values (1, 1, 'Grains', 7, 'mg')");
        other.sell("2026-02-01 10:00:00.000", "Café");
        send(other, book, "Cave");

        const DayRange range = days("2026-02-01", "2026-02-02");
        TillSource own(till.path(), SoldTill::hasty());
        const QStringList expected = shown(own.uses(range, {}));
        if (!firstDay.isEmpty()) {
            QCOMPARE(expected.filter("2026-02-01"), firstDay);
        }
        BookSource both(uri(book));
        QCOMPARE(shown(both.uses(range, {})).filter("2026-02-01 Grains"),
            QStringList("0: 2026-02-01 Grains 7 mg = 0 "));
        both.choose({"Bar"});
        QCOMPARE(shown(both.uses(range, {})), expected);
    }

    void recipesThatDifferInOneDoseAreTwo()
    {
        const std::string book = server().newBook();
        const SoldTill tills[3];
        const char* const doses[]{"'Lait', 2", "'Lait', 4", "'Eau', 2"};
        for (int till = 0; till < 3; ++till) {
            tills[till].sql(QString(emptied)
                + "insert into ArticleStock values (1, 'Café');"
                  "insert into DoseStock values (1, 1, "
                + doses[till] + ", 'cl')");
            tills[till].sell("2026-02-01 10:00:00.000", "Café", "2");
            send(tills[till], book, qPrintable(QString("Caisse %1").arg(till)));
        }
        BookSource source(uri(book));
        const DayRange day = days("2026-02-01", "2026-02-01");
        QCOMPARE(shown(source.uses(day, {})).mid(0, 3),
            (QStringList{"0: * Lait 2 cl = 0 ", "1: * Lait 4 cl = 0 ", "2: * Eau 2 cl = 0 "}));
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
