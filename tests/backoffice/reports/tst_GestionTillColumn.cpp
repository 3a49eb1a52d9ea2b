// SPDX-License-Identifier: MIT
#include "tests/backoffice/reports/FixedSales.h"
#include "tests/support/TestProgram.h"

namespace {
const QDate friday(2026, 11, 20);

/// Two tills that sold on Thursday 19 and Friday 20 November 2026.
struct TwoTills : FixedSales
{
    TwoTills()
    {
        isBook = true;
        names = {QStringLiteral("Bar"), QStringLiteral("Cave")};
        hourSales = {{friday.addDays(-1), 9, 2, 50000, 0}, {friday.addDays(-1), 10, 1, 30000, 1},
            {friday, 9, 4, 100000, 0}, {friday, 11, 1, 40000, 1}};
        articleSales = {{QStringLiteral("Café"), 4, 100000, 0},
            {QStringLiteral("café"), 1, 30000, 1}, {QStringLiteral("Kir"), 1, 10000, 1}};
        articlesOnTheMenu = {{QStringLiteral("Thé"), 30000, 0}, {QStringLiteral("Thé"), 30000, 1},
            {QStringLiteral("Thé"), 35000, 1}};
        allUses = {{{}, QStringLiteral("Lait"), 8, QStringLiteral("cl"), 0, {}, 0},
            {{}, QStringLiteral("Houblon"), 16, QStringLiteral("oz"), 1, QStringLiteral("pound"),
                1}};
    }

    Report page(Page page,
        const std::vector<QString>& chosen = {QStringLiteral("Bar"), QStringLiteral("Cave")})
    {
        ReportOrder order;
        order.page = page;
        order.range = {friday, friday};
        order.tills = chosen;
        order.today = friday.addDays(1);
        order.locale = Seen::french;
        return makeReport(order, *this, {});
    }
};

QStringList bars(const BarChart& chart)
{
    QStringList lines;
    for (const BarChart::Values& values : chart.bars) {
        lines += Seen::values(values, chart.kind);
    }
    return lines;
}
} // namespace

/// What pages say of several tills.
class TestGestionTillColumn : public QObject
{
    Q_OBJECT

private slots:
    void salesHaveBarsOfEachTill()
    {
        TwoTills tills;
        const Report page = tills.page(Page::Sales);
        QCOMPARE(Seen::names(page.charts.at(0).categories), QStringLiteral("9 h|10 h|11 h"));
        QCOMPARE(bars(page.charts.at(0)),
            (QStringList{QStringLiteral("Bar: 1000 0 0"), QStringLiteral("Cave: 0 0 400")}));
        QVERIFY(!page.charts.at(0).line);
        QCOMPARE(page.tables.size(), std::size_t{3});
        QCOMPARE(page.tables.at(2).title, QStringLiteral("Détail par caisse"));
        QCOMPARE(Seen::rows(page.tables.at(2)),
            (QStringList{QStringLiteral("Bar|9 h|4|10,00 €|2,00 €|12,00 €|5,00 €|+100,0 %"),
                QStringLiteral("Cave|10 h|0|0,00 €|0,00 €|0,00 €|3,00 €|-100,0 %"),
                QStringLiteral("Cave|11 h|1|4,00 €|0,80 €|4,80 €|0,00 €|")}));
    }

    void everyPageIsOfOneMoment()
    {
        for (const Page page :
            {Page::Sales, Page::Articles, Page::Hours, Page::Uses, Page::Closing}) {
            TwoTills tills;
            tills.page(page);
            QVERIFY(tills.held > 0);
            QCOMPARE(tills.free, 0);
        }
    }

    void allTillsAreOneInTheChartAndApartInTheFile()
    {
        TwoTills tills;
        const Report page = tills.page(Page::Sales, {});
        QCOMPARE(bars(page.charts.at(0)), QStringList(QStringLiteral("Période: 1000 0 400")));
        QVERIFY(page.charts.at(0).line);
        QCOMPARE(page.tables.size(), std::size_t{2});
        QCOMPARE(Seen::titles(page.file()),
            QStringLiteral("Caisse|Heure|Lignes|Total HT|TVA|Total TTC|Avant|Évolution"));
    }

    void aYearIsComparedMonthByMonth()
    {
        TwoTills tills;
        tills.hourSales = {{QDate(2025, 3, 31), 9, 1, 20000, 0},
            {QDate(2026, 3, 1), 9, 1, 30000, 0}, {QDate(2026, 3, 31), 9, 1, 10000, 0}};
        ReportOrder order;
        order.range = {QDate(2026, 1, 1), QDate(2026, 12, 31)};
        order.today = QDate(2026, 4, 1);
        order.locale = Seen::french;
        const Report page = makeReport(order, tills, {});
        QCOMPARE(Seen::rows(page.file()).at(2),
            QStringLiteral("Bar|mars 2026|2|4,00 €|0,80 €|4,80 €|2,00 €|+100,0 %"));
        // Days that are no whole months are compared with as many before them.
        order.range = {QDate(2026, 1, 15), QDate(2026, 4, 15)};
        tills.hourSales
            = {{QDate(2025, 12, 31), 9, 1, 20000, 0}, {QDate(2026, 3, 31), 9, 1, 10000, 0}};
        const QStringList rows = Seen::rows(makeReport(order, tills, {}).file());
        QCOMPARE(rows.at(2), QStringLiteral("Bar|mars 2026|1|1,00 €|0,20 €|1,20 €|0,00 €|"));
        QCOMPARE(rows.at(3), QStringLiteral("Bar|avril 2026|0|0,00 €|0,00 €|0,00 €|2,00 €|"));
    }

