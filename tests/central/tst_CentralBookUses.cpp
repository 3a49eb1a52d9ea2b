// SPDX-License-Identifier: MIT
#include "backoffice/sales/BookSource.h"
#include "backoffice/sales/TillSource.h"
#include "tests/central/BookFigures.h"
#include "tests/support/TestProgram.h"

using namespace BookFigures;

namespace {
BookServer& server() { return BookServer::get(); }
} // namespace

/// What a book says was consumed is what its tills say.
class TestCentralBookUses : public QObject
{
    Q_OBJECT

private slots:
    void monthsOfALongRangeAreTheSumsOfTheirDays_data()
    {
        QTest::addColumn<QString>("change");
        QTest::newRow("milk in two units and spellings") << QString();
        QTest::newRow("in one")
            << "update DoseStock set composition = 'Lait', unite = 'cl' where idlig = 3";
    }

    void monthsOfALongRangeAreTheSumsOfTheirDays()
    {
        QFETCH(QString, change);
        const SoldTill till;
        fill(till);
        till.sql(change);
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
        QCOMPARE(shown(source.uses(day, {})),
            (QStringList{"0: * Lait 2 cl = 0 ", "1: * Lait 4 cl = 0 ", "2: * Eau 2 cl = 0 ",
                "0: 2026-02-01 Eau 2 cl = 0 ", "0: 2026-02-01 Lait 6 cl = 0 "}));
    }

    void tillsWithTheSameRecipesAreAddedUpByDay_data()
    {
        QTest::addColumn<QString>("unit");
        QTest::newRow("one unit") << "cl";
        QTest::newRow("two units") << "oz";
    }

    void tillsWithTheSameRecipesAreAddedUpByDay()
    {
        QFETCH(QString, unit);
        const std::string book = server().newBook();
        const SoldTill tills[2];
        for (const SoldTill& till : tills) {
            till.sql(QString(emptied)
                + "insert into ArticleStock values (1, 'Café'), (2, 'Thé');"
                  "insert into DoseStock values (1, 1, 'Lait', 2.5, 'cl'), (2, 2, 'Lait', 1, '"
                + unit + "')");
            till.sell("2026-02-01 10:00:00.000", "Café", "2");
        }
        tills[1].sell("2026-02-01 11:00:00.000", "Café", "2");
        tills[1].sell("2026-02-02 11:00:00.000", "CAFé", "2");
        send(tills[0], book, "Bar");
        send(tills[1], book, "Cave");
        BookSource source(uri(book));
        QCOMPARE(shown(source.uses(days("2026-02-01", "2026-02-03"), {})),
            (QStringList{"0: * Lait 2.5 cl = 0 ", "1: * Lait 7.5 cl = 0 ",
                "0: 2026-02-01 Lait 7.5 cl = 0 ", "0: 2026-02-02 Lait 2.5 cl = 0 "}));
    }

    void aTillWithoutRecipesUsedNothing()
    {
        const std::string book = server().newBook();
        const SoldTill till;
        till.sql(emptied);
        till.sell("2026-02-01 10:00:00.000", "Café", "2");
        send(till, book, "Bar");
        BookSource source(uri(book));
        QCOMPARE(shown(source.uses(days("2026-02-01", "2026-02-28"), {})), QStringList());
    }
};

VENDEL_TEST(TestCentralBookUses)
#include "tst_CentralBookUses.moc"
