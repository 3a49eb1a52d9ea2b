// SPDX-License-Identifier: MIT
#include "central/Line.h"

#include <QDate>

#include <algorithm>
#include <cstdlib>
#include <string_view>

namespace {
constexpr std::int64_t highestPrice = 10'000'000'000'000;
constexpr std::string_view shape = "0000-00-00 00:00:00.000";
constexpr int firstYear = 1970;
constexpr int lastYear = 2199;
constexpr std::size_t longestKey = 18;
/// Bytes that PostgreSQL's indexes take, in any case.
constexpr std::size_t longestName = 2000;
constexpr std::size_t longestPrice = 200;

bool isDigit(char letter) { return letter >= '0' && letter <= '9'; }

int number(std::string_view text, std::size_t at, std::size_t size)
{
    return std::atoi(std::string(text.substr(at, size)).c_str());
}

/// Whether \a text is a moment as the till writes it.
bool isMoment(std::string_view text)
{
    constexpr int hours = 24;
    constexpr int sixty = 60;
    if (text.size() != shape.size()) {
        return false;
    }
    for (std::size_t at = 0; at < shape.size(); ++at) {
        if (shape[at] == '0' ? !isDigit(text[at]) : text[at] != shape[at]) {
            return false;
        }
    }
    const int year = number(text, 0, 4);
    return year >= firstYear && year <= lastYear
        && QDate::isValid(year, number(text, 5, 2), number(text, 8, 2))
        && number(text, 11, 2) < hours && number(text, 14, 2) < sixty
        && number(text, 17, 2) < sixty;
}

bool isKey(std::string_view text)
{
    const std::string_view digits = text.starts_with('-') ? text.substr(1) : text;
    return !digits.empty() && digits.size() <= longestKey
        && std::all_of(digits.begin(), digits.end(), isDigit);
}
} // namespace

std::string Line::content() const
{
    // No field but the last can contain the mark that parts them: a moment or a key that is any
    // text comes with its length.
    return std::to_string(moment.size()) + '|' + moment + '|' + std::to_string(article.size()) + '|'
        + article + '|' + std::to_string(price) + '|' + std::to_string(exactPrice.size()) + '|'
        + exactPrice + '|' + name;
}

bool Line::isRegular() const
{
    return isMoment(moment) && isKey(article) && price >= -highestPrice && price <= highestPrice
        && name.size() <= longestName && exactPrice.size() <= longestPrice;
}
