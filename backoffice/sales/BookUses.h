// SPDX-License-Identifier: MIT
#pragma once

#include "backoffice/sales/BookDatabase.h"
#include "backoffice/sales/Recipes.h"
#include "backoffice/sales/UseSums.h"

#include <map>
#include <vector>

/// What the recipes of a book's tills used. The book says what was sold, in a row for each till and
/// article; doses are added up here.
class BookUses
{
public:
    /// Of the tills with the keys \a tills, which are Use::till's in this order.
    BookUses(BookDatabase& database, const std::vector<int>& tills);

    /// As SalesSource::uses() has it.
    std::vector<Use> of(const DayRange& range, const Reading& reading);

private:
    /// Tills that have the same recipes: their days are added up.
    struct Group
    {
        /// The key of the first one.
        int first = 0;
        /// What each till sold in all of the range, by its key.
        std::map<int, PartLines> periods;
        /// What they sold together in each part of it.
        PartLines parts;
    };
    /// The days or months of a range, which uses are shown of.
    struct Parts
    {
        /// The first day of each.
        std::vector<QDate> days;
        /// By the distance of a day from the first one.
        std::vector<std::size_t> ofDays;

        explicit Parts(const DayRange& range);
    };

    void readRecipes(const Reading& reading);
    void readPeriod(const DayRange& range, const Reading& reading);
    void readParts(const DayRange& range, const Parts& parts, const Reading& reading);
    std::vector<Use> plainUses(const Parts& parts, const Reading& reading) const;
    std::vector<Use> mixedUses(const Recipes& recipes, const Group& group, const Parts& parts,
        const Reading& reading) const;
    int place(int key) const;
    /// The tills that have recipes, as statements take them.
    QString keys() const;

    BookDatabase& database_;
    std::vector<int> tills_;
    std::map<Recipes, Group> groups_;
    /// By the key of a till that has recipes.
    std::map<int, Group*> groupOf_;
};
