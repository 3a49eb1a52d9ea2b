// SPDX-License-Identifier: MIT
#include "backoffice/reports/Pages.h"
#include "backoffice/reports/SalesBars.h"
#include "backoffice/reports/TillColumn.h"
#include "backoffice/reports/Wording.h"

#include <QCoreApplication>

#include <algorithm>
#include <map>
#include <tuple>

namespace {
struct Text
{
    Q_DECLARE_TR_FUNCTIONS(UsesReport)
};

/// The uses of all tills as if they were one till's: of the period, and by day.
struct AllUses
{
    std::vector<Use> period;
    std::vector<Use> days;
};

AllUses allUses(const std::vector<Use>& uses)
{
    using Key = std::tuple<QDate, QString, QString>;
    std::map<Key, std::size_t> places;
    AllUses all;
    for (const Use& use : uses) {
        std::vector<Use>& list = use.day.isValid() ? all.days : all.period;
        const auto [place, isNew]
            = places.try_emplace(Key(use.day, use.composition, use.unit), list.size());
        if (isNew) {
            list.push_back(use);
        } else {
            Use& known = list.at(place->second);
            known.amount += use.amount;
            known.converted += use.converted;
        }
    }
    std::stable_sort(all.days.begin(), all.days.end(),
        [](const Use& one, const Use& other) { return one.day < other.day; });
    return all;
}

/// The units of \a uses, the first met first.
std::vector<QString> unitsOf(const std::vector<Use>& uses)
{
    std::vector<QString> units;
    for (const Use& use : uses) {
        if (std::find(units.begin(), units.end(), use.unit) == units.end()) {
            units.push_back(use.unit);
        }
    }
    return units;
}

/// The most used compositions of \a unit, at most \a count.
std::vector<Use> largest(const std::vector<Use>& uses, const QString& unit, std::size_t count)
{
    std::vector<Use> found;
    std::copy_if(uses.begin(), uses.end(), std::back_inserter(found),
        [&unit](const Use& use) { return use.unit == unit; });
    std::stable_sort(found.begin(), found.end(),
        [](const Use& one, const Use& other) { return one.amount > other.amount; });
    found.resize(std::min(count, found.size()));
    return found;
}

BarChart chartOfDay(const std::vector<Use>& uses, const QString& unit)
{
    constexpr std::size_t best = 15;
    BarChart chart;
    chart.isHorizontal = true;
    BarChart::Values values{unit, {}};
    for (const Use& use : largest(uses, unit, best)) {
        chart.categories.push_back(use.composition);
        chart.categoryNames.push_back(use.composition);
        values.values.push_back(use.amount);
    }
    chart.bars.push_back(std::move(values));
    return chart;
}

BarChart chartOfDays(const AllUses& all, const QString& unit, const SalesBars& bars)
{
    // More bars side by side cannot be told apart.
    constexpr std::size_t best = 3;
    BarChart chart;
    for (const SalesBars::Bar& bar : bars.bars()) {
        chart.categories.push_back(bar.category);
        chart.categoryNames.push_back(bar.name);
    }
    for (const Use& most : largest(all.period, unit, best)) {
        BarChart::Values values{most.composition, std::vector<double>(bars.bars().size())};
        for (const Use& use : all.days) {
            if (use.composition != most.composition || use.unit != unit) {
                continue;
            }
            const auto bar = std::find_if(bars.bars().begin(), bars.bars().end(),
                [&use](const SalesBars::Bar& one) { return one.range.contains(use.day); });
            if (bar != bars.bars().end()) {
                values.values.at(static_cast<std::size_t>(bar - bars.bars().begin())) += use.amount;
            }
        }
        chart.bars.push_back(std::move(values));
    }
    return chart;
}

std::vector<BarChart> charts(const ReportOrder& order, const AllUses& all)
{
    const DayRange::Grain grain = order.range.grain();
    std::vector<BarChart> charts;
    for (const QString& unit : unitsOf(all.period)) {
        BarChart chart = grain == DayRange::Grain::Hour
            ? chartOfDay(all.period, unit)
            : chartOfDays(all, unit, SalesBars(order, {}));
        chart.kind = CellKind::Quantity;
        chart.title = grain == DayRange::Grain::Month
            ? Text::tr("Les plus consommés par mois, en %1").arg(unit)
            : grain == DayRange::Grain::Day
            ? Text::tr("Les plus consommés par jour, en %1").arg(unit)
            : Text::tr("Les plus consommés, en %1").arg(unit);
        charts.push_back(std::move(chart));
    }
    return charts;
}

/// The uses of days added up to months, each as the first day of one.
std::vector<Use> byMonth(std::vector<Use> days)
{
    for (Use& use : days) {
        use.day = QDate(use.day.year(), use.day.month(), 1);
    }
    return allUses(days).days;
}

/// \a uses, with their day in the column \a day if there is one, and the larger units if there are
/// any.
Table table(const QString& title, const std::vector<Use>& uses, const std::optional<Column>& day)
{
    const bool isConverted = std::any_of(
        uses.begin(), uses.end(), [](const Use& use) { return !use.convertedUnit.isEmpty(); });
    Table table{title, {}, {}};
    if (day) {
        table.columns.push_back(*day);
    }
    table.columns.insert(table.columns.end(),
        {{Text::tr("Composition"), CellKind::Text}, {Text::tr("Quantité"), CellKind::Quantity},
            {Text::tr("Unité"), CellKind::Text}});
    if (isConverted) {
        table.columns.push_back({Text::tr("Quantité convertie"), CellKind::Quantity});
        table.columns.push_back({Text::tr("Unité convertie"), CellKind::Text});
    }
    for (const Use& use : uses) {
        std::vector<QVariant> row;
        if (day) {
            row.emplace_back(use.day);
        }
        row.insert(row.end(), {use.composition, use.amount, use.unit});
        if (isConverted) {
            const bool isThisOne = !use.convertedUnit.isEmpty();
            row.push_back(isThisOne ? QVariant(use.converted) : QVariant());
            row.push_back(isThisOne ? QVariant(use.convertedUnit) : QVariant());
        }
        table.rows.push_back(std::move(row));
    }
    return table;
}
/// What each till used in the period.
Table ofTills(const std::vector<Use>& uses, const SalesSource& source)
{
    std::vector<Use> period;
    std::copy_if(uses.begin(), uses.end(), std::back_inserter(period),
        [](const Use& use) { return !use.day.isValid(); });
    // Columns that only some tills need are in all rows.
    Table whole = table(TillColumn::title(), period, std::nullopt);
    whole.columns.insert(whole.columns.begin(), {TillColumn::caption(), CellKind::Text});
    const std::vector<QString> names = source.tills();
    for (std::size_t at = 0; at < period.size(); ++at) {
        std::vector<QVariant>& row = whole.rows.at(at);
        row.insert(row.begin(), names.at(static_cast<std::size_t>(period.at(at).till)));
    }
    return whole;
}
} // namespace

