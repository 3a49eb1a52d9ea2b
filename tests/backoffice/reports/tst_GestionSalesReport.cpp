// SPDX-License-Identifier: MIT
#include "tests/backoffice/reports/FixedSales.h"
#include "tests/support/TestProgram.h"

namespace {
/// A Thursday.
const QDate today(2026, 11, 12);

QDate day(int month, int number) { return {2026, month, number}; }

Report report(FixedSales& sales, const DayRange& range, std::optional<double> rate = {},
    const QLocale& locale = Seen::french)
{
    ReportOrder order;
    order.range = range;
    order.taxRate = rate;
    order.today = today;
    order.locale = locale;
    return makeReport(order, sales, {});
}

QString bars(const Report& report)
{
    const BarChart& chart = report.charts.at(0);
    return Seen::values(chart.bars.at(0), chart.kind);
}

QString line(const Report& report)
{
    const BarChart& chart = report.charts.at(0);
    return Seen::values(*chart.line, chart.kind);
}
} // namespace

class TestGestionSalesReport : public QObject
{
    Q_OBJECT

private slots:
    void aDayHasABarForEachHourBesideTheDayBefore()
    {
        FixedSales sales;
        sales.hourSales = {{day(11, 9), 11, 1, 40000}, {day(11, 9), 12, 2, 100000},
            {day(11, 9), 14, 1, 60000}, {day(11, 10), 9, 2, 50000}, {day(11, 10), 12, 3, 305000}};
        const Report page = report(sales, {day(11, 10), day(11, 10)});
        QCOMPARE(page.title, QStringLiteral("Ventes"));
        QCOMPARE(page.subtitle, QStringLiteral("Mardi 10 novembre 2026"));
        QCOMPARE(Seen::figures(page),
            QStringList({"Total HT = 35,50 €", "TVA à 20 % = 7,10 €", "Total TTC = 42,60 €",
                "Lignes vendues = 5", "Meilleure heure = 12 h (30,50 €)",
                "Période précédente = 20,00 € (09/11/2026)", "Évolution = +77,5 %"}));
        QCOMPARE(bars(page), QStringLiteral("Période: 500 0 0 3050 0 0"));
        QCOMPARE(line(page), QStringLiteral("Période précédente: 0 0 400 1000 0 600"));
        QCOMPARE(Seen::names(page.charts.at(0).categories),
            QStringLiteral("9 h|10 h|11 h|12 h|13 h|14 h"));
        QCOMPARE(
            Seen::plain(page.charts.at(0).categoryNames.at(5)), QStringLiteral("de 14 h à 15 h"));
        QCOMPARE(Seen::titles(page.tables.at(0)),
            QStringLiteral("Heure|Lignes|Total HT|TVA|Total TTC|Avant|Évolution"));
        QCOMPARE(Seen::rows(page.tables.at(0)),
            QStringList(
                {"9 h|2|5,00 €|1,00 €|6,00 €|0,00 €|", "10 h|0|0,00 €|0,00 €|0,00 €|0,00 €|",
                    "11 h|0|0,00 €|0,00 €|0,00 €|4,00 €|-100,0 %",
                    "12 h|3|30,50 €|6,10 €|36,60 €|10,00 €|+205,0 %",
                    "13 h|0|0,00 €|0,00 €|0,00 €|0,00 €|",
                    "14 h|0|0,00 €|0,00 €|0,00 €|6,00 €|-100,0 %"}));
        QVERIFY(page.charts.at(0).categories.size() == page.charts.at(0).categoryNames.size());
    }

