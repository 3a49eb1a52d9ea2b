// SPDX-License-Identifier: MIT
#pragma once

#include "backoffice/sales/Recipes.h"
#include "backoffice/sales/SalesSource.h"

#include <map>
#include <tuple>
#include <vector>

/// Lines of an article in each part of a range, by the part's number from 0; by the article's name
/// as folded() writes it.
using PartLines = std::map<QString, std::vector<qint64>>;

/// What plain recipes used in each part of a range. Where each composition has one unit, all that
/// the till's statement does is to add up doses.
class UseSums
{
public:
    /// Adds what \a recipes used for \a lines.
    void add(const Recipes::Parts& recipes, const PartLines& lines);

    /// What was used in each part of the range, of which \a days are the days, as the till \a
    /// till's; compositions are in the till's order. Nothing is converted.
    std::vector<Use> uses(const std::vector<QDate>& days, int till) const;

private:
    struct Sum
    {
        double amount = 0;
        bool isUsed = false;
    };
    /// A composition as folded() writes it, as it is, and its unit.
    using Key = std::tuple<QString, QString, QString>;

    std::map<Key, std::vector<Sum>> sums_;
};
