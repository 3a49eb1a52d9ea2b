// SPDX-License-Identifier: MIT
#pragma once

#include "launcher/Sentences.h"

#include <optional>

struct Places;
class DataFolder;
class Speech;

/// What the till finds in its folder before it starts.
namespace Shop {
/// Makes the files that the till expects and that are not there. Throws Refusal.
void provideFiles(const DataFolder& folder, const Places& places);

/// Gives the till its language, and remembers the one that was \a asked for.
void applyLanguage(const DataFolder& folder, const Places& places, const Speech& speech,
    std::optional<Language> asked);
} // namespace Shop
