// SPDX-License-Identifier: MIT
#pragma once

#include <string>

/// Copies of a database that may be in use.
namespace Backup {
enum class Pace
{
    /// As fast as possible, while nobody else needs the database.
    Full,
    /// In small steps, so that a till at work waits for none of them.
    Gentle
};

/// Copies the database \a source into the empty file \a target, which then has no journal and has
/// been found sound. Neither is synced. Throws DatabaseError.
void copy(const std::string& source, const std::string& target, Pace pace);

/// The same, but nobody has checked \a target yet.
void bring(const std::string& source, const std::string& target, Pace pace);
} // namespace Backup
