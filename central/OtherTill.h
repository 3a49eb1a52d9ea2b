// SPDX-License-Identifier: MIT
#pragma once

#include "central/Line.h"

#include <string>
#include <vector>

#include <pqxx/pqxx>

/// A till of the book that has sold what another machine has in its history: that one holds a copy
/// of its database.
struct OtherTill
{
    int id = 0;
    /// What the book knows of its secret.
    std::string identity;
    std::string name;
    /// How many of the sales it has.
    std::size_t sales = 0;

    /// The tills but \a own that have sold \a sales, which are TillLines::firstSales(), as far as
    /// \a own has not sold them, too; the oldest first.
    static std::vector<OtherTill> that(
        pqxx::work& transaction, int own, const std::vector<Line>& sales);
    /// Their names, as they are shown.
    static std::string names(const std::vector<OtherTill>& tills);
};