Report Pages::uses(const ReportOrder& order, SalesSource& source, const Reading& reading)
{
    const std::vector<Use> uses = source.uses(order.range, reading);
    const AllUses all = allUses(uses);
    Report report;
    report.title = Text::tr("Consommation");
    report.subtitle = Wording::subtitle(order);
    report.figures = {{Text::tr("Compositions consommées"), static_cast<qint64>(all.period.size()),
        CellKind::Count, {}}};
    report.charts = charts(order, all);
    report.tables.push_back(
        table(Text::tr("Consommation de la période"), all.period, std::nullopt));
    if (order.range.grain() == DayRange::Grain::Month) {
        // The days of a year would be a hundred sheets of paper.
        report.tables.push_back(table(Text::tr("Consommation par mois"), byMonth(all.days),
            Column{Text::tr("Mois"), CellKind::Month}));
        report.notes.push_back(
            Text::tr("Au-delà de deux mois, le détail est par mois, chacun étant "
                     "la somme de ses jours."));
    } else if (order.range.first != order.range.last) {
        report.tables.push_back(table(
            Text::tr("Consommation par jour"), all.days, Column{Wording::day(), CellKind::Day}));
    }
    if (source.namesTills() || TillColumn::isSideBySide(order, source)) {
        TillColumn::add(report, ofTills(uses, source), order, source);
    }
    if (order.range.first != order.range.last) {
        report.notes.push_back(Text::tr(
            "Le total de la période et celui de chaque jour sont calculés comme dans la fenêtre de la "
            "caisse, où un article vendu à plusieurs prix, le même nombre de fois à chacun, compte "
            "pour un seul de ces prix : la somme des jours peut donc différer de la période."));
    }
    return report;
}