    void articlesHaveBarsOfEachTill()
    {
        TwoTills tills;
        const Report page = tills.page(Page::Articles);
        QCOMPARE(Seen::names(page.charts.at(0).categories), QStringLiteral("Café|Kir"));
        QCOMPARE(bars(page.charts.at(0)),
            (QStringList{QStringLiteral("Bar: 1000 0"), QStringLiteral("Cave: 300 100")}));
        QCOMPARE(Seen::rows(page.tables.at(2)),
            (QStringList{QStringLiteral("Bar|1|Café|4|10,00 €|100,0 %|100,0 %"),
                QStringLiteral("Cave|1|café|1|3,00 €|75,0 %|75,0 %"),
                QStringLiteral("Cave|2|Kir|1|1,00 €|25,0 %|100,0 %")}));
    }

    void anArticleOfSeveralMenusIsListedOnce()
    {
        TwoTills tills;
        QCOMPARE(Seen::rows(tills.page(Page::Articles).tables.at(1)),
            (QStringList{QStringLiteral("Thé|3,00 €"), QStringLiteral("Thé|3,50 €")}));
    }

    void usesAreOfEachTill()
    {
        TwoTills tills;
        const Report page = tills.page(Page::Uses);
        QCOMPARE(Seen::titles(page.tables.at(1)),
            QStringLiteral("Caisse|Composition|Quantité|Unité|Quantité convertie|Unité convertie"));
        QCOMPARE(Seen::rows(page.tables.at(1)),
            (QStringList{QStringLiteral("Bar|Lait|8,00|cl||"),
                QStringLiteral("Cave|Houblon|16,00|oz|1,00|pound")}));
    }

    void aClosingHasALineForEachTill()
    {
        TwoTills tills;
        const Report page = tills.page(Page::Closing);
        QCOMPARE(Seen::rows(page.tables.at(2)),
            (QStringList{
                QStringLiteral("Bar|4|10,00 €|12,00 €"), QStringLiteral("Cave|2|4,00 €|4,80 €")}));
        QCOMPARE(Seen::rows(page.file()).at(0), QStringLiteral("Bar|Café|4|10,00 €"));
        QCOMPARE(tills.page(Page::Closing, {}).tables.size(), std::size_t{2});
    }

    void tillsTakeTheirRoomOnAClosing()
    {
        TwoTills tills;
        tills.articleSales.clear();
        for (int number = 1; number <= 27; ++number) {
            tills.articleSales.push_back(
                {QStringLiteral("A%1").arg(number), 1, number * 10000, number % 2});
        }
        // A page has 30 rows: two are hours and two are tills.
        const QStringList articles = Seen::rows(tills.page(Page::Closing).tables.at(0));
        QCOMPARE(articles.size(), 26);
        QCOMPARE(articles.constLast(), QStringLiteral("Autres (2 articles)|2|3,00 €"));
        QCOMPARE(Seen::rows(tills.page(Page::Closing, {}).tables.at(0)).size(), 27);
    }

    void aPageSaysWhichTillsItIsAbout()
    {
        TwoTills tills;
        const auto end = [&](const std::vector<QString>& chosen) {
            return tills.page(Page::Hours, chosen).subtitle.section(QStringLiteral(" – "), 1);
        };
        QCOMPARE(end({}), QStringLiteral("toutes les caisses (2)"));
        QCOMPARE(end(tills.names), QStringLiteral("caisses Bar, Cave"));
        tills.names = {QStringLiteral("Bar"), QStringLiteral("Cave"), QStringLiteral("C"),
            QStringLiteral("D"), QStringLiteral("E"), QStringLiteral("F")};
        QCOMPARE(end(tills.names), QStringLiteral("6 caisses"));
        // Six cannot be told apart in a chart.
        QCOMPARE(tills.page(Page::Sales, tills.names).charts.at(0).bars.size(), std::size_t{1});
        tills.names = {QStringLiteral("Bar")};
        tills.hourSales.clear();
        QCOMPARE(end(tills.names), QStringLiteral("caisse Bar"));
    }

    void anotherTaxRateIsSaidWhereTaxIs()
    {
        TwoTills tills;
        tills.remark = QStringLiteral("Another rate.");
        QCOMPARE(tills.page(Page::Sales).notes.at(0), QStringLiteral("Another rate."));
        QCOMPARE(tills.page(Page::Closing).notes.at(0), QStringLiteral("Another rate."));
        QVERIFY(tills.page(Page::Hours).notes.empty());
        // A rate that the reader has chosen is one for all.
        ReportOrder order;
        order.range = {friday, friday};
        order.taxRate = 10;
        order.locale = Seen::french;
        QVERIFY(makeReport(order, tills, {}).notes.at(0) != QStringLiteral("Another rate."));
    }
};

VENDEL_TEST(TestGestionTillColumn)
#include "tst_GestionTillColumn.moc"
