// SPDX-License-Identifier: MIT
#pragma once

#include "db/Db.h"

/// The settings that a sale reads, one row of one column for each stored setting.
namespace Configuration {
/// The VAT rate in per cent.
DbRows taxRates();

/// The receipt printer's switch: "1" prints on paper, "0" shows the receipt on the screen.
DbRows printerSwitches();
} // namespace Configuration
