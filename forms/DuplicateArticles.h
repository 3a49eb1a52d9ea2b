// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <vector>

/// Articles of the menu whose name occurs more than once; the newest row of a name is no duplicate.
namespace DuplicateArticles {
/// Number of surplus rows of the whole menu; nothing when there is none.
/// Throws std::exception when the database does not answer.
std::optional<int> count();

/// The ids of the surplus rows. Throws std::invalid_argument on an id that is no number.
std::vector<int> ids();
} // namespace DuplicateArticles
