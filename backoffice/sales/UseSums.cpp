// SPDX-License-Identifier: MIT
#include "backoffice/sales/UseSums.h"

#include "backoffice/sales/TillFigures.h"

#include <algorithm>

void UseSums::add(const Recipes::Parts& recipes, const PartLines& lines)
{
    for (const auto& [article, counts] : lines) {
        const auto recipe = recipes.find(article);
        if (recipe == recipes.end()) {
            continue;
        }
        for (const Recipes::Part& part : recipe->second) {
            std::vector<Sum>& sums
                = sums_[Key(folded(part.composition), part.composition, part.unit)];
            sums.resize(std::max(sums.size(), counts.size()));
            for (std::size_t at = 0; at < counts.size(); ++at) {
                sums[at].amount += static_cast<double>(counts[at]) * part.dose;
                sums[at].isUsed = sums[at].isUsed || counts[at] != 0;
            }
        }
    }
}

std::vector<Use> UseSums::uses(const std::vector<QDate>& days, int till) const
{
    std::vector<Use> uses;
    for (std::size_t at = 0; at < days.size(); ++at) {
        for (const auto& [key, sums] : sums_) {
            if (at < sums.size() && sums[at].isUsed) {
                const auto& [name, composition, unit] = key;
                uses.push_back({days[at], composition, sums[at].amount, unit, 0, {}, till});
            }
        }
    }
    return uses;
}
