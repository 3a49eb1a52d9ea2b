// SPDX-License-Identifier: MIT
#include "backoffice/reports/Sums.h"

#include <cmath>
#include <map>

namespace Sums {
namespace {
constexpr double perCent = 100;
} // namespace

std::array<Sum, hoursInADay> byHour(const std::vector<HourSales>& sales)
{
    std::array<Sum, hoursInADay> hours;
    for (const HourSales& part : sales) {
        hours.at(static_cast<std::size_t>(part.hour)).add(part);
    }
    return hours;
}

std::vector<ArticleSales> ofAllTills(const std::vector<ArticleSales>& sales)
{
    std::map<QString, ArticleSales> articles;
    for (const ArticleSales& part : sales) {
        const auto [place, isNew] = articles.try_emplace(key(part.article), part);
        if (!isNew) {
            place->second.lines += part.lines;
            place->second.takings += part.takings;
        }
    }
    std::vector<ArticleSales> merged;
    merged.reserve(articles.size());
    for (auto& [name, article] : articles) {
        merged.push_back(std::move(article));
    }
    return merged;
}

QVariant share(qint64 part, qint64 whole)
{
    return whole > 0 ? static_cast<double>(part) * perCent / static_cast<double>(whole)
                     : QVariant();
}

QVariant change(Amount now, Amount before) { return share(now - before, before); }

Amount mean(Amount amount, qint64 count)
{
    return std::llround(static_cast<double>(amount) / static_cast<double>(count));
}

QString key(const QString& article)
{
    QString text = article;
    for (QChar& letter : text) {
        if (letter >= QLatin1Char('A') && letter <= QLatin1Char('Z')) {
            letter = letter.toLower();
        }
    }
    return text;
}
} // namespace Sums
