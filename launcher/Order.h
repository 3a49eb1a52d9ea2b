// SPDX-License-Identifier: MIT
#pragma once

#include "launcher/Sentences.h"
#include "launcher/TillSize.h"

#include <optional>
#include <string>
#include <vector>

enum class Action
{
    Start,
    Restore,
    SecondPlace,
    Book,
    State,
    Help,
    Guide,
    Version
};

/// What the command line asks for.
struct Order
{
    Action action = Action::Start;
    /// The language asked for, which is then remembered.
    std::optional<Language> language;
    /// The size asked for, which is then remembered.
    std::optional<TillSize> size;
    /// The copy to put back; empty when it is still to be chosen.
    std::string copy;
    /// The folder that copies go to as well, "-" for none any more.
    std::string folder;
    /// The address of the central book, "-" for none any more.
    std::string book;
};

/// A command line that is answered with the usage.
struct BadUsage
{
    /// The language asked for before the mistake.
    std::optional<Language> language;
};

/// The order in \a arguments, which do not include the command; throws BadUsage.
Order parseOrder(const std::vector<std::string>& arguments);
