// SPDX-License-Identifier: MIT
#pragma once

#include "Print/escpospp/EscPos.h"

#include <optional>
#include <string>

/// \a dots as bit-image bands, each ended by a line feed: 24 dots high (double density) for
/// \a imageMode 0, 8 dots high otherwise; rows missing in the last band are white.
/// Empty for a picture without dots. Nothing when rows differ in length or are wider than 65,535
/// dots, the command's 16-bit column count.
std::optional<std::string> renderBitmap(const DotMatrix& dots, int imageMode);
