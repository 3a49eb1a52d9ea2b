// SPDX-License-Identifier: MIT
#include "tests/backoffice/reports/FixedSales.h"
#include "tests/support/TestProgram.h"

namespace {
Report report(FixedSales& sales, const DayRange& range)
{
    ReportOrder order;
    order.page = Page::Uses;
    order.range = range;
    order.today = QDate(2026, 11, 30);
    order.locale = Seen::french;
    return makeReport(order, sales, {});
}

Use use(const char* composition, double amount, const char* unit, QDate day = {},
    double converted = 0, const char* convertedUnit = "", int till = 0)
{
    return {day, QString::fromUtf8(composition), amount, QString::fromUtf8(unit), converted,
        QString::fromUtf8(convertedUnit), till};
}

const QDate monday(2026, 11, 9);
const QDate tuesday(2026, 11, 10);

class SmallShop : public FixedSales
{
public:
    SmallShop()
    {
        allUses = {use("Café moulu", 21, "g"), use("Citron", 16, "oz", {}, 1, "pound"),
            use("Lait", 40.5, "cl"), use("Rhum", 12, "cl"), use("Sirop", 9, "cl"),
            use("Soda", 30, "cl"), use("Café moulu", 14, "g", monday),
            use("Lait", 20.25, "cl", monday), use("Café moulu", 7, "g", tuesday),
            use("Citron", 16, "oz", tuesday, 1, "pound"), use("Lait", 20.25, "cl", tuesday),
            use("Rhum", 12, "cl", tuesday), use("Sirop", 9, "cl", tuesday),
            use("Soda", 30, "cl", tuesday)};
    }
};
} // namespace

class TestGestionUsesReport : public QObject
{
    Q_OBJECT

private slots:
    void eachCompositionHasItsUseOfThePeriodAndOfEachDay()
    {
        SmallShop sales;
        const Report page = report(sales, {monday, tuesday});
        QCOMPARE(page.title, QStringLiteral("Consommation"));
        QCOMPARE(Seen::figures(page), QStringList({"Compositions consommées = 6"}));
        QCOMPARE(Seen::titles(page.tables.at(0)),
            QStringLiteral("Composition|Quantité|Unité|Quantité convertie|Unité convertie"));
        QCOMPARE(Seen::rows(page.tables.at(0)),
            QStringList({"Café moulu|21,00|g||", "Citron|16,00|oz|1,00|pound", "Lait|40,50|cl||",
                "Rhum|12,00|cl||", "Sirop|9,00|cl||", "Soda|30,00|cl||"}));
        QCOMPARE(Seen::titles(page.tables.at(1)),
            QStringLiteral("Jour|Composition|Quantité|Unité|Quantité convertie|Unité convertie"));
        QCOMPARE(Seen::rows(page.tables.at(1)).mid(1, 3),
            QStringList({"09/11/2026|Lait|20,25|cl||", "10/11/2026|Café moulu|7,00|g||",
                "10/11/2026|Citron|16,00|oz|1,00|pound"}));
        QCOMPARE(page.notes.size(), std::size_t{1});
    }

    void eachUnitHasAChartOfItsThreeLargest()
    {
        SmallShop sales;
        const Report page = report(sales, {monday, tuesday});
        QCOMPARE(page.charts.size(), std::size_t{3});
        const BarChart& chart = page.charts.at(2);
        QCOMPARE(chart.title, QStringLiteral("Les plus consommés par jour, en cl"));
        QCOMPARE(chart.kind, CellKind::Quantity);
        QCOMPARE(Seen::names(chart.categories), QStringLiteral("9|10"));
        QCOMPARE(chart.bars.size(), std::size_t{3});
        QCOMPARE(Seen::values(chart.bars.at(0), chart.kind), QStringLiteral("Lait: 20.25 20.25"));
        QCOMPARE(Seen::values(chart.bars.at(1), chart.kind), QStringLiteral("Soda: 0 30"));
        QCOMPARE(Seen::values(chart.bars.at(2), chart.kind), QStringLiteral("Rhum: 0 12"));
        QCOMPARE(Seen::values(page.charts.at(0).bars.at(0), chart.kind),
            QStringLiteral("Café moulu: 14 7"));
    }

