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

namespace {
/// The number that \a text has at \a place, -1 for none.
int number(const QString& text, int place, int size)
{
    constexpr int ten = 10;
    if (text.size() < place + size) {
        return -1;
    }
    int found = 0;
    for (int at = place; at < place + size; ++at) {
        const int digit = text.at(at).unicode() - '0';
        if (digit < 0 || digit >= ten) {
            return -1;
        }
        found = found * ten + digit;
    }
    return found;
}
} // namespace

QDate dayOf(const QString& text)
{
    constexpr int yearSize = 4;
    constexpr int monthPlace = 5;
    constexpr int dayPlace = 8;
    const QLatin1Char dash('-');
    const bool isDay = text.size() >= dayPlace + 2 && text.at(monthPlace - 1) == dash
        && text.at(dayPlace - 1) == dash;
    return isDay
        ? QDate(number(text, 0, yearSize), number(text, monthPlace, 2), number(text, dayPlace, 2))
        : QDate();
}

int hourOf(const QString& text)
{
    constexpr int hourPlace = 11;
    return number(text, hourPlace, 2);
}

QString HourFigures::statement() { return TillStatements::hours(); }

void HourFigures::add(const HourSales& sales)
{
    if (hours_.empty() || hours_.back().day != sales.day || hours_.back().hour != sales.hour) {
        hours_.push_back(sales);
        return;
    }
    hours_.back().lines += sales.lines;
    hours_.back().takings += sales.takings;
}

void HourFigures::add(const QSqlQuery& row)
{
    const QString text = row.value(0).toString();
    add({dayOf(text), hourOf(text), row.value(2).toLongLong(), row.value(1).toLongLong(), 0});
}

void HourFigures::add(const HourFigures& later)
{
    hours_.reserve(hours_.size() + later.hours_.size());
    for (const HourSales& sales : later.hours_) {
        add(sales);
    }
}

std::vector<HourSales> HourFigures::result(QDate first) const
{
    constexpr int hoursInADay = 24;
    HourFigures clean;
    clean.hours_.reserve(hours_.size());
    HourSales last{first, 0, 0, 0, 0};
    for (const HourSales& sales : hours_) {
        // What the till has not written counts for the hour that it follows.
        if (sales.day.isValid() && sales.day > last.day) {
            last = {sales.day, 0, 0, 0, 0};
        }
        if (sales.day == last.day && sales.hour < hoursInADay) {
            last.hour = std::max(sales.hour, last.hour);
        }
        clean.add({last.day, last.hour, sales.lines, sales.takings, 0});
    }
    return std::move(clean.hours_);
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
    counts_.push_back({dayOf(row.value(0).toString()), *names_.insert(row.value(1).toString()),
        row.value(2), row.value(3).toLongLong()});
}

void CountFigures::add(const CountFigures& later)
{
    counts_.insert(counts_.end(), later.counts_.begin(), later.counts_.end());
}
