// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>
#include <string>

/// What was stored at one moment, to recognise whether it still is.
class Snapshot
{
public:
    enum class Part
    {
        /// The menu's articles.
        Menu,
        /// Those, the articles of the stock and their recipes.
        Recipes
    };

    /// What is stored now; nothing when the database does not answer.
    static std::optional<Snapshot> of(Part part);

    /// Number of articles on the menu, and for recipes of the lines of these in addition.
    std::size_t rows() const { return rows_; }

    bool operator==(const Snapshot& other) const { return text_ == other.text_; }

    /// A statement that fails unless all is still stored as it was: with it as the first of a
    /// transaction, the others change what they were meant for, or nothing.
    std::string requireUnchanged() const;

private:
    Snapshot(Part part, std::size_t rows, QString text);

    Part part_;
    std::size_t rows_;
    QString text_;
};
