// SPDX-License-Identifier: MIT
#include "backoffice/sales/BookUses.h"

#include "backoffice/sales/BookDays.h"
#include "backoffice/sales/BookStatements.h"
#include "backoffice/sales/UseTables.h"

#include <algorithm>
#include <set>

namespace {
/// The numbers of \a array, as PostgreSQL writes it; none is below 0.
std::vector<qint64> numbers(const QString& array)
{
    constexpr int ten = 10;
    std::vector<qint64> found;
    qint64 number = 0;
    for (const QChar letter : array) {
        if (letter.isDigit()) {
            number = number * ten + letter.digitValue();
        } else if (letter != QLatin1Char('{')) {
            found.push_back(number);
            number = 0;
        }
    }
    return found;
}

/// One of each of \a units, with what the till's statement says it is in the larger one.
std::map<QString, Use> oneOfEach(const std::set<QString>& units, const Reading& reading)
{
    UseTables tables;
    std::vector<UseTables::Lines> lines;
    int number = 0;
    for (const QString& unit : units) {
        const QString name = QString::number(++number);
        tables.addStockArticle({number, name});
        tables.addDose({number, number, name, 1, unit});
        lines.push_back({QDate(), 0, name, 1});
    }
    tables.addLines(lines);
    std::map<QString, Use> ones;
    for (const Use& use : tables.uses(reading)) {
        ones[use.unit] = use;
    }
    return ones;
}

/// Adds to \a uses what they are in larger units.
void convert(std::vector<Use>& uses, const Reading& reading)
{
    std::set<QString> units;
    for (const Use& use : uses) {
        units.insert(use.unit);
    }
    const std::map<QString, Use> ones = oneOfEach(units, reading);
    for (Use& use : uses) {
        const Use& one = ones.at(use.unit);
        use.converted = use.amount * one.converted;
        use.convertedUnit = one.convertedUnit;
    }
}
} // namespace

BookUses::Parts::Parts(const DayRange& range)
{
    const bool isByMonth = range.grain() == DayRange::Grain::Month;
    for (QDate day = range.first; day <= range.last; day = day.addDays(1)) {
        if (days.empty() || !isByMonth || day.day() == 1) {
            days.push_back(day);
        }
        ofDays.push_back(days.size() - 1);
    }
}

BookUses::BookUses(BookDatabase& database, const std::vector<int>& tills)
    : database_(database)
    , tills_(tills)
{ }

int BookUses::place(int key) const
{
    return static_cast<int>(std::find(tills_.begin(), tills_.end(), key) - tills_.begin());
}

QString BookUses::keys() const
{
    std::vector<int> keys;
    for (const auto& [key, group] : groupOf_) {
        keys.push_back(key);
    }
    return BookStatements::array(keys);
}

void BookUses::readRecipes(const Reading& reading)
{
    const QVariantList tills{BookStatements::array(tills_)};
    std::map<int, Recipes> recipes;
    database_.read(
        BookStatements::doses(), tills,
        [&](const QSqlQuery& row) {
            recipes[row.value(0).toInt()].doses.push_back(
                {row.value(1).toLongLong(), row.value(2).toLongLong(), row.value(3).toString(),
                    row.value(4).toDouble(), row.value(5).toString()});
        },
        reading);
    database_.read(
        BookStatements::stockArticles(), tills,
        [&](const QSqlQuery& row) {
            const auto found = recipes.find(row.value(0).toInt());
            if (found != recipes.end()) {
                found->second.articles.push_back(
                    {row.value(1).toLongLong(), row.value(2).toString()});
            }
        },
        reading);
    for (auto& [key, own] : recipes) {
        groupOf_[key] = &groups_.try_emplace(std::move(own), Group{key, {}, {}}).first->second;
    }
}

/// Adds to each group what each of its tills sold in all of \a range.
void BookUses::readPeriod(const DayRange& range, const Reading& reading)
{
    const BookDays days(range);
    const QString tills = keys();
    database_.read(
        BookStatements::uses(),
        days.ofMonths() + QVariantList{tills} + days.besideMonths() + QVariantList{tills},
        [&](const QSqlQuery& row) {
            const int key = row.value(0).toInt();
            groupOf_.at(key)->periods[key][row.value(1).toString()] = {row.value(2).toLongLong()};
        },
        reading);
}

