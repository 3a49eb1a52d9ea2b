// SPDX-License-Identifier: MIT
#include "backoffice/sales/Recipes.h"

#include "backoffice/sales/TillFigures.h"

#include <algorithm>

namespace {
bool isBefore(const Recipes::Article& one, const Recipes::Article& other)
{
    return std::tie(one.id, one.article) < std::tie(other.id, other.article);
}

bool isBeforeDose(const Recipes::Dose& one, const Recipes::Dose& other)
{
    return std::tie(one.line, one.article, one.composition, one.dose, one.unit)
        < std::tie(other.line, other.article, other.composition, other.dose, other.unit);
}
} // namespace

bool Recipes::isMixed() const
{
    std::map<QString, const Dose*> known;
    return std::any_of(doses.begin(), doses.end(), [&](const Dose& dose) {
        const Dose* first = known.try_emplace(folded(dose.composition), &dose).first->second;
        return first->composition != dose.composition || first->unit != dose.unit;
    });
}

Recipes::Parts Recipes::parts() const
{
    std::map<qint64, QString> names;
    for (const Article& article : articles) {
        names[article.id] = folded(article.article);
    }
    Parts parts;
    for (const Dose& dose : doses) {
        const auto name = names.find(dose.article);
        if (name != names.end()) {
            parts[name->second].insert({dose.composition, dose.unit, dose.dose});
        }
    }
    return parts;
}

bool Recipes::operator<(const Recipes& other) const
{
    const auto compared = [](const auto& one, const auto& another, auto isLess) {
        return std::lexicographical_compare(
            one.begin(), one.end(), another.begin(), another.end(), isLess);
    };
    if (compared(articles, other.articles, isBefore)) {
        return true;
    }
    return !compared(other.articles, articles, isBefore)
        && compared(doses, other.doses, isBeforeDose);
}
