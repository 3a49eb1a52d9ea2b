// SPDX-License-Identifier: MIT
#include "store/Consumption.h"
#include "tests/backoffice/sales/GestionShop.h"
#include "tests/support/TestProgram.h"

#include <algorithm>

namespace {
/// What the till's own window says, in the words of shown().
QStringList byTheTill(const QString& day, const QString& from, const QString& to)
{
    QStringList lines;
    for (const ConsumedTotal& total : Consumption::totals(from, to + " 23:59:59.999")) {
        const QString converted = total.convertedUnit.isEmpty()
            ? QString()
            : QString(" = %1 %2").arg(total.converted, total.convertedUnit);
        lines << QString("%1 %2 %3 %4%5")
                     .arg(day, total.composition, total.amount, total.unit, converted);
    }
    return lines;
}

/// The same of the back office, with all digits.
QStringList byTheBackOffice(const std::vector<Use>& uses)
{
    constexpr int digits = 15;
    const auto number = [](double value) {
        const QString text = QString::number(value, 'g', digits);
        return text.contains('.') || text.contains('e') ? text : text + ".0";
    };
    QStringList lines;
    for (const Use& use : uses) {
        const QString day = use.day.isValid() ? use.day.toString(Qt::ISODate) : QString("*");
        const QString converted = use.convertedUnit.isEmpty()
            ? QString()
            : QString(" = %1 %2").arg(number(use.converted), use.convertedUnit);
        lines << QString("%1 %2 %3 %4%5")
                     .arg(day, use.composition, number(use.amount), use.unit, converted);
    }
    return lines;
}

/// Whole sums are integers on the till where all doses are.
QStringList withDecimals(QStringList lines)
{
    for (QString& line : lines) {
        QStringList words = line.split(' ');
        if (!words.at(2).contains('.')) {
            words[2] += ".0";
        }
        line = words.join(' ');
    }
    return lines;
}

/// Everything that a recipe and a sale can be.
struct OddShop : GestionShop
{
    OddShop()
    {
        fill(
            "insert into Article (article, prix) values ('Café', 2), ('Thé', 3), ('Bière', 4);"
            "insert into ArticleStock values (1, 'Café'), (2, 'Thé'), (3, 'Bière'), (4, 'Ancien'), "
            "(5, 'cafe'), (6, 'Double'), (7, 'double');"
            "insert into DoseStock values (1, 1, 'Lait', 2.5, 'cl'), (2, 1, 'Sucre', 0.1, 'g'), "
            "(3, 2, 'lait', 10, 'g'), (4, 2, 'Eau', 20, 'cl'), (5, 3, 'Houblon', 8, 'oz'), "
            "(6, 3, 'Malt', 2.6666666666666665, 'fl. oz'), (7, 4, 'Sel', '1e2', 'une'), "
            "(8, 5, 'Moka', 0.3, 'oz'), (9, 6, 'Rhum', 3, 'cl'), (10, 7, 'Rhum', 3, 'cl'), "
            "(11, 6, 'Sucre', 0.7, 'g'), (12, 99, 'Rien', 1, 'g'), (13, 2, 'Sucre', 'peu', 'g')");
        // Two prices sold equally often count once on the till.
        for (const char* price : {"2", "2.5"}) {
            for (const char* day : {"2026-11-19", "2026-11-20"}) {
                for (int count = 0; count < 3; ++count) {
                    sell((QByteArray(day) + " 10:00:00.000").constData(), "Café", price);
                }
            }
        }
        sell("2026-11-20 11:00:00.000", "CafÉ", "2");
        sell("2026-11-20 11:00:00.000", "CAFé", "2");
        sell("2026-11-20 11:00:00.000", "cafe", "2");
        sell("2026-11-20 11:00:00.000", "CAFE", "2.0");
        sell("2026-11-20 11:00:00.000", "Cafe", "'2'");
        sell("2026-11-20 11:00:00.000", "Cafe", "'deux'");
        sell("2026-11-20 11:00:00.000", "Cafe", "'Deux'");
        sell("2026-11-21 00:00:00.000", "Thé", "3");
        sell("2026-11-21 12:00:00.000", "Thé", "-3");
        sell("2026-11-21 23:59:59.999", "Thé", "3.333333333333");
        sell("2026-11-22 12:00:00.000", "Bière", "4");
        sell("2026-11-22 12:00:00.000", "BIèRE", "4");
        sell("2026-11-22 12:00:00.000", "Ancien", "1");
        sell("2026-11-22 12:00:00.000", "Double", "1");
        sell("2026-11-22 12:00:00.000", "DOUBLE", "1.5");
        sell("2026-11-22 12:00:00.000", "----", "-0.5");
        sell("2026-11-23 12:00:00.000", "Sans recette", "5");
        sell("2026-12-01 00:00:00.000", "Café", "2");
    }
};
} // namespace

