// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

/// \a text as a terminal may be given it: what is not a visible character of UTF-8 becomes "?", so
/// that nothing in a file or a name moves the cursor, changes colours or turns the direction of
/// reading. What is longer than \a longest characters ends with "…".
std::string plainText(std::string_view text, std::size_t longest = 200);
