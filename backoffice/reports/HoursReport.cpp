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
    Q_DECLARE_TR_FUNCTIONS(HoursReport)
};

constexpr int daysInAWeek = 7;

/// The sales by weekday and hour.
struct Week
{
    /// Qt's numbers of the weekdays, in the country's order.
    std::vector<int> weekdays;
    /// The hours from the first to the last with a sale.
    std::vector<int> hours;
    /// By Qt's number of the weekday less 1, and by hour.
    std::array<std::array<Sum, hoursInADay>, daysInAWeek> sums;
    /// How often each weekday was in the period, by Qt's number less 1.
    std::array<qint64, daysInAWeek> counts{};

    const Sum& at(int weekday, int hour) const
    {
        return sums.at(static_cast<std::size_t>(weekday - 1)).at(static_cast<std::size_t>(hour));
    }
    qint64 count(int weekday) const { return counts.at(static_cast<std::size_t>(weekday - 1)); }
    Sum ofDay(int weekday) const
    {
        Sum sum;
        for (const Sum& part : sums.at(static_cast<std::size_t>(weekday - 1))) {
            sum.add(part);
        }
        return sum;
    }
    Sum ofHour(int hour) const
    {
        Sum sum;
        for (const int weekday : weekdays) {
            sum.add(at(weekday, hour));
        }
        return sum;
    }
};

Week weekOf(const std::vector<HourSales>& sales, const ReportOrder& order)
{
    Week week;
    for (int day = 0; day < daysInAWeek; ++day) {
        week.weekdays.push_back((order.locale.firstDayOfWeek() - 1 + day) % daysInAWeek + 1);
    }
    int first = hoursInADay;
    int last = -1;
    for (const HourSales& part : sales) {
        week.sums.at(static_cast<std::size_t>(part.day.dayOfWeek() - 1))
            .at(static_cast<std::size_t>(part.hour))
            .add(part);
        first = std::min(first, part.hour);
        last = std::max(last, part.hour);
    }
    for (int hour = first; hour <= last; ++hour) {
        week.hours.push_back(hour);
    }
    const QDate end = std::min(order.range.last, order.today);
    for (QDate day = order.range.first; day <= end; day = day.addDays(1)) {
        ++week.counts.at(static_cast<std::size_t>(day.dayOfWeek() - 1));
    }
    return week;
}

HeatMap heatMap(const Week& week, const QLocale& locale)
{
    HeatMap map;
    map.title = Text::tr("Total HT par jour de la semaine et par heure");
    for (const int hour : week.hours) {
        map.columns.push_back(format(hour, CellKind::Hour, locale));
    }
    for (const int weekday : week.weekdays) {
        map.rows.push_back(locale.standaloneDayName(weekday));
        for (const int hour : week.hours) {
            map.values.push_back(static_cast<double>(week.at(weekday, hour).takings));
        }
    }
    return map;
}

/// The heat map's figures, an hour in each row, so that they fit a page.
Table byHour(const Week& week, const QLocale& locale)
{
    Table table{Text::tr("Total HT par heure"), {{Wording::hour(), CellKind::Hour}}, {}};
    for (const int weekday : week.weekdays) {
        table.columns.push_back({locale.standaloneDayName(weekday), CellKind::Money});
    }
    table.columns.push_back({Text::tr("Total"), CellKind::Money});
    for (const int hour : week.hours) {
        std::vector<QVariant> row{hour};
        for (const int weekday : week.weekdays) {
            row.emplace_back(week.at(weekday, hour).takings);
        }
        row.emplace_back(week.ofHour(hour).takings);
        table.rows.push_back(std::move(row));
    }
    return table;
}

QVariant meanOf(const Week& week, int weekday)
{
    const qint64 count = week.count(weekday);
    return count > 0 ? QVariant(Sums::mean(week.ofDay(weekday).takings, count)) : QVariant();
}

Table byWeekday(const Week& week, const QLocale& locale)
{
    Table table{Text::tr("Par jour de la semaine"),
        {{Wording::day(), CellKind::Text}, {Text::tr("Jours"), CellKind::Count},
            {Wording::lines(), CellKind::Count}, {Wording::net(), CellKind::Money},
            {Text::tr("Moyenne par jour"), CellKind::Money}},
        {}};
    for (const int weekday : week.weekdays) {
        const Sum sum = week.ofDay(weekday);
        table.rows.push_back({locale.standaloneDayName(weekday), week.count(weekday), sum.lines,
            sum.takings, meanOf(week, weekday)});
    }
    return table;
}

std::vector<KeyFigure> figures(const Week& week, const QLocale& locale)
{
    if (week.hours.empty()) {
        return {};
    }
    const auto best = [](const std::vector<int>& all, const auto& value) {
        return *std::max_element(all.begin(), all.end(),
            [&value](int one, int other) { return value(one) < value(other); });
    };
    const int hour = best(week.hours, [&week](int one) { return week.ofHour(one).takings; });
    const int day
        = best(week.weekdays, [&week](int one) { return meanOf(week, one).toLongLong(); });
    return {
        {Text::tr("Meilleure heure"), hour, CellKind::Hour,
            format(week.ofHour(hour).takings, CellKind::Money, locale)},
        {Text::tr("Meilleur jour de la semaine"), locale.standaloneDayName(day), CellKind::Text,
            Text::tr("%1 en moyenne").arg(format(meanOf(week, day), CellKind::Money, locale))},
    };
}
} // namespace

Report Pages::hours(const ReportOrder& order, SalesSource& source, const Reading& reading)
{
    const Week week = weekOf(source.hours(order.range, reading), order);
    Report report;
    report.title = Text::tr("Heures");
    report.subtitle = Wording::subtitle(order);
    report.figures = figures(week, order.locale);
    report.heatMap = heatMap(week, order.locale);
    report.tables = {byHour(week, order.locale), byWeekday(week, order.locale)};
    if (source.namesTills() || TillColumn::isSideBySide(order, source)) {
        const auto ofTill = [&order](const std::vector<HourSales>& sales) {
            return byHour(weekOf(sales, order), order.locale);
        };
        TillColumn::add(report,
            TillColumn::joined(
                source.tillSales(order.range, SalesSource::TillPart::WeekHour, reading), source,
                ofTill),
            order, source);
    }
    return report;
}
