// SPDX-License-Identifier: MIT
#include "tests/backoffice/reports/FixedSales.h"
#include "tests/support/TestProgram.h"

namespace {
Report report(FixedSales& sales, ReportOrder::Ranking ranking = ReportOrder::Ranking::Takings)
{
    ReportOrder order;
    order.page = Page::Articles;
    order.range = {QDate(2026, 11, 9), QDate(2026, 11, 15)};
    order.today = QDate(2026, 11, 30);
    order.ranking = ranking;
    order.locale = Seen::french;
    return makeReport(order, sales, {});
}

/// 100 euros in 20 lines, 10 euros of them given back.
class SmallShop : public FixedSales
{
public:
    SmallShop()
    {
        articleSales = {{QStringLiteral("----"), 2, -100000}, {QStringLiteral("Bière"), 4, 600000},
            {QStringLiteral("Café"), 10, 250000}, {QStringLiteral("Thé"), 4, 250000}};
        articlesOnTheMenu = {{QStringLiteral("Bière"), 150000}, {QStringLiteral("CAFé"), 25000},
            {QStringLiteral("Kir"), 45000}, {QStringLiteral("Sirop"), 20000},
            {QStringLiteral("thé"), 62500}};
    }
};
} // namespace

class TestGestionArticlesReport : public QObject
{
    Q_OBJECT

private slots:
    void theBestByTakingsComeFirstAndEqualOnesByName()
    {
        SmallShop sales;
        const Report page = report(sales);
        QCOMPARE(page.title, QStringLiteral("Articles"));
        QCOMPARE(Seen::figures(page),
            QStringList({"Articles différents = 4", "Lignes vendues = 20", "Total HT = 100,00 €",
                "Au menu, sans vente = 2"}));
        QCOMPARE(Seen::titles(page.tables.at(0)),
            QStringLiteral("Rang|Article|Lignes|Total HT|Part|Part cumulée"));
        QCOMPARE(Seen::rows(page.tables.at(0)),
            QStringList({"1|Bière|4|60,00 €|60,0 %|60,0 %", "2|Café|10|25,00 €|25,0 %|85,0 %",
                "3|Thé|4|25,00 €|25,0 %|110,0 %", "4|----|2|-10,00 €|-10,0 %|100,0 %"}));
        QCOMPARE(page.notes.size(), std::size_t{2});
        const BarChart& chart = page.charts.at(0);
        QVERIFY(chart.isHorizontal);
        QCOMPARE(chart.title, QStringLiteral("Les meilleures recettes"));
        QCOMPARE(Seen::names(chart.categories), QStringLiteral("Bière|Café|Thé"));
        QCOMPARE(
            Seen::values(chart.bars.at(0), chart.kind), QStringLiteral("Total HT: 6000 2500 2500"));
        QVERIFY(!chart.line);
    }

    void theBestByLinesHaveTheirShareOfTheLines()
    {
        SmallShop sales;
        const Report page = report(sales, ReportOrder::Ranking::Lines);
        QCOMPARE(Seen::rows(page.tables.at(0)),
            QStringList({"1|Café|10|25,00 €|50,0 %|50,0 %", "2|Bière|4|60,00 €|20,0 %|70,0 %",
                "3|Thé|4|25,00 €|20,0 %|90,0 %", "4|----|2|-10,00 €|10,0 %|100,0 %"}));
        const BarChart& chart = page.charts.at(0);
        QCOMPARE(chart.kind, CellKind::Count);
        QCOMPARE(chart.title, QStringLiteral("Les plus vendus"));
        QCOMPARE(Seen::values(chart.bars.at(0), chart.kind), QStringLiteral("Lignes: 10 4 4 2"));
        QCOMPARE(page.notes.size(), std::size_t{1});
    }

    void whatTheMenuSellsAndNobodyBoughtIsListedWithItsPrice()
    {
        // "CAFé" is "Café" to the till, which compares A to Z only.
        SmallShop sales;
        const Table table = report(sales).tables.at(1);
        QCOMPARE(table.title, QStringLiteral("Au menu, sans vente"));
        QCOMPARE(Seen::titles(table), QStringLiteral("Article|Prix HT"));
        QCOMPARE(Seen::rows(table), QStringList({"Kir|4,50 €", "Sirop|2,00 €"}));
        sales.articlesOnTheMenu = {{QStringLiteral("BIÈRE"), 150000}};
        QCOMPARE(Seen::rows(report(sales).tables.at(1)), QStringList({"BIÈRE|15,00 €"}));
    }

    void fifteenHaveABar()
    {
        FixedSales sales;
        for (int number = 10; number < 30; ++number) {
            sales.articleSales.push_back({QString::number(number), 1, 10000});
        }
        const Report page = report(sales);
        QCOMPARE(page.charts.at(0).categories.size(), std::size_t{15});
        QCOMPARE(page.charts.at(0).categories.at(14), QStringLiteral("24"));
        QCOMPARE(page.tables.at(0).rows.size(), std::size_t{20});
    }

    void theArticlesOfSeveralTillsAreAddedUp()
    {
        FixedSales sales;
        sales.names = {QStringLiteral("Bar"), QStringLiteral("Terrasse")};
        sales.articleSales = {{QStringLiteral("Café"), 1, 25000, 0},
            {QStringLiteral("Thé"), 1, 60000, 0}, {QStringLiteral("CAFé"), 2, 55000, 1}};
        QCOMPARE(Seen::rows(report(sales).tables.at(0)),
            QStringList({"1|Café|3|8,00 €|57,1 %|57,1 %", "2|Thé|1|6,00 €|42,9 %|100,0 %"}));
    }

    void moreGivenBackThanTakenHasNoShares()
    {
        FixedSales sales;
        sales.articleSales
            = {{QStringLiteral("----"), 1, -50000}, {QStringLiteral("Café"), 1, 25000}};
        QCOMPARE(Seen::rows(report(sales).tables.at(0)),
            QStringList({"1|Café|1|2,50 €||", "2|----|1|-5,00 €||"}));
    }

    void nothingSoldIsAnEmptyPage()
    {
        FixedSales sales;
        const Report page = report(sales);
        QVERIFY(page.tables.at(0).rows.empty());
        QVERIFY(page.charts.at(0).categories.empty());
        QCOMPARE(Seen::figures(page).at(2), QStringLiteral("Total HT = 0,00 €"));
    }
};

VENDEL_TEST(TestGestionArticlesReport)
#include "tst_GestionArticlesReport.moc"
