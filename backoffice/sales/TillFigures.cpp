// SPDX-License-Identifier: MIT
#include "backoffice/sales/TillFigures.h"

#include "backoffice/sales/TillStatements.h"

#include <algorithm>
#include <iterator>

QString folded(QString name)
{
    for (QChar& letter : name) {
        if (letter >= QLatin1Char('A') && letter <= QLatin1Char('Z')) {
            letter = letter.toLower();
        }
    }
    return name;
}

QDate dayOf(const QString& text, QDate before)
{
    constexpr int length = 10;
    const QDate day = QDate::fromString(text.left(length), QStringLiteral("yyyy-MM-dd"));
    return day.isValid() ? day : before;
}

QString HourFigures::statement() { return TillStatements::hours(); }

void HourFigures::add(const QSqlQuery& row)
{
    Sum& sum = sums_[row.value(0).toString()];
    sum.takings += row.value(1).toLongLong();
    sum.lines += row.value(2).toLongLong();
}

void HourFigures::add(const HourFigures& other)
{
    for (const auto& [hour, added] : other.sums_) {
        Sum& sum = sums_[hour];
        sum.takings += added.takings;
        sum.lines += added.lines;
    }
}

std::vector<HourSales> HourFigures::result(QDate first) const
{
    constexpr int hourPlace = 11;
    constexpr int hoursInADay = 24;
    std::vector<HourSales> hours;
    HourSales last{first, 0, 0, 0, 0};
    for (const auto& [text, sum] : sums_) {
        const QDate day = dayOf(text, QDate());
        bool isNumber = false;
        const int hour = text.mid(hourPlace).toInt(&isNumber);
        // A text that the till has not written counts for the hour that it follows.
        if (day.isValid() && day >= last.day) {
            const bool isHour = isNumber && hour >= 0 && hour < hoursInADay;
            const int before = day == last.day ? last.hour : 0;
            last = {day, isHour ? std::max(hour, before) : before, 0, 0, 0};
        }
        if (hours.empty() || hours.back().day != last.day || hours.back().hour != last.hour) {
            hours.push_back(last);
        }
        hours.back().lines += sum.lines;
        hours.back().takings += sum.takings;
    }
    return hours;
}

QString ArticleFigures::statement() { return TillStatements::articles(); }

void ArticleFigures::add(const ArticleSales& sales)
{
    const auto [place, isNew] = sums_.try_emplace(folded(sales.article), sales);
    if (!isNew) {
        ArticleSales& sum = place->second;
        sum.article = std::min(sum.article, sales.article);
        sum.lines += sales.lines;
        sum.takings += sales.takings;
    }
}

void ArticleFigures::add(const QSqlQuery& row)
{
    add({row.value(0).toString(), row.value(2).toLongLong(), row.value(1).toLongLong(), 0});
}

void ArticleFigures::add(const ArticleFigures& other)
{
    for (const auto& [name, sales] : other.sums_) {
        add(sales);
    }
}

std::vector<ArticleSales> ArticleFigures::result() const
{
    std::vector<ArticleSales> articles;
    articles.reserve(sums_.size());
    std::transform(sums_.begin(), sums_.end(), std::back_inserter(articles),
        [](const auto& sum) { return sum.second; });
    return articles;
}

QString CountFigures::statement() { return TillStatements::counts(); }

void CountFigures::add(const QSqlQuery& row)
{
    counts_.push_back({row.value(0).toString(), row.value(1).toString(), row.value(2),
        row.value(3).toLongLong()});
}

void CountFigures::add(const CountFigures& other)
{
    counts_.insert(counts_.end(), other.counts_.begin(), other.counts_.end());
}
