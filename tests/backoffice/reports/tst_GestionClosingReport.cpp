// SPDX-License-Identifier: MIT
#include "tests/backoffice/reports/FixedSales.h"
#include "tests/support/TestProgram.h"

namespace {
const QDate today(2026, 11, 12);

Report report(FixedSales& sales, const DayRange& range)
{
    ReportOrder order;
    order.page = Page::Closing;
    order.range = range;
    order.today = today;
    order.locale = Seen::french;
    return makeReport(order, sales, {});
}

/// A sale in each hour from \a first on, \a count of them.
void addHours(FixedSales& sales, int first, int count)
{
    for (int hour = first; hour < first + count; ++hour) {
        sales.hourSales.push_back({{2026, 11, 10}, hour, 1, 10000});
    }
}

/// Articles that sold for 1, 2, 3 … euros.
void addArticles(FixedSales& sales, int count)
{
    for (int number = 1; number <= count; ++number) {
        sales.articleSales.push_back({QStringLiteral("A%1").arg(number), 1, number * 10000});
    }
}
} // namespace

class TestGestionClosingReport : public QObject
{
    Q_OBJECT

private slots:
    void theLastDayIsClosed()
    {
        FixedSales sales;
        sales.hourSales = {{{2026, 11, 9}, 7, 4, 990000}, {{2026, 11, 10}, 9, 2, 50000},
            {{2026, 11, 10}, 12, 3, 305000}, {{2026, 11, 10}, 20, 1, -5000}};
        sales.articleSales = {{QStringLiteral("----"), 1, -5000},
            {QStringLiteral("Café"), 2, 50000}, {QStringLiteral("Menu"), 3, 305000}};
        const Report page = report(sales, {{2026, 11, 1}, {2026, 11, 10}});
        QCOMPARE(page.title, QStringLiteral("Clôture"));
        QCOMPARE(page.subtitle, QStringLiteral("Mardi 10 novembre 2026"));
        QVERIFY(page.isOnePage);
        QCOMPARE(Seen::figures(page),
            QStringList({"Lignes vendues = 6", "Total HT = 35,00 €", "TVA à 20 % = 7,00 €",
                "Total TTC = 42,00 €", "Première heure de vente = de 9 h à 10 h",
                "Dernière heure de vente = de 20 h à 21 h"}));
        QCOMPARE(Seen::titles(page.tables.at(0)), QStringLiteral("Article|Lignes|Total HT"));
        QCOMPARE(Seen::rows(page.tables.at(0)),
            QStringList({"Menu|3|30,50 €", "Café|2|5,00 €", "----|1|-0,50 €"}));
        QCOMPARE(Seen::titles(page.tables.at(1)), QStringLiteral("Heure|Lignes|Total HT"));
        QCOMPARE(Seen::rows(page.tables.at(1)),
            QStringList({"9 h|2|5,00 €", "12 h|3|30,50 €", "20 h|1|-0,50 €"}));
        QVERIFY(!page.whole);
    }

    void thePageSaysWhatItIsNot()
    {
        FixedSales sales;
        const QString notes = Seen::names(report(sales, {today, today}).notes);
        QVERIFY(notes.contains("Ce n'est pas un journal scellé"));
        QVERIFY(notes.contains("n'est pas certifiée"));
        QVERIFY(notes.contains("demandez à votre comptable"));
    }

    void articlesBeyondThePageAreSummedUpAndAFileHasThemAll()
    {
        FixedSales sales;
        addHours(sales, 9, 6);
        addArticles(sales, 24);
        const Report all = report(sales, {{2026, 11, 10}, {2026, 11, 10}});
        QCOMPARE(all.tables.at(0).rows.size(), std::size_t{24});
        QCOMPARE(&all.file(), &all.tables.front());

        addArticles(sales, 26);
        sales.articleSales.erase(sales.articleSales.begin(), sales.articleSales.begin() + 24);
        const Report cut = report(sales, {{2026, 11, 10}, {2026, 11, 10}});
        // The best 23 are there; 3, 2 and 1 euros are left.
        QCOMPARE(Seen::rows(cut.tables.at(0)).mid(22),
            QStringList({"A4|1|4,00 €", "Autres (3 articles)|3|6,00 €"}));
        QCOMPARE(cut.file().rows.size(), std::size_t{26});
    }

    void aDayOfAllHoursStillNamesItsBestArticles()
    {
        FixedSales sales;
        addHours(sales, 0, 24);
        addArticles(sales, 11);
        const Report page = report(sales, {{2026, 11, 10}, {2026, 11, 10}});
        QCOMPARE(Seen::rows(page.tables.at(0)).mid(8),
            QStringList({"A3|1|3,00 €", "Autres (2 articles)|2|3,00 €"}));
        QCOMPARE(Seen::figures(page).mid(4),
            QStringList({"Première heure de vente = de 0 h à 1 h",
                "Dernière heure de vente = de 23 h à 24 h"}));
    }

    void aDayInProgressSaysSo()
    {
        FixedSales sales;
        const Report page = report(sales, {today, today});
        QCOMPARE(page.subtitle, QStringLiteral("Jeudi 12 novembre 2026, journée en cours"));
        QCOMPARE(Seen::figures(page).size(), 4);
    }

    void whatIsSoldWhileThePageIsReadIsInBothTables()
    {
        /// Sells another coffee once the hours have been read.
        class BusySales : public FixedSales
        {
        public:
            BusySales()
            {
                hourSales = {{today, 9, 1, 25000}};
                articleSales = {{QStringLiteral("Café"), 1, 25000}};
            }
            std::vector<HourSales> hours(const DayRange& range, const Reading& reading) override
            {
                std::vector<HourSales> found = FixedSales::hours(range, reading);
                hourSales.at(0) = {today, 9, 2, 50000};
                articleSales.at(0) = {QStringLiteral("Café"), 2, 50000};
                return found;
            }
        } sales;
        const Report page = report(sales, {today, today});
        QCOMPARE(Seen::rows(page.tables.at(0)), QStringList{"Café|2|5,00 €"});
        QCOMPARE(Seen::rows(page.tables.at(1)), QStringList{"9 h|2|5,00 €"});
    }

    void bothReadingsAdvanceOneProgress()
    {
        FixedSales sales;
        ReportOrder order;
        order.page = Page::Closing;
        order.range = {today, today};
        std::vector<double> shares;
        makeReport(order, sales, {[&shares](double share) { shares.push_back(share); }, nullptr});
        QCOMPARE(shares, std::vector<double>({0.5, 1.0}));
    }
};

VENDEL_TEST(TestGestionClosingReport)
#include "tst_GestionClosingReport.moc"
