// SPDX-License-Identifier: MIT
#include "backoffice/reports/SalesBars.h"

#include "backoffice/reports/Format.h"
#include "backoffice/reports/Wording.h"

#include <algorithm>
#include <iterator>

namespace {
constexpr int monthsInAYear = 12;

/// How many months \a range consists of; 0 when they are not whole.
int wholeMonths(const DayRange& range)
{
    if (range.first.day() != 1 || range.last.addDays(1).day() != 1) {
        return 0;
    }
    return (range.last.year() - range.first.year()) * monthsInAYear + range.last.month()
        - range.first.month() + 1;
}

Sum sumOf(const std::map<QDate, Sum>& days, const DayRange& range)
{
    Sum sum;
    const auto end = days.upper_bound(range.last);
    for (auto day = days.lower_bound(range.first); day != end; ++day) {
        sum.add(day->second);
    }
    return sum;
}

/// The sum of \a hours before \a end.
Amount takingsUntil(const std::array<Sum, hoursInADay>& hours, int end)
{
    Amount takings = 0;
    for (int hour = 0; hour < end; ++hour) {
        takings += hours.at(static_cast<std::size_t>(hour)).takings;
    }
    return takings;
}

bool isSold(const Sum& sum) { return sum.lines > 0; }

/// The hour after the last with a sale; 0 when there is none.
int endOf(const std::array<Sum, hoursInADay>& hours)
{
    return static_cast<int>(
        std::distance(std::find_if(hours.rbegin(), hours.rend(), isSold), hours.rend()));
}

/// The first hour with a sale; 24 when there is none.
int beginOf(const std::array<Sum, hoursInADay>& hours)
{
    return static_cast<int>(
        std::distance(hours.begin(), std::find_if(hours.begin(), hours.end(), isSold)));
}

/// "3", or "3/11" where the bars are of several months, in the order of \a locale.
QString shortDay(QDate day, const DayRange& range, const QLocale& locale)
{
    QString number = QString::number(day.day());
    if (range.first.year() == range.last.year() && range.first.month() == range.last.month()) {
        return number;
    }
    const QString format = locale.dateFormat(QLocale::ShortFormat);
    const QString month = QString::number(day.month());
    return format.indexOf(QLatin1Char('M')) < format.indexOf(QLatin1Char('d'))
        ? month + QLatin1Char('/') + number
        : number + QLatin1Char('/') + month;
}

QString shortMonth(QDate day, const DayRange& range, const QLocale& locale)
{
    const QString name = locale.standaloneMonthName(day.month(), QLocale::ShortFormat);
    return range.first.year() == range.last.year()
        ? name
        : name + QLatin1Char(' ') + QString::number(day.year());
}
} // namespace

SalesBars::SalesBars(const ReportOrder& order, const std::vector<HourSales>& sales)
    : range_(order.range)
    , before_(order.range.before())
    , today_(order.today)
    , locale_(order.locale)
    , months_(wholeMonths(order.range))
{
    for (const HourSales& part : sales) {
        const auto hour = static_cast<std::size_t>(part.hour);
        if (range_.contains(part.day)) {
            total_.add(part);
            days_[part.day].add(part);
            hours_.at(hour).add(part);
        } else {
            daysBefore_[part.day].add(part);
            hoursBefore_.at(hour).add(part);
        }
    }
    switch (range_.grain()) {
    case DayRange::Grain::Hour:
        addHours();
        break;
    case DayRange::Grain::Day:
        addDays();
        break;
    case DayRange::Grain::Month:
        addMonths();
        break;
    }
}

void SalesBars::addHours()
{
    const int end = std::max(endOf(hours_), endOf(hoursBefore_));
    for (int hour = std::min(beginOf(hours_), beginOf(hoursBefore_)); hour < end; ++hour) {
        const auto place = static_cast<std::size_t>(hour);
        bars_.push_back({hour, range_, format(hour, CellKind::Hour, locale_),
            Wording::hourInFull(hour, locale_), hours_.at(place), hoursBefore_.at(place)});
    }
}

void SalesBars::addDays()
{
    for (QDate day = range_.first; day <= range_.last; day = day.addDays(1)) {
        const DayRange bar{day, day};
        bars_.push_back({0, bar, shortDay(day, range_, locale_), Wording::dayInFull(day, locale_),
            sumOf(days_, bar), soldBefore(bar)});
    }
}

void SalesBars::addMonths()
{
    QDate first = range_.first;
    while (first <= range_.last) {
        const QDate next = QDate(first.year(), first.month(), 1).addMonths(1);
        const DayRange bar{first, std::min(next.addDays(-1), range_.last)};
        bars_.push_back({0, bar, shortMonth(first, range_, locale_), Wording::period(bar, locale_),
            sumOf(days_, bar), soldBefore(bar)});
        first = next;
    }
}

/// The day of the period before that \a day is compared with: the same of the month, or as many
/// days earlier as the period has.
std::optional<QDate> SalesBars::dayBefore(QDate day) const
{
    if (months_ == 0) {
        return day.addDays(-range_.days());
    }
    const QDate shifted = day.addMonths(-months_);
    return shifted.day() == day.day() ? std::optional(shifted) : std::nullopt;
}

std::optional<Sum> SalesBars::soldBefore(const DayRange& days) const
{
    const std::optional<QDate> first = dayBefore(days.first);
    if (!first) {
        return std::nullopt;
    }
    const bool isToMonthsEnd
        = months_ > 0 && days.last.addDays(1).day() == 1 && days.first.day() == 1;
    const QDate last
        = isToMonthsEnd ? first->addMonths(1).addDays(-1) : first->addDays(days.days() - 1);
    return sumOf(daysBefore_, {*first, last});
}

qint64 SalesBars::pastDays() const
{
    return std::max<qint64>(0, range_.first.daysTo(std::min(range_.last, today_)) + 1);
}

SalesBars::Comparison SalesBars::comparison() const
{
    Comparison comparison{true, before_, std::nullopt, total_.takings, 0};
    if (range_.first > today_) {
        comparison.isPossible = false;
    } else if (isToday()) {
        // At ten in the morning, the whole of yesterday would always look better.
        comparison.endHour = endOf(hours_);
        comparison.isPossible = *comparison.endHour > 0;
        comparison.before = takingsUntil(hoursBefore_, *comparison.endHour);
    } else {
        if (range_.last > today_) {
            comparison.range.last
                = months_ > 0 ? today_.addMonths(-months_) : today_.addDays(-range_.days());
        }
        comparison.before = sumOf(daysBefore_, comparison.range).takings;
    }
    return comparison;
}

bool SalesBars::isToday() const
{
    return range_.grain() == DayRange::Grain::Hour && range_.first == today_;
}

bool SalesBars::hasBegun(const Bar& bar) const
{
    return bar.sold.lines > 0 || (isToday() ? bar.hour < endOf(hours_) : bar.range.first <= today_);
}

bool SalesBars::isOver(const Bar& bar) const
{
    return isToday() ? bar.hour < endOf(hours_) : bar.range.last < today_;
}
