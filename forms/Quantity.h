// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <string>

/// A stored dose or consumption as the stock windows show it: in English fixed notation with
/// \a decimals ("1,234.50"); a text that is no number stays as it is.
QString formatQuantity(const std::string& text, int decimals = 2);
