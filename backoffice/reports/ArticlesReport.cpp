// SPDX-License-Identifier: MIT
#include "backoffice/reports/Pages.h"
#include "backoffice/reports/Sums.h"
#include "backoffice/reports/TillColumn.h"
#include "backoffice/reports/Wording.h"

#include <QCoreApplication>

#include <algorithm>
#include <map>
#include <set>

namespace {
struct Text
{
    Q_DECLARE_TR_FUNCTIONS(ArticlesReport)
};

/// By what articles are ranked, and what each counts.
struct Ranked
{
    ReportOrder::Ranking ranking;
    std::vector<ArticleSales> articles;
    Sum total;

    qint64 value(const ArticleSales& article) const
    {
        return ranking == ReportOrder::Ranking::Lines ? article.lines : article.takings;
    }
    qint64 whole() const
    {
        return ranking == ReportOrder::Ranking::Lines ? total.lines : total.takings;
    }
};

Ranked rank(const ReportOrder& order, const std::vector<ArticleSales>& sales)
{
    Ranked ranked{order.ranking, Sums::ofAllTills(sales), {}};
    ranked.total = Sums::of(ranked.articles);
    // Equal ones stay in the order of their names.
    std::stable_sort(ranked.articles.begin(), ranked.articles.end(),
        [&ranked](const ArticleSales& one, const ArticleSales& other) {
            return ranked.value(one) > ranked.value(other);
        });
    return ranked;
}

BarChart chart(const Ranked& ranked)
{
    constexpr std::size_t best = 15;
    const bool isByLines = ranked.ranking == ReportOrder::Ranking::Lines;
    BarChart chart;
    chart.isHorizontal = true;
    chart.kind = isByLines ? CellKind::Count : CellKind::Money;
    chart.title = isByLines ? Text::tr("Les plus vendus") : Text::tr("Les meilleures recettes");
    BarChart::Values values{isByLines ? Wording::lines() : Wording::net(), {}};
    for (const ArticleSales& article : ranked.articles) {
        if (ranked.value(article) <= 0 || chart.categories.size() == best) {
            break;
        }
        chart.categories.push_back(article.article);
        chart.categoryNames.push_back(article.article);
        values.values.push_back(static_cast<double>(ranked.value(article)));
    }
    chart.bars.push_back(std::move(values));
    return chart;
}

/// \a chart with bars of each till for its articles.
BarChart sideBySide(BarChart chart, const Ranked& ranked, const std::vector<ArticleSales>& sales,
    const std::vector<QString>& tills)
{
    chart.bars.clear();
    for (std::size_t till = 0; till < tills.size(); ++till) {
        std::map<QString, qint64> found;
        for (const ArticleSales& article : TillColumn::of(sales, till)) {
            found[Sums::key(article.article)] = ranked.value(article);
        }
        BarChart::Values values{tills.at(till), {}};
        for (const QString& article : chart.categories) {
            values.values.push_back(static_cast<double>(found[Sums::key(article)]));
        }
        chart.bars.push_back(std::move(values));
    }
    return chart;
}

Table table(const Ranked& ranked)
{
    Table table{Text::tr("Articles vendus"),
        {{Text::tr("Rang"), CellKind::Count}, {Wording::article(), CellKind::Text},
            {Wording::lines(), CellKind::Count}, {Wording::net(), CellKind::Money},
            {Wording::share(), CellKind::Percent}, {Text::tr("Part cumulée"), CellKind::Percent}},
        {}};
    qint64 place = 0;
    qint64 running = 0;
    for (const ArticleSales& article : ranked.articles) {
        const qint64 value = ranked.value(article);
        running += value;
        table.rows.push_back({++place, article.article, article.lines, article.takings,
            Sums::share(value, ranked.whole()), Sums::share(running, ranked.whole())});
    }
    return table;
}

Table unsold(const Ranked& ranked, SalesSource& source)
{
    std::set<QString> seen;
    for (const ArticleSales& article : ranked.articles) {
        seen.insert(Sums::key(article.article));
    }
    Table table{Text::tr("Au menu, sans vente"),
        {{Wording::article(), CellKind::Text}, {Text::tr("Prix HT"), CellKind::Money}}, {}};
    const bool hasSeveral = source.tills().size() > 1;
    std::set<std::pair<QString, Amount>> listed;
    for (const MenuArticle& article : source.menu()) {
        const QString key = Sums::key(article.article);
        // Several menus have it.
        const bool isAgain = hasSeveral && !listed.insert({key, article.price}).second;
        if (seen.count(key) == 0 && !isAgain) {
            table.rows.push_back({article.article, article.price});
        }
    }
    return table;
}

bool hasDiscount(const std::vector<ArticleSales>& articles)
{
    return std::any_of(articles.begin(), articles.end(),
        [](const ArticleSales& article) { return article.takings < 0; });
}
} // namespace

Report Pages::articles(const ReportOrder& order, SalesSource& source, const Reading& reading)
{
    const std::vector<ArticleSales> sales = source.articles(order.range, reading);
    const Ranked ranked = rank(order, sales);
    Report report;
    report.title = Text::tr("Articles");
    report.subtitle = Wording::subtitle(order);
    report.charts.push_back(chart(ranked));
    if (TillColumn::isSideBySide(order, source)) {
        report.charts.back() = sideBySide(report.charts.back(), ranked, sales, source.tills());
    }
    report.tables.push_back(table(ranked));
    report.tables.push_back(unsold(ranked, source));
    report.figures = {
        {Text::tr("Articles différents"), static_cast<qint64>(ranked.articles.size()),
            CellKind::Count, {}},
        {Text::tr("Lignes vendues"), ranked.total.lines, CellKind::Count, {}},
        {Wording::net(), ranked.total.takings, CellKind::Money, {}},
        {Text::tr("Au menu, sans vente"), static_cast<qint64>(report.tables.at(1).rows.size()),
            CellKind::Count, {}},
    };
    TillColumn::add(report,
        TillColumn::joined(sales, source,
            [&order](const std::vector<ArticleSales>& part) { return table(rank(order, part)); }),
        order, source);
    report.notes.push_back(Wording::amountNote());
    if (order.ranking == ReportOrder::Ranking::Takings && hasDiscount(ranked.articles)) {
        report.notes.push_back(
            Text::tr("Les parts sont celles du total, remises déduites : la part "
                     "cumulée peut dépasser 100 % avant les remises."));
    }
    return report;
}
