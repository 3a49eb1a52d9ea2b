// SPDX-License-Identifier: MIT
#include "backoffice/reports/Format.h"
#include "backoffice/reports/Pages.h"
#include "backoffice/reports/SalesBars.h"
#include "backoffice/reports/TillColumn.h"
#include "backoffice/reports/Wording.h"

#include <QCoreApplication>

#include <limits>

namespace {
struct Text
{
    Q_DECLARE_TR_FUNCTIONS(SalesReport)
};

/// A day with sales, and what was sold.
using SoldDay = std::pair<const QDate, Sum>;

struct Facts
{
    const ReportOrder& order;
    const SalesBars& bars;
    double rate = 0;
};

QString money(Amount amount, const QLocale& locale)
{
    return format(amount, CellKind::Money, locale);
}

KeyFigure soldDay(const QString& title, const SoldDay& day, const QLocale& locale)
{
    return {title, day.first, CellKind::Day,
        Text::tr("%1, %2").arg(
            locale.standaloneDayName(day.first.dayOfWeek()), money(day.second.takings, locale))};
}

/// The best and the worst of the days with sales, the earliest of equals.
void addDays(std::vector<KeyFigure>& figures, const Facts& facts)
{
    const QLocale& locale = facts.order.locale;
    const std::map<QDate, Sum>& days = facts.bars.soldDays();
    const auto isLess = [](const SoldDay& one, const SoldDay& other) {
        return one.second.takings < other.second.takings;
    };
    if (days.size() > 1) {
        figures.push_back(soldDay(Text::tr("Meilleur jour"),
            *std::max_element(days.begin(), days.end(), isLess), locale));
        figures.push_back(soldDay(Text::tr("Jour le plus faible"),
            *std::min_element(days.begin(), days.end(), isLess), locale));
    }
}

void addBestHour(std::vector<KeyFigure>& figures, const Facts& facts)
{
    const auto& hours = facts.bars.soldHours();
    const auto best = std::max_element(hours.begin(), hours.end(),
        [](const Sum& one, const Sum& other) { return one.takings < other.takings; });
    if (best->takings > 0) {
        figures.push_back({Text::tr("Meilleure heure"), static_cast<int>(best - hours.begin()),
            CellKind::Hour, money(best->takings, facts.order.locale)});
    }
}

void addComparison(std::vector<KeyFigure>& figures, const Facts& facts)
{
    const QLocale& locale = facts.order.locale;
    const SalesBars::Comparison comparison = facts.bars.comparison();
    if (!comparison.isPossible) {
        return;
    }
    const auto date = [&locale](QDate day) { return format(day, CellKind::Day, locale); };
    const DayRange& range = comparison.range;
    QString remark = range.first == range.last
        ? date(range.first)
        : Text::tr("du %1 au %2").arg(date(range.first), date(range.last));
    if (comparison.endHour) {
        remark = Text::tr("%1, jusqu'à %2")
                     .arg(remark, format(*comparison.endHour, CellKind::Hour, locale));
    }
    figures.push_back({Text::tr("Période précédente"), comparison.before, CellKind::Money, remark});
    const QVariant change = Sums::change(comparison.now, comparison.before);
    if (change.isValid()) {
        figures.push_back({Text::tr("Évolution"), change, CellKind::Change, {}});
    }
}

std::vector<KeyFigure> figures(const Facts& facts)
{
    const ReportOrder& order = facts.order;
    const Sum total = facts.bars.total();
    const Amount tax = taxOn(total.takings, facts.rate);
    std::vector<KeyFigure> figures{
        {Wording::net(), total.takings, CellKind::Money, {}},
        {Wording::tax(facts.rate, order.locale), tax, CellKind::Money, {}},
        {Wording::gross(), total.takings + tax, CellKind::Money, {}},
        {Text::tr("Lignes vendues"), total.lines, CellKind::Count, {}},
    };
    const qint64 days = facts.bars.pastDays();
    if (order.range.first != order.range.last && days > 0) {
        figures.push_back(
            {Text::tr("Moyenne par jour"), Sums::mean(total.takings, days), CellKind::Money,
                days == 1 ? Text::tr("sur 1 jour")
                          : Text::tr("sur %1 jours").arg(order.locale.toString(days))});
        addDays(figures, facts);
    }
    addBestHour(figures, facts);
    addComparison(figures, facts);
    return figures;
}

BarChart chart(const Facts& facts)
{
    BarChart chart;
    chart.title = Text::tr("Total HT");
    BarChart::Values now{Text::tr("Période"), {}};
    BarChart::Values before{Text::tr("Période précédente"), {}};
    for (const SalesBars::Bar& bar : facts.bars.bars()) {
        chart.categories.push_back(bar.category);
        chart.categoryNames.push_back(bar.name);
        now.values.push_back(static_cast<double>(bar.sold.takings));
        before.values.push_back(bar.before ? static_cast<double>(bar.before->takings)
                                           : std::numeric_limits<double>::quiet_NaN());
    }
    chart.bars.push_back(std::move(now));
    chart.line = std::move(before);
    return chart;
}

Column firstColumn(DayRange::Grain grain)
{
    switch (grain) {
    case DayRange::Grain::Hour:
        return {Wording::hour(), CellKind::Hour};
    case DayRange::Grain::Month:
        return {Text::tr("Mois"), CellKind::Month};
    case DayRange::Grain::Day:
        break;
    }
    return {Wording::day(), CellKind::Day};
}

Table table(const Facts& facts)
{
    const DayRange::Grain grain = facts.order.range.grain();
    Table table{Text::tr("Détail"),
        {firstColumn(grain), {Wording::lines(), CellKind::Count}, {Wording::net(), CellKind::Money},
            {Text::tr("TVA"), CellKind::Money}, {Wording::gross(), CellKind::Money},
            {Text::tr("Avant"), CellKind::Money}, {Text::tr("Évolution"), CellKind::Change}},
        {}};
    for (const SalesBars::Bar& bar : facts.bars.bars()) {
        std::vector<QVariant> row(table.columns.size());
        row.at(0) = grain == DayRange::Grain::Hour ? QVariant(bar.hour) : QVariant(bar.range.first);
        if (facts.bars.hasBegun(bar)) {
            const Amount tax = taxOn(bar.sold.takings, facts.rate);
            row.at(1) = bar.sold.lines;
            row.at(2) = bar.sold.takings;
            row.at(3) = tax;
            row.at(4) = bar.sold.takings + tax;
        }
        if (bar.before) {
            row.at(5) = bar.before->takings;
        }
        if (bar.before && facts.bars.isOver(bar)) {
            row.at(6) = Sums::change(bar.sold.takings, bar.before->takings);
        }
        table.rows.push_back(std::move(row));
    }
    return table;
}

/// What each till sold in the period and before it, as far as its bars can tell.
std::vector<HourSales> tillSales(
    const ReportOrder& order, SalesSource& source, const Reading& reading)
{
    using Part = SalesSource::TillPart;
    const DayRange& range = order.range;
    const DayRange::Grain grain = range.grain();
    const Part part = grain == DayRange::Grain::Hour ? Part::Hour
        : grain == DayRange::Grain::Day              ? Part::Day
                                                     : Part::Month;
    const bool isOfMonths = range.first.day() == 1 && range.last.addDays(1).day() == 1;
    // Other bars than whole months are compared with days that are parts of two months.
    const Part partBefore = part == Part::Month && !isOfMonths ? Part::Day : part;
    std::vector<HourSales> sales = source.tillSales(range.before(), partBefore, reading);
    const std::vector<HourSales> now = source.tillSales(range, part, reading);
    sales.insert(sales.end(), now.begin(), now.end());
    return sales;
}

/// \a chart with bars of each till, and no line: it would be the one of all.
BarChart sideBySide(BarChart chart, const std::vector<HourSales>& sales, const SalesSource& source,
    const Facts& facts)
{
    chart.bars.clear();
    chart.line.reset();
    const std::vector<QString> names = source.tills();
    for (std::size_t till = 0; till < names.size(); ++till) {
        const SalesBars bars(facts.order, TillColumn::of(sales, till));
        BarChart::Values values{names.at(till), {}};
        for (const SalesBars::Bar& all : facts.bars.bars()) {
            const auto own = std::find_if(bars.bars().begin(), bars.bars().end(),
                [&](const auto& bar) { return bar.hour == all.hour && bar.range == all.range; });
            values.values.push_back(
                own == bars.bars().end() ? 0 : static_cast<double>(own->sold.takings));
        }
        chart.bars.push_back(std::move(values));
    }
    return chart;
}

/// What each till sold, where there are several.
Table tills(const std::vector<HourSales>& sales, const SalesSource& source, const Facts& facts)
{
    const std::vector<QString> names = source.tills();
    std::vector<Sum> sums(names.size());
    for (const HourSales& part : sales) {
        if (facts.order.range.contains(part.day)) {
            sums.at(static_cast<std::size_t>(part.till)).add(part);
        }
    }
    Table table{TillColumn::title(),
        {{TillColumn::caption(), CellKind::Text}, {Wording::lines(), CellKind::Count},
            {Wording::net(), CellKind::Money}, {Wording::share(), CellKind::Percent}},
        {}};
    for (std::size_t till = 0; till < names.size(); ++till) {
        const Sum& sum = sums.at(till);
        table.rows.push_back({names.at(till), sum.lines, sum.takings,
            Sums::share(sum.takings, facts.bars.total().takings)});
    }
    return table;
}
void addTills(Report& report, const std::vector<HourSales>& sales, const SalesSource& source,
    const Facts& facts)
{
    if (source.tills().size() > 1) {
        report.tables.push_back(tills(sales, source, facts));
    }
    if (TillColumn::isSideBySide(facts.order, source)) {
        report.charts.back() = sideBySide(report.charts.back(), sales, source, facts);
    }
    Table detail = TillColumn::joined(sales, source, [&facts](const std::vector<HourSales>& part) {
        const SalesBars bars(facts.order, part);
        return table({facts.order, bars, facts.rate});
    });
    detail.title = Text::tr("Détail par caisse");
    TillColumn::add(report, std::move(detail), facts.order, source);
}
} // namespace

Report Pages::sales(const ReportOrder& order, SalesSource& source, const Reading& reading)
{
    // The period before ends where the period begins: one reading has both.
    const std::vector<HourSales> hours
        = source.hours({order.range.before().first, order.range.last}, reading);
    const SalesBars bars(order, hours);
    const Facts facts{order, bars, order.taxRate ? *order.taxRate : source.taxRate()};

    Report report;
    report.title = Text::tr("Ventes");
    report.subtitle = Wording::subtitle(order);
    report.figures = figures(facts);
    report.charts.push_back(chart(facts));
    report.tables.push_back(table(facts));
    if (source.tills().size() > 1 || source.namesTills()) {
        addTills(report, tillSales(order, source, reading), source, facts);
    }
    report.notes.push_back(Wording::taxNote());
    return report;
}
