// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

/// What the program asks of malloc and realloc; a sanitizer keeps its own books, so that it is not
/// seen there.
namespace Allocations {
/// Whether requests are seen.
extern const bool areSeen;

/// The next request for so many \a bytes or more finds no memory; at 0 each finds some.
void refuseFrom(std::size_t bytes);

/// The largest block in bytes that realloc was asked for since the last call.
std::size_t takeLargestRealloc();
} // namespace Allocations