    void todayIsComparedUpToItsLastHourWithASale()
    {
        FixedSales sales;
        sales.hourSales = {{day(11, 11), 9, 1, 100000}, {day(11, 11), 10, 1, 20000},
            {day(11, 11), 18, 9, 900000}, {today, 9, 1, 50000}, {today, 10, 1, 10000}};
        const Report page = report(sales, {today, today});
        QCOMPARE(page.subtitle, QStringLiteral("Jeudi 12 novembre 2026, journée en cours"));
        QCOMPARE(Seen::figures(page).mid(5),
            QStringList({"Période précédente = 12,00 € (11/11/2026, jusqu'à 11 h)",
                "Évolution = -50,0 %"}));
        // Eleven o'clock and later are still to come, or so it seems from here.
        QCOMPARE(Seen::rows(page.tables.at(0)),
            QStringList({"9 h|1|5,00 €|1,00 €|6,00 €|10,00 €|-50,0 %",
                "10 h|1|1,00 €|0,20 €|1,20 €|2,00 €|-50,0 %", "11 h|||||0,00 €|",
                "12 h|||||0,00 €|", "13 h|||||0,00 €|", "14 h|||||0,00 €|", "15 h|||||0,00 €|",
                "16 h|||||0,00 €|", "17 h|||||0,00 €|", "18 h|||||90,00 €|"}));
    }

    void aDayInProgressIsNotHeldAgainstAWholeOne()
    {
        FixedSales sales;
        sales.hourSales = {{day(11, 9), 9, 1, 100000}, {day(11, 10), 9, 1, 200000},
            {day(11, 11), 9, 1, 50000}, {today, 9, 1, 10000}};
        QCOMPARE(Seen::rows(report(sales, {day(11, 11), today}).tables.at(0)),
            QStringList({"11/11/2026|1|5,00 €|1,00 €|6,00 €|10,00 €|-50,0 %",
                "12/11/2026|1|1,00 €|0,20 €|1,20 €|20,00 €|"}));
    }

    void todayWithoutASaleIsComparedWithNothing()
    {
        FixedSales sales;
        sales.hourSales = {{day(11, 11), 9, 1, 100000}};
        QCOMPARE(Seen::figures(report(sales, {today, today})),
            QStringList({"Total HT = 0,00 €", "TVA à 20 % = 0,00 €", "Total TTC = 0,00 €",
                "Lignes vendues = 0"}));
    }

    void aWeekHasItsDaysAndWhatIsToComeIsEmpty()
    {
        FixedSales sales;
        sales.hourSales = {{day(11, 2), 9, 1, 100000}, {day(11, 6), 9, 4, 400000},
            {day(11, 9), 9, 2, 200000}, {day(11, 10), 12, 1, 200000}, {day(11, 12), 8, 1, 50000}};
        const Report page = report(sales, {day(11, 9), day(11, 15)});
        QCOMPARE(page.subtitle,
            QStringLiteral("Du lundi 9 novembre 2026 au dimanche 15 novembre 2026, jusqu'à "
                           "aujourd'hui, jeudi 12 novembre 2026"));
        // 45 euros in the four days that are over or in progress; of two equal days the first.
        QCOMPARE(Seen::figures(page),
            QStringList({"Total HT = 45,00 €", "TVA à 20 % = 9,00 €", "Total TTC = 54,00 €",
                "Lignes vendues = 4", "Moyenne par jour = 11,25 € (sur 4 jours)",
                "Meilleur jour = 09/11/2026 (lundi, 20,00 €)",
                "Jour le plus faible = 12/11/2026 (jeudi, 5,00 €)",
                "Meilleure heure = 9 h (20,00 €)",
                "Période précédente = 10,00 € (du 02/11/2026 au 05/11/2026)",
                "Évolution = +350,0 %"}));
        QCOMPARE(bars(page), QStringLiteral("Période: 2000 2000 0 500 0 0 0"));
        QCOMPARE(line(page), QStringLiteral("Période précédente: 1000 0 0 0 4000 0 0"));
        QCOMPARE(Seen::names(page.charts.at(0).categories), QStringLiteral("9|10|11|12|13|14|15"));
        QCOMPARE(
            page.charts.at(0).categoryNames.at(6), QStringLiteral("dimanche 15 novembre 2026"));
        QCOMPARE(Seen::rows(page.tables.at(0)),
            QStringList({"09/11/2026|2|20,00 €|4,00 €|24,00 €|10,00 €|+100,0 %",
                "10/11/2026|1|20,00 €|4,00 €|24,00 €|0,00 €|",
                "11/11/2026|0|0,00 €|0,00 €|0,00 €|0,00 €|",
                "12/11/2026|1|5,00 €|1,00 €|6,00 €|0,00 €|", "13/11/2026|||||40,00 €|",
                "14/11/2026|||||0,00 €|", "15/11/2026|||||0,00 €|"}));
    }

