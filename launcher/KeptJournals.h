// SPDX-License-Identifier: MIT
#pragma once

#include <string>

/// The journals that the launcher itself kept beside a replaced database, by their contents: a
/// journal that came from anywhere else would be applied to a database that it does not belong to.
namespace KeptJournals {
/// Remembers the journal \a content, which becomes \a name in the folder \a shelf. Throws
/// std::system_error.
void remember(int shelf, const std::string& name, int content);

/// Whether the file \a content is what was remembered under \a name. Throws std::system_error.
bool isKnown(int shelf, const std::string& name, int content);
} // namespace KeptJournals
