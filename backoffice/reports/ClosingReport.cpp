// SPDX-License-Identifier: MIT
#include "backoffice/reports/Format.h"
#include "backoffice/reports/Pages.h"
#include "backoffice/reports/Sums.h"
#include "backoffice/reports/TillColumn.h"
#include "backoffice/reports/Wording.h"

#include <QCoreApplication>

#include <algorithm>

namespace {
struct Text
{
    Q_DECLARE_TR_FUNCTIONS(ClosingReport)
};

/// What an A4 page has room for, the hours and the articles together.
constexpr std::size_t rowsOnAPage = 30;

struct Day
{
    std::array<Sum, hoursInADay> hours;
    Sum total;
    std::vector<ArticleSales> articles;
    /// Of each till.
    std::vector<ArticleSales> tillArticles;
};

Day readOnce(const DayRange& range, SalesSource& source, const Reading& reading)
{
    constexpr double half = 0.5;
    const Reading first{[&](double done) { reading.advance(done * half); }, reading.isStopped};
    const Reading second{
        [&](double done) { reading.advance(half + done * half); }, reading.isStopped};
    Day day;
    const std::vector<HourSales> hours = source.hours(range, first);
    day.hours = Sums::byHour(hours);
    day.total = Sums::of(hours);
    day.tillArticles = source.articles(range, second);
    day.articles = Sums::ofAllTills(day.tillArticles);
    return day;
}

/// The sales of the one day of \a range, the best articles first.
Day read(const DayRange& range, SalesSource& source, const Reading& reading)
{
    // What is sold between the two readings would be in one table and not in the other.
    constexpr int attempts = 3;
    Day day;
    for (int attempt = 0; attempt < attempts; ++attempt) {
        day = readOnce(range, source, reading);
        const Sum sum = Sums::of(day.articles);
        if (sum.lines == day.total.lines && sum.takings == day.total.takings) {
            break;
        }
    }
    for (std::vector<ArticleSales>* articles : {&day.articles, &day.tillArticles}) {
        std::stable_sort(articles->begin(), articles->end(),
            [](const ArticleSales& one, const ArticleSales& other) {
                return one.takings > other.takings;
            });
    }
    return day;
}

std::vector<KeyFigure> figures(const Day& day, double rate, const QLocale& locale)
{
    const Amount tax = taxOn(day.total.takings, rate);
    std::vector<KeyFigure> figures{
        {Text::tr("Lignes vendues"), day.total.lines, CellKind::Count, {}},
        {Wording::net(), day.total.takings, CellKind::Money, {}},
        {Wording::tax(rate, locale), tax, CellKind::Money, {}},
        {Wording::gross(), day.total.takings + tax, CellKind::Money, {}},
    };
    const auto isSold = [](const Sum& sum) { return sum.lines > 0; };
    const auto first = std::find_if(day.hours.begin(), day.hours.end(), isSold);
    if (first != day.hours.end()) {
        const auto end = std::find_if(day.hours.rbegin(), day.hours.rend(), isSold).base();
        const auto hourInFull = [&](auto place) {
            return Wording::hourInFull(static_cast<int>(place - day.hours.begin()), locale);
        };
        figures.push_back(
            {Text::tr("Première heure de vente"), hourInFull(first), CellKind::Text, {}});
        figures.push_back(
            {Text::tr("Dernière heure de vente"), hourInFull(end - 1), CellKind::Text, {}});
    }
    return figures;
}

Table byHour(const Day& day)
{
    Table table{Text::tr("Par heure"),
        {{Wording::hour(), CellKind::Hour}, {Wording::lines(), CellKind::Count},
            {Wording::net(), CellKind::Money}},
        {}};
    for (int hour = 0; hour < hoursInADay; ++hour) {
        const Sum& sum = day.hours.at(static_cast<std::size_t>(hour));
        if (sum.lines > 0) {
            table.rows.push_back({hour, sum.lines, sum.takings});
        }
    }
    return table;
}

Table byArticle(const std::vector<ArticleSales>& articles)
{
    Table table{Text::tr("Par article"),
        {{Wording::article(), CellKind::Text}, {Wording::lines(), CellKind::Count},
            {Wording::net(), CellKind::Money}},
        {}};
    for (const ArticleSales& article : articles) {
        table.rows.push_back({article.article, article.lines, article.takings});
    }
    return table;
}

/// What each till sold, with its tax.
Table byTill(const Day& day, double rate, const SalesSource& source)
{
    Table table{TillColumn::title(),
        {{TillColumn::caption(), CellKind::Text}, {Wording::lines(), CellKind::Count},
            {Wording::net(), CellKind::Money}, {Wording::gross(), CellKind::Money}},
        {}};
    const std::vector<QString> names = source.tills();
    for (std::size_t till = 0; till < names.size(); ++till) {
        const Sum sum = Sums::of(TillColumn::of(day.tillArticles, till));
        table.rows.push_back(
            {names.at(till), sum.lines, sum.takings, sum.takings + taxOn(sum.takings, rate)});
    }
    return table;
}

/// The \a whole table as far as \a room rows go: the last one sums up what is beyond.
Table within(const Table& whole, const Day& day, std::size_t room)
{
    Table table = whole;
    table.rows.resize(room - 1);
    Sum others;
    for (std::size_t place = table.rows.size(); place < day.articles.size(); ++place) {
        others.add(day.articles.at(place));
    }
    const std::size_t count = day.articles.size() - table.rows.size();
    table.rows.push_back(
        {Text::tr("Autres (%1 articles)").arg(count), others.lines, others.takings});
    return table;
}

void addTables(Report& report, const Day& day, const std::vector<Table>& tills)
{
    Table articles = byArticle(day.articles);
    Table hours = byHour(day);
    const std::size_t others = hours.rows.size() + (tills.empty() ? 0 : tills.front().rows.size());
    const std::size_t room = rowsOnAPage - std::min(rowsOnAPage, others);
    // A day of 24 hours leaves the best articles of the day.
    constexpr std::size_t atLeast = 10;
    if (articles.rows.size() > std::max(room, atLeast)) {
        report.whole = articles;
        articles = within(articles, day, std::max(room, atLeast));
    }
    report.tables = {std::move(articles), std::move(hours)};
    report.tables.insert(report.tables.end(), tills.begin(), tills.end());
}

std::vector<QString> notes()
{
    return {Wording::taxNote(), Wording::amountNote(),
        Text::tr(
            "Cette page récapitule les ventes que la caisse a encore en mémoire. Ce n'est pas un "
            "journal scellé : une purge efface des ventes, et la page d'un même jour peut alors "
            "changer."),
        Text::tr(
            "La caisse n'est pas certifiée comme la loi française le demande aux entreprises "
            "soumises à la TVA (article 286, I, 3° bis du code général des impôts) : demandez à "
            "votre comptable ce qui vous est nécessaire.")};
}
} // namespace

Report Pages::closing(const ReportOrder& order, SalesSource& source, const Reading& reading)
{
    ReportOrder ofDay = order;
    ofDay.range.first = order.range.last;
    const Day day = read(ofDay.range, source, reading);

    Report report;
    report.title = Text::tr("Clôture");
    report.subtitle = Wording::subtitle(ofDay);
    const double rate = order.taxRate ? *order.taxRate : source.taxRate();
    report.figures = figures(day, rate, order.locale);
    addTables(report, day,
        TillColumn::isSideBySide(order, source) ? std::vector{byTill(day, rate, source)}
                                                : std::vector<Table>());
    if (source.namesTills()) {
        report.whole = TillColumn::joined(day.tillArticles, source, byArticle);
    }
    report.notes = notes();
    report.isOnePage = true;
    return report;
}
