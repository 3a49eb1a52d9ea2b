// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string_view>

/// The book's schema "vendel".
namespace Schema {
/// The statements that make each version from the one before it; the first makes all.
extern const std::array<std::string_view, 2> versions;

/// The version that this program reads and writes.
inline constexpr int current = 2;
} // namespace Schema