    void aMonthIsComparedDayByDayWithAShorterOne()
    {
        FixedSales sales;
        sales.hourSales = {{day(2, 27), 9, 1, 10000}, {day(2, 28), 9, 1, 20000},
            {day(3, 28), 9, 1, 30000}, {day(3, 31), 9, 1, 40000}};
        const Report page = report(sales, {day(3, 1), day(3, 31)});
        QCOMPARE(page.subtitle, QStringLiteral("Mars 2026"));
        QCOMPARE(line(page),
            QStringLiteral(
                "Période précédente: 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 "
                "100 200 - - -"));
        QCOMPARE(Seen::rows(page.tables.at(0)).mid(27, 2),
            QStringList({"28/03/2026|1|3,00 €|0,60 €|3,60 €|2,00 €|+50,0 %",
                "29/03/2026|0|0,00 €|0,00 €|0,00 €||"}));
        QVERIFY(Seen::figures(page).contains("Moyenne par jour = 0,23 € (sur 31 jours)"));
        QVERIFY(Seen::figures(page).contains(
            "Période précédente = 3,00 € (du 01/02/2026 au 28/02/2026)"));
    }

    void twoMonthsAreComparedByTheDayOfTheMonth()
    {
        FixedSales sales;
        sales.hourSales = {{day(5, 31), 9, 1, 10000}, {day(6, 1), 9, 1, 20000}};
        const Report page = report(sales, {day(7, 1), day(8, 31)});
        const std::vector<double>& before = page.charts.at(0).line->values;
        QCOMPARE(before.size(), std::size_t{62});
        QCOMPARE(before.at(30), 10000.0);
        QCOMPARE(before.at(31), 20000.0);
        QVERIFY(qIsNaN(before.at(61)));
        QCOMPARE(page.charts.at(0).categories.at(31), QStringLiteral("1/8"));
        QCOMPARE(report(sales, {day(7, 1), day(8, 31)}, {},
                     QLocale(QLocale::English, QLocale::UnitedStates))
                     .charts.at(0)
                     .categories.at(31),
            QStringLiteral("8/1"));
    }

    void aYearHasItsMonthsAndIsComparedAsFarAsItHasCome()
    {
        FixedSales sales;
        sales.hourSales = {{{2025, 1, 31}, 9, 1, 100000}, {{2025, 11, 12}, 9, 1, 50000},
            {{2025, 11, 13}, 9, 1, 700000}, {{2025, 12, 24}, 9, 1, 900000},
            {day(1, 1), 9, 1, 60000}, {day(1, 31), 10, 2, 60000}, {day(11, 3), 9, 1, 30000}};
        const Report page = report(sales, {day(1, 1), day(12, 31)});
        QCOMPARE(page.subtitle,
            QStringLiteral("Année 2026, jusqu'à aujourd'hui, jeudi 12 novembre 2026"));
        QCOMPARE(bars(page), QStringLiteral("Période: 1200 0 0 0 0 0 0 0 0 0 300 0"));
        QCOMPARE(
            line(page), QStringLiteral("Période précédente: 1000 0 0 0 0 0 0 0 0 0 7500 9000"));
        QCOMPARE(page.charts.at(0).categories.at(0), QStringLiteral("janv."));
        QCOMPARE(page.charts.at(0).categoryNames.at(0), QStringLiteral("janvier 2026"));
        QCOMPARE(Seen::rows(page.tables.at(0)).mid(0, 1),
            QStringList({"janvier 2026|3|12,00 €|2,40 €|14,40 €|10,00 €|+20,0 %"}));
        // November is not over: it is not held against a whole one.
        QCOMPARE(Seen::rows(page.tables.at(0)).mid(10),
            QStringList(
                {"novembre 2026|1|3,00 €|0,60 €|3,60 €|75,00 €|", "décembre 2026|||||90,00 €|"}));
        QVERIFY(Seen::figures(page).contains(
            "Période précédente = 15,00 € (du 01/01/2025 au 12/11/2025)"));
        QVERIFY(Seen::figures(page).contains("Évolution = 0,0 %"));
        QVERIFY(Seen::figures(page).contains("Moyenne par jour = 0,05 € (sur 316 jours)"));
    }

