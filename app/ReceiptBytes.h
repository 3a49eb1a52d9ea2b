// SPDX-License-Identifier: MIT
#pragma once

#include "app/Receipt.h"

#include <string>

/// The receipt as the printer gets it: ESC/POS in code page 858.
/// Throws std::runtime_error when a character is not in that code page.
std::string receiptBytes(const Receipt& receipt);
