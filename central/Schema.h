// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include <pqxx/pqxx>

/// The book's schema "vendel". All functions throw BookError.
namespace Schema {
/// The version that this program reads and writes.
inline constexpr int current = 2;

/// Makes the schema of the database at \a uri, or upgrades it, in one transaction; does nothing
/// when it is the current one.
void prepare(const std::string& uri);

/// Refuses a database without the current schema.
void requireCurrent(pqxx::work& transaction);
/// Refuses \a version if it is later than the current one.
void refuseLater(int version);
} // namespace Schema
