// SPDX-License-Identifier: MIT
#pragma once

#include "launcher/Copies.h"

#include <string>
#include <vector>

class Speech;

/// The copies that can be put back, as they are shown and chosen.
namespace CopyChoice {
struct Item
{
    /// What --restaurer takes.
    std::string name;
    /// As "36K".
    std::string size;
};

/// What can be put back of \a copies: newest first, replaced databases after the dated copies. Only
/// names of letters, digits and hyphens.
std::vector<Item> items(const Copies& copies);

/// One line for each item.
std::string lines(const std::vector<Item>& items);

/// \a bytes as a shopkeeper reads them: rounded up to two digits or more, in the largest unit.
std::string readableSize(unsigned long long bytes);

/// The name that is chosen on the terminal or in a box; empty for none. Without either, the copies
/// are only shown.
std::string ask(const std::vector<Item>& items, const Speech& speech);
} // namespace CopyChoice
