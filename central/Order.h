// SPDX-License-Identifier: MIT
#pragma once

#include "launcher/Sentences.h"

#include <optional>
#include <string>
#include <vector>

enum class CentralAction
{
    Prepare,
    Send,
    Follow,
    TakeOver,
    Help,
    Version
};

/// What the command line asks for.
struct CentralOrder
{
    CentralAction action = CentralAction::Help;
    /// Empty for the remembered one.
    std::string uri;
    /// The data folder; empty for the user's own.
    std::string folder;
    /// The till's name; empty for the remembered one.
    std::string name;
    std::optional<Language> language;
};

/// A command line that is answered with the usage.
struct CentralBadUsage
{
    std::optional<Language> language;
};

/// The order in \a arguments, which do not include the command; throws CentralBadUsage.
CentralOrder parseCentralOrder(const std::vector<std::string>& arguments);