/// What the recipes used is what the till's own window says.
class TestGestionTillSourceUses : public QObject
{
    Q_OBJECT

private slots:
    void areTheTillsToTheDigit()
    {
        const OddShop shop;
        QStringList expected = byTheTill("*", "2026-11-01", "2026-11-30");
        QVERIFY(expected.size() >= 8);
        for (int day = 19; day <= 22; ++day) {
            const QString text = QString("2026-11-%1").arg(day);
            const QStringList ofDay = byTheTill(text, text, text);
            QVERIFY(!ofDay.isEmpty());
            expected += ofDay;
        }
        TillSource source(shop.path(), afterClosing());
        QCOMPARE(byTheBackOffice(source.uses(days("2026-11-01", "2026-11-30"), {})),
            withDecimals(expected));
    }

    void equalCountsAtTwoPricesCountOnce()
    {
        const GestionShop shop;
        shop.fill("insert into ArticleStock values (1, 'Café');"
                  "insert into DoseStock values (1, 1, 'Lait', 2, 'cl')");
        shop.sell("2026-11-20 10:00:00.000", "Café", "2");
        shop.sell("2026-11-20 10:00:00.000", "Café", "3");
        shop.sell("2026-11-21 10:00:00.000", "Café", "3");
        TillSource source(shop.path(), afterClosing());
        // The whole range: once at 2, twice at 3. On the 20th: once at each price.
        QCOMPARE(shown(source.uses(days("2026-11-20", "2026-11-21"), {})),
            QStringList({"* Lait 6 cl", "2026-11-20 Lait 2 cl", "2026-11-21 Lait 2 cl"}));
    }

    void portionsDoNotMatter()
    {
        const GestionShop shop;
        shop.fill("insert into ArticleStock values (1, 'Café');"
                  "insert into DoseStock values (1, 1, 'Lait', 2, 'cl')");
        for (const char* price : {"2", "3"}) {
            shop.sql(
                QString("insert into Historique with recursive sale(n) as (select 0 union all "
                        "select n + 1 from sale where n < 699) select 1, 'Café', %1, "
                        "strftime('%Y-%m-%d %H:%M:%f', '2026-11-20', n || ' seconds') from sale")
                    .arg(price)
                    .toUtf8()
                    .constData());
        }
        TillSource source(shop.path(), smallPortions());
        QCOMPARE(shown(source.uses(days("2026-11-20", "2026-11-20"), {})),
            QStringList({"* Lait 1400 cl", "2026-11-20 Lait 1400 cl"}));
    }

    void aStockOfThousandsIsReadWhole()
    {
        const GestionShop shop;
        shop.fill(
            "insert into ArticleStock with recursive a(n) as (select 1 union all select n + 1 "
            "from a where n < 2500) select n, 'Article ' || n from a;"
            "insert into DoseStock select id, id, 'Partie ' || id, 1, 'g' from ArticleStock;"
            "insert into Historique select id, article, 1, '2026-11-20 10:00:00.000' from "
            "ArticleStock;"
            "insert into Article (article, prix) select article, 1 from ArticleStock");
        TillSource source(shop.path(), afterClosing());
        QCOMPARE(source.uses(days("2026-11-20", "2026-11-20"), {}).size(), std::size_t{5000});
        QCOMPARE(source.menu().size(), std::size_t{2500});
    }
};

VENDEL_TEST(TestGestionTillSourceUses)
#include "tst_GestionTillSource_uses.moc"
