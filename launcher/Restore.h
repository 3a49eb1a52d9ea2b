// SPDX-License-Identifier: MIT
#pragma once

#include <string>

class DataFolder;
class Speech;

/// Putting a copy of the database back. Wherever it is cut off, the till finds a sound database:
/// the old one or the copy.
namespace Restore {
/// Puts the copy \a name back, or the one that is chosen when it is empty: while that is asked, the
/// locked \a folder is unlocked, and a till may start. Throws Refusal.
void run(DataFolder& folder, const Speech& speech, std::string name);
} // namespace Restore