/// Adds to each group what its tills together sold in each of \a parts of \a range.
void BookUses::readParts(const DayRange& range, const Parts& parts, const Reading& reading)
{
    const BookDays days(range);
    const QDate behind = days.behind;
    const bool isByMonth = range.grain() == DayRange::Grain::Month;
    const QVariantList single
        = isByMonth ? days.besideMonths() : QVariantList{days.first, behind, behind, behind};
    const QVariantList months = isByMonth ? days.ofMonths() : QVariantList{behind, behind};
    const QVariantList tills{keys()};
    database_.read(
        BookStatements::usesOfParts(), QVariantList{days.first} + single + tills + months + tills,
        [&](const QSqlQuery& row) {
            std::vector<qint64>& sums
                = groupOf_.at(row.value(0).toInt())->parts[row.value(1).toString()];
            for (const qint64 number : numbers(row.value(2).toString())) {
                const std::size_t part
                    = parts.ofDays.at(static_cast<std::size_t>(number / BookStatements::linesEnd));
                sums.resize(std::max(sums.size(), part + 1));
                sums[part] += number % BookStatements::linesEnd;
            }
        },
        reading);
}

/// What the recipes that are not mixed used: each till's in the range, and all tills' together in
/// each part of it.
std::vector<Use> BookUses::plainUses(const Parts& parts, const Reading& reading) const
{
    std::vector<Use> uses;
    UseSums all;
    for (const auto& [recipes, group] : groups_) {
        if (recipes.isMixed()) {
            continue;
        }
        const Recipes::Parts doses = recipes.parts();
        for (const auto& [key, lines] : group.periods) {
            UseSums own;
            own.add(doses, lines);
            const std::vector<Use> found = own.uses({QDate()}, place(key));
            uses.insert(uses.end(), found.begin(), found.end());
        }
        all.add(doses, group.parts);
    }
    const std::vector<Use> found = all.uses(parts.days, 0);
    uses.insert(uses.end(), found.begin(), found.end());
    convert(uses, reading);
    return uses;
}

/// What the recipes of \a group used, as the till's statement has it, which takes its time.
std::vector<Use> BookUses::mixedUses(
    const Recipes& recipes, const Group& group, const Parts& parts, const Reading& reading) const
{
    UseTables tables;
    for (const Recipes::Article& article : recipes.articles) {
        tables.addStockArticle({article.id, article.article});
    }
    for (const Recipes::Dose& dose : recipes.doses) {
        tables.addDose({dose.line, dose.article, dose.composition, dose.dose, dose.unit});
    }
    std::vector<UseTables::Lines> lines;
    for (const auto& [key, period] : group.periods) {
        for (const auto& [article, counts] : period) {
            lines.push_back({QDate(), place(key), article, counts.front()});
        }
    }
    for (std::size_t part = 0; part < parts.days.size(); ++part) {
        for (const auto& [article, counts] : group.parts) {
            if (part < counts.size() && counts[part] != 0) {
                lines.push_back({parts.days[part], place(group.first), article, counts[part]});
            }
        }
    }
    tables.addLines(lines);
    return tables.uses(reading);
}

std::vector<Use> BookUses::of(const DayRange& range, const Reading& reading)
{
    readRecipes(reading);
    readPeriod(range, reading);
    const Parts parts(range);
    readParts(range, parts, reading);
    std::vector<Use> uses = plainUses(parts, reading);
    for (const auto& [recipes, group] : groups_) {
        if (recipes.isMixed()) {
            const std::vector<Use> found = mixedUses(recipes, group, parts, reading);
            uses.insert(uses.end(), found.begin(), found.end());
        }
    }
    // A day that is not valid is before all others.
    std::stable_sort(uses.begin(), uses.end(), [](const Use& one, const Use& other) {
        return std::pair(one.day, one.till) < std::pair(other.day, other.till);
    });
    return uses;
}
