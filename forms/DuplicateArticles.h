// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>
#include <string>
#include <vector>

/// Articles of the menu whose name occurs more than once; the newest row of a name is no duplicate.
namespace DuplicateArticles {
/// Number of surplus rows of the whole menu; nothing when there is none.
/// Throws std::exception when the database does not answer.
std::optional<int> count();

/// The same among the articles whose name contains \a term, in which "%" and "_" are SQL's
/// wildcards.
std::optional<int> countLike(const QString& term);

/// The ids of the surplus rows. Throws std::invalid_argument on an id that is no number and
/// std::out_of_range on one that no int holds.
std::vector<int> ids();

/// Whether the article with the key \a id is a surplus row; asks the database each time.
/// Throws like ids().
bool contain(const std::string& id);
} // namespace DuplicateArticles
