// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <map>
#include <set>
#include <tuple>
#include <vector>

/// What a till's articles are made of, as its tables of the stock have it.
struct Recipes
{
    struct Article
    {
        qint64 id = 0;
        QString article;
    };
    struct Dose
    {
        qint64 line = 0;
        qint64 article = 0;
        QString composition;
        double dose = 0;
        QString unit;
    };
    /// What is used of one composition for one sale.
    struct Part
    {
        QString composition;
        QString unit;
        double dose = 0;

        bool operator<(const Part& other) const
        {
            return std::tie(composition, unit, dose)
                < std::tie(other.composition, other.unit, other.dose);
        }
    };
    /// By the name of an article as folded() writes it. Equal parts of an article count once, as on
    /// the till.
    using Parts = std::map<QString, std::set<Part>>;

    std::vector<Article> articles;
    std::vector<Dose> doses;

    /// Whether a composition has several units or spellings. Which one is shown is then up to the
    /// till's statement.
    bool isMixed() const;
    /// What articles are made of; a dose of no article is left out.
    Parts parts() const;

    /// An order in which the same recipes are equal.
    bool operator<(const Recipes& other) const;
};
