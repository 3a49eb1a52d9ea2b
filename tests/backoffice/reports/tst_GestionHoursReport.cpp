// SPDX-License-Identifier: MIT
#include "tests/backoffice/reports/FixedSales.h"
#include "tests/support/TestProgram.h"

namespace {
Report report(FixedSales& sales, const DayRange& range, const QLocale& locale = Seen::french)
{
    ReportOrder order;
    order.page = Page::Hours;
    order.range = range;
    order.today = QDate(2026, 11, 12);
    order.locale = locale;
    return makeReport(order, sales, {});
}

/// Monday 2 November to Thursday 12 November 2026; the Friday is to come.
const DayRange days{{2026, 11, 2}, {2026, 11, 13}};

class SmallShop : public FixedSales
{
public:
    SmallShop()
    {
        hourSales = {{{2026, 11, 2}, 9, 2, 40000}, {{2026, 11, 6}, 12, 5, 90000},
            {{2026, 11, 8}, 11, 1, 10000}, {{2026, 11, 9}, 9, 1, 30000},
            {{2026, 11, 9}, 12, 1, 50000}};
    }
};
} // namespace

class TestGestionHoursReport : public QObject
{
    Q_OBJECT

private slots:
    void theWeekBeginsWithMondayAndTheHoursWithTheFirstSale()
    {
        SmallShop sales;
        const Report page = report(sales, days);
        QCOMPARE(page.title, QStringLiteral("Heures"));
        const HeatMap& map = *page.heatMap;
        QCOMPARE(Seen::names(map.rows),
            QStringLiteral("lundi|mardi|mercredi|jeudi|vendredi|samedi|dimanche"));
        QCOMPARE(Seen::names(map.columns), QStringLiteral("9 h|10 h|11 h|12 h"));
        QCOMPARE(map.values.size(), std::size_t{28});
        QCOMPARE(std::vector<double>(map.values.begin(), map.values.begin() + 5),
            std::vector<double>({70000, 0, 0, 50000, 0}));
        QCOMPARE(map.values.at(19), 90000.0);
        QCOMPARE(map.values.at(26), 10000.0);
        QCOMPARE(Seen::titles(page.tables.at(0)),
            QStringLiteral("Heure|lundi|mardi|mercredi|jeudi|vendredi|samedi|dimanche|Total"));
        QCOMPARE(Seen::rows(page.tables.at(0)),
            QStringList({"9 h|7,00 €|0,00 €|0,00 €|0,00 €|0,00 €|0,00 €|0,00 €|7,00 €",
                "10 h|0,00 €|0,00 €|0,00 €|0,00 €|0,00 €|0,00 €|0,00 €|0,00 €",
                "11 h|0,00 €|0,00 €|0,00 €|0,00 €|0,00 €|0,00 €|1,00 €|1,00 €",
                "12 h|5,00 €|0,00 €|0,00 €|0,00 €|9,00 €|0,00 €|0,00 €|14,00 €"}));
    }

    void aWeekdayIsJudgedByItsMean()
    {
        SmallShop sales;
        const Report page = report(sales, days);
        QCOMPARE(Seen::rows(page.tables.at(1)),
            QStringList({"lundi|2|4|12,00 €|6,00 €", "mardi|2|0|0,00 €|0,00 €",
                "mercredi|2|0|0,00 €|0,00 €", "jeudi|2|0|0,00 €|0,00 €",
                "vendredi|1|5|9,00 €|9,00 €", "samedi|1|0|0,00 €|0,00 €",
                "dimanche|1|1|1,00 €|1,00 €"}));
        QCOMPARE(Seen::figures(page),
            QStringList({"Meilleure heure = 12 h (14,00 €)",
                "Meilleur jour de la semaine = vendredi (9,00 € en moyenne)"}));
    }

    void theWeekBeginsAsTheCountryHasIt()
    {
        SmallShop sales;
        const Report page = report(sales, days, QLocale(QLocale::English, QLocale::UnitedStates));
        QCOMPARE(page.heatMap->rows.at(0), QStringLiteral("Sunday"));
        QCOMPARE(page.heatMap->rows.at(6), QStringLiteral("Saturday"));
        QCOMPARE(page.heatMap->values.at(2), 10000.0);
        QCOMPARE(page.heatMap->values.at(4), 70000.0);
    }

    void noSaleHasNoHours()
    {
        FixedSales sales;
        const Report page = report(sales, days);
        QVERIFY(page.heatMap->columns.empty());
        QVERIFY(page.heatMap->values.empty());
        QVERIFY(page.figures.empty());
        QVERIFY(page.tables.at(0).rows.empty());
    }

    void aWeekdayThatThePeriodLacksHasNoMean()
    {
        FixedSales sales;
        sales.hourSales = {{{2026, 11, 3}, 0, 1, 10000}, {{2026, 11, 3}, 23, 1, 20000}};
        const Report page = report(sales, {{2026, 11, 3}, {2026, 11, 3}});
        QCOMPARE(Seen::rows(page.tables.at(1)).mid(0, 2),
            QStringList({"lundi|0|0|0,00 €|", "mardi|1|2|3,00 €|3,00 €"}));
        QCOMPARE(page.heatMap->columns.size(), std::size_t{24});
    }
};

VENDEL_TEST(TestGestionHoursReport)
#include "tst_GestionHoursReport.moc"
