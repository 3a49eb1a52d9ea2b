// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>

/// Makes the sample shop in the working directory: the database "Vendel.db" with menu, settings,
/// stock and the sales of the \a salesFor before \a until, and the two receipt files.
/// Throws std::runtime_error when something cannot be written.
void makeSampleShop(std::chrono::sys_days until, std::chrono::days salesFor);
