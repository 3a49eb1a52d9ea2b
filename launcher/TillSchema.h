// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string>
#include <string_view>

/// What a database of the till consists of. A database that somebody else made may contain SQL that
/// acts when it is read or written, so nothing but this is ever opened further.
namespace TillSchema {
inline constexpr std::array<std::string_view, 6> tables{
    "Article", "ArticleStock", "Historique", "DoseStock", "Config", "Ticket"};

/// A row of SQLite's list of tables, indexes and the like.
struct Object
{
    std::string_view type;
    std::string_view name;
    std::string_view table;
    std::string_view sql;
};

/// \a sql without what makes no difference: blanks, and the case of letters outside quotes.
std::string normalized(std::string_view sql);

/// Whether \a object is one of the till's, or one that SQLite keeps for itself.
bool isOwn(const Object& object);

/// Whether \a object is a table with the name of one of the till's, whatever its columns are.
bool isTillTable(const Object& object);
} // namespace TillSchema
