// SPDX-License-Identifier: MIT
#pragma once

#include "backoffice/sales/BookDatabase.h"
#include "backoffice/sales/BookDays.h"
#include "backoffice/sales/UseTables.h"

#include <map>
#include <vector>

/// What the recipes of a book's tills used.
class BookUses
{
public:
    /// Of the tills with the keys \a tills, which are Use::till's in this order.
    BookUses(BookDatabase& database, const std::vector<int>& tills);

    /// As SalesSource::uses() has it.
    std::vector<Use> of(const DayRange& range, const Reading& reading);

private:
    /// Tills that have the same recipes are computed together.
    struct Group
    {
        /// The first one's recipes are all of them's.
        std::vector<int> keys;
        /// Whether a composition stands in them in several units or spellings. Which one is shown
        /// is then up to the till's statement, which takes its time.
        bool isMixed = false;
        std::vector<QVariantList> articles;
        std::vector<QVariantList> doses;
        std::vector<UseTables::Lines> lines;
    };

    /// A statement of the lines in each part of a range, with its values.
    struct Parts
    {
        QString sql;
        QVariantList values;
    };

    void readGroups(const Reading& reading);
    void readRecipes(const Reading& reading);
    void readPeriod(const BookDays& days, const Reading& reading);
    Parts partsOf(bool isMixed, const DayRange& range) const;
    void readMixedParts(const DayRange& range, const Reading& reading);
    std::vector<Use> readPlainParts(const DayRange& range, const Reading& reading);
    int place(int key) const;

    BookDatabase& database_;
    std::vector<int> tills_;
    /// By the key of the first till.
    std::map<int, Group> groups_;
};