    void oneDayHasABarForEachComposition()
    {
        SmallShop sales;
        const Report page = report(sales, {tuesday, tuesday});
        const BarChart& chart = page.charts.at(2);
        QVERIFY(chart.isHorizontal);
        QCOMPARE(chart.title, QStringLiteral("Les plus consommés, en cl"));
        QCOMPARE(Seen::names(chart.categories), QStringLiteral("Lait|Soda|Rhum|Sirop"));
        QCOMPARE(Seen::values(chart.bars.at(0), chart.kind), QStringLiteral("cl: 40.5 30 12 9"));
        QCOMPARE(page.tables.size(), std::size_t{1});
        QVERIFY(page.notes.empty());
    }

    void aYearHasBarsOfMonths()
    {
        SmallShop sales;
        const Report page = report(sales, {{2026, 1, 1}, {2026, 12, 31}});
        const BarChart& chart = page.charts.at(2);
        QCOMPARE(chart.title, QStringLiteral("Les plus consommés par mois, en cl"));
        QCOMPARE(Seen::values(chart.bars.at(0), chart.kind),
            QStringLiteral("Lait: 0 0 0 0 0 0 0 0 0 0 40.5 0"));
    }

    void aYearIsListedByMonth()
    {
        SmallShop sales;
        sales.allUses.push_back(use("Lait", 5, "cl", {2026, 1, 20}));
        sales.allUses.push_back(use("Lait", 6, "cl", {2026, 1, 31}));
        const Report page = report(sales, {{2026, 1, 15}, {2026, 12, 31}});
        QCOMPARE(page.tables.at(1).title, QStringLiteral("Consommation par mois"));
        QCOMPARE(Seen::titles(page.tables.at(1)),
            QStringLiteral("Mois|Composition|Quantité|Unité|Quantité convertie|Unité convertie"));
        QCOMPARE(Seen::rows(page.tables.at(1)),
            QStringList({"janvier 2026|Lait|11,00|cl||", "novembre 2026|Café moulu|21,00|g||",
                "novembre 2026|Lait|40,50|cl||", "novembre 2026|Citron|16,00|oz|1,00|pound",
                "novembre 2026|Rhum|12,00|cl||", "novembre 2026|Sirop|9,00|cl||",
                "novembre 2026|Soda|30,00|cl||"}));
        // The first month is not whole.
        QCOMPARE(page.charts.at(2).bars.at(0).values.at(0), 11.0);
        QCOMPARE(page.notes.size(), std::size_t{2});
    }

    void unitsThatNeedNoOtherHaveNoColumnForIt()
    {
        FixedSales sales;
        sales.allUses = {use("Lait", 40.5, "cl")};
        QCOMPARE(Seen::titles(report(sales, {monday, monday}).tables.at(0)),
            QStringLiteral("Composition|Quantité|Unité"));
    }

    void theUsesOfSeveralTillsAreAddedUp()
    {
        FixedSales sales;
        sales.allUses = {use("Citron", 16, "oz", {}, 1, "pound"), use("Citron", 16, "oz", tuesday),
            use("Citron", 8, "oz", {}, 0.5, "pound", 1), use("Citron", 8, "g", {}, 0, "", 1),
            use("Citron", 8, "oz", monday, 0, "", 1)};
        const Report page = report(sales, {monday, tuesday});
        QCOMPARE(Seen::rows(page.tables.at(0)),
            QStringList({"Citron|24,00|oz|1,50|pound", "Citron|8,00|g||"}));
        QCOMPARE(Seen::rows(page.tables.at(1)),
            QStringList({"09/11/2026|Citron|8,00|oz", "10/11/2026|Citron|16,00|oz"}));
    }

    void nothingUsedHasNoChart()
    {
        FixedSales sales;
        const Report page = report(sales, {monday, tuesday});
        QVERIFY(page.charts.empty());
        QVERIFY(page.tables.at(0).rows.empty());
    }
};

VENDEL_TEST(TestGestionUsesReport)
#include "tst_GestionUsesReport.moc"