    void monthsThatAreNotWholeAreComparedWithAsManyDays()
    {
        // 15 January to 20 March are 65 days; before them, 11 November to 14 January.
        FixedSales sales;
        sales.hourSales = {{{2025, 11, 11}, 9, 1, 10000}, {{2025, 11, 27}, 9, 1, 20000},
            {{2025, 11, 28}, 9, 1, 40000}, {day(1, 14), 9, 1, 80000}, {day(1, 15), 9, 1, 160000}};
        const Report page = report(sales, {day(1, 15), day(3, 20)});
        QCOMPARE(bars(page), QStringLiteral("Période: 1600 0 0"));
        QCOMPARE(line(page), QStringLiteral("Période précédente: 300 400 800"));
        QCOMPARE(page.charts.at(0).categoryNames.at(0),
            QStringLiteral("du jeudi 15 janvier 2026 au samedi 31 janvier 2026"));
    }

    void severalYearsNameTheYearOfEachMonth()
    {
        FixedSales sales;
        const Report page = report(sales, {{2025, 12, 1}, day(11, 30)});
        QCOMPARE(Seen::names(page.charts.at(0).categories).left(21),
            QStringLiteral("déc. 2025|janv. 2026|"));
    }

    void theFirstOfAMonthIsWrittenAsFrenchDoes()
    {
        FixedSales sales;
        QCOMPARE(report(sales, {day(11, 1), day(11, 2)}).subtitle,
            QStringLiteral("Du dimanche 1er novembre 2026 au lundi 2 novembre 2026"));
        QCOMPARE(report(sales, {day(11, 1), day(11, 1)}, {}, Seen::english).subtitle,
            QStringLiteral("Sunday, 1 November 2026"));
    }

    void moreGivenBackThanTakenHasNoBestHourAndANegativeTax()
    {
        FixedSales sales;
        sales.hourSales = {{day(11, 9), 9, 1, -10000}, {day(11, 10), 9, 2, -101000}};
        QCOMPARE(Seen::figures(report(sales, {day(11, 10), day(11, 10)})),
            QStringList({"Total HT = -10,10 €", "TVA à 20 % = -2,02 €", "Total TTC = -12,12 €",
                "Lignes vendues = 2", "Période précédente = -1,00 € (09/11/2026)"}));
    }

    void nothingBeforeHasNoChangeInPerCent()
    {
        FixedSales sales;
        sales.hourSales = {{day(11, 10), 9, 2, 100000}};
        QCOMPARE(Seen::figures(report(sales, {day(11, 10), day(11, 10)})).mid(5),
            QStringList({"Période précédente = 0,00 € (09/11/2026)"}));
    }

    void anEmptyPeriodIsAPageOfZeros()
    {
        FixedSales sales;
        const Report page = report(sales, {day(11, 1), day(11, 2)});
        QCOMPARE(Seen::figures(page),
            QStringList({"Total HT = 0,00 €", "TVA à 20 % = 0,00 €", "Total TTC = 0,00 €",
                "Lignes vendues = 0", "Moyenne par jour = 0,00 € (sur 2 jours)",
                "Période précédente = 0,00 € (du 30/10/2026 au 31/10/2026)"}));
        QCOMPARE(bars(page), QStringLiteral("Période: 0 0"));
        QVERIFY(report(sales, {day(11, 1), day(11, 1)}).charts.at(0).categories.empty());
    }

