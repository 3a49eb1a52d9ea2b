// SPDX-License-Identifier: MIT
#include "backoffice/sales/BookUses.h"

#include "backoffice/sales/BookStatements.h"

#include <algorithm>
#include <set>

namespace {
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
} // namespace

BookUses::BookUses(BookDatabase& database, const std::vector<int>& tills)
    : database_(database)
    , tills_(tills)
{ }

int BookUses::place(int key) const
{
    return static_cast<int>(std::find(tills_.begin(), tills_.end(), key) - tills_.begin());
}

void BookUses::readGroups(const Reading& reading)
{
    std::map<QString, int> known;
    database_.read(
        BookStatements::recipes(), {BookStatements::array(tills_)},
        [&](const QSqlQuery& row) {
            const int key = row.value(0).toInt();
            const int first = known.try_emplace(row.value(1).toString(), key).first->second;
            Group& group = groups_[first];
            group.keys.push_back(key);
            group.isMixed = row.value(2).toBool();
        },
        reading);
}

void BookUses::readRecipes(const Reading& reading)
{
    std::vector<int> firsts;
    for (const auto& [key, group] : groups_) {
        firsts.push_back(key);
    }
    const QVariantList tills{BookStatements::array(firsts)};
    database_.read(
        BookStatements::stockArticles(), tills,
        [&](const QSqlQuery& row) {
            groups_.at(row.value(0).toInt()).articles.push_back({row.value(1), row.value(2)});
        },
        reading);
    database_.read(
        BookStatements::doses(), tills,
        [&](const QSqlQuery& row) {
            groups_.at(row.value(0).toInt())
                .doses.push_back(
                    {row.value(1), row.value(2), row.value(3), row.value(4), row.value(5)});
        },
        reading);
}

/// Adds to each group what each of its tills sold in all of the range.
void BookUses::readPeriod(const BookDays& days, const Reading& reading)
{
    std::map<int, Group*> groupOf;
    for (auto& [first, group] : groups_) {
        for (const int key : group.keys) {
            groupOf[key] = &group;
        }
    }
    const QString tills = BookStatements::array(tills_);
    database_.read(
        BookStatements::uses(),
        days.ofMonths() + QVariantList{tills} + days.besideMonths() + QVariantList{tills},
        [&](const QSqlQuery& row) {
            const int key = row.value(0).toInt();
            groupOf.at(key)->lines.push_back(
                {QDate(), place(key), row.value(1).toString(), row.value(2).toLongLong()});
        },
        reading);
}

/// What groups, mixed ones or the others, sold on each day, or in each month, of \a range.
BookUses::Parts BookUses::partsOf(bool isMixed, const DayRange& range) const
{
    std::vector<int> members;
    std::vector<int> firsts;
    for (const auto& [first, group] : groups_) {
        if (group.isMixed == isMixed) {
            members.insert(members.end(), group.keys.begin(), group.keys.end());
            firsts.resize(members.size(), first);
        }
    }
    if (members.empty()) {
        return {};
    }
    const QVariantList tills{BookStatements::array(members), BookStatements::array(firsts)};
    const BookDays days(range);
    if (range.grain() == DayRange::Grain::Month) {
        return {BookStatements::usesByMonth(),
            QVariantList{days.first} + days.besideMonths() + days.ofMonths() + tills};
    }
    return {BookStatements::usesByDay(), tills + QVariantList{days.first, days.behind}};
}

/// Adds to each mixed group what its tills together sold in each part of \a range.
void BookUses::readMixedParts(const DayRange& range, const Reading& reading)
{
    const Parts parts = partsOf(true, range);
    if (parts.sql.isEmpty()) {
        return;
    }
    database_.read(
        BookStatements::inOrder(parts.sql), parts.values,
        [&](const QSqlQuery& row) {
            const int first = row.value(0).toInt();
            groups_.at(first).lines.push_back({row.value(1).toDate(), place(first),
                row.value(2).toString(), row.value(3).toLongLong()});
        },
        reading);
}

/// What the groups that are not mixed used together in each part of \a range. Where a composition
/// has one unit, the till's statement adds up doses; so does the book, for all tills at once.
std::vector<Use> BookUses::readPlainParts(const DayRange& range, const Reading& reading)
{
    const Parts parts = partsOf(false, range);
    if (parts.sql.isEmpty()) {
        return {};
    }
    std::vector<Use> uses;
    std::set<QString> units;
    database_.read(
        BookStatements::composed(parts.sql), parts.values,
        [&](const QSqlQuery& row) {
            uses.push_back({row.value(0).toDate(), row.value(1).toString(), row.value(3).toDouble(),
                row.value(2).toString(), 0, {}, 0});
            units.insert(uses.back().unit);
        },
        reading);
    const std::map<QString, Use> ones = oneOfEach(units, reading);
    for (Use& use : uses) {
        const Use& one = ones.at(use.unit);
        use.converted = use.amount * one.converted;
        use.convertedUnit = one.convertedUnit;
    }
    return uses;
}

std::vector<Use> BookUses::of(const DayRange& range, const Reading& reading)
{
    readGroups(reading);
    readRecipes(reading);
    readPeriod(BookDays(range), reading);
    readMixedParts(range, reading);
    std::vector<Use> uses = readPlainParts(range, reading);
    for (const auto& [first, group] : groups_) {
        UseTables tables;
        for (const QVariantList& row : group.articles) {
            tables.addStockArticle(row);
        }
        for (const QVariantList& row : group.doses) {
            tables.addDose(row);
        }
        tables.addLines(group.lines);
        const std::vector<Use> found = tables.uses(reading);
        uses.insert(uses.end(), found.begin(), found.end());
    }
    // A day that is not valid is before all others.
    std::stable_sort(uses.begin(), uses.end(), [](const Use& one, const Use& other) {
        return std::pair(one.day, one.till) < std::pair(other.day, other.till);
    });
    return uses;
}