    void aPeriodToComeIsComparedWithNothing()
    {
        FixedSales sales;
        sales.hourSales = {{day(11, 12), 9, 1, 100000}};
        const Report page = report(sales, {day(11, 13), day(11, 14)});
        QCOMPARE(page.subtitle,
            QStringLiteral("Du vendredi 13 novembre 2026 au samedi 14 novembre 2026, à venir"));
        QCOMPARE(Seen::figures(page).size(), 4);
        QCOMPARE(Seen::rows(page.tables.at(0)),
            QStringList({"13/11/2026|||||0,00 €|", "14/11/2026|||||10,00 €|"}));
    }

    void theNightsOfTheClockChangeBelongToOneDayEach()
    {
        FixedSales sales;
        sales.hourSales = {{day(3, 28), 23, 1, 10000}, {day(3, 29), 1, 1, 20000},
            {day(3, 29), 3, 1, 30000}, {day(3, 30), 0, 1, 40000}};
        QCOMPARE(
            bars(report(sales, {day(3, 28), day(3, 30)})), QStringLiteral("Période: 100 500 400"));
        sales.hourSales
            = {{day(10, 25), 1, 1, 10000}, {day(10, 25), 2, 4, 80000}, {day(10, 26), 0, 1, 40000}};
        QCOMPARE(
            bars(report(sales, {day(10, 24), day(10, 26)})), QStringLiteral("Période: 0 900 400"));
        QCOMPARE(
            bars(report(sales, {day(10, 25), day(10, 25)})), QStringLiteral("Période: 100 800"));
    }

    void theTaxMayBeAskedForAtAnotherRateAndIsRoundedOnce()
    {
        FixedSales sales;
        // A third of a cent each: together one cent.
        sales.hourSales = {{day(11, 9), 9, 1, 33}, {day(11, 10), 9, 1, 33},
            {day(11, 10), 10, 1, 34}, {day(11, 10), 11, 1, 999900}};
        QCOMPARE(Seen::figures(report(sales, {day(11, 9), day(11, 10)}, 5.5)).mid(0, 3),
            QStringList({"Total HT = 100,00 €", "TVA à 5,5 % = 5,50 €", "Total TTC = 105,50 €"}));
    }

    void severalTillsAreAddedUpAndNamed()
    {
        FixedSales sales;
        sales.names = {QStringLiteral("Bar"), QStringLiteral("Terrasse")};
        sales.hourSales = {{day(11, 9), 9, 9, 990000, 1}, {day(11, 10), 9, 3, 30000, 0},
            {day(11, 10), 9, 1, 10000, 1}};
        const Report page = report(sales, {day(11, 10), day(11, 10)});
        QCOMPARE(Seen::figures(page).at(0), QStringLiteral("Total HT = 4,00 €"));
        QCOMPARE(bars(page), QStringLiteral("Période: 400"));
        QCOMPARE(page.tables.at(1).title, QStringLiteral("Par caisse"));
        QCOMPARE(Seen::rows(page.tables.at(1)),
            QStringList({"Bar|3|3,00 €|75,0 %", "Terrasse|1|1,00 €|25,0 %"}));
    }

    void aReadingThatIsStoppedMakesNoPage()
    {
        FixedSales sales;
        const std::atomic<bool> isStopped{true};
        ReportOrder order;
        order.range = {today, today};
        QVERIFY_EXCEPTION_THROWN(makeReport(order, sales, {{}, &isStopped}), ReadingStopped);
    }
};

VENDEL_TEST(TestGestionSalesReport)
#include "tst_GestionSalesReport.moc"
