// SPDX-License-Identifier: MIT
#pragma once

class DataFolder;
class Speech;

/// What is looked at before each start.
namespace StartCheck {
/// Refuses a database that the till cannot use, and sets aside an empty one that a first start did
/// not finish. Throws Refusal.
void database(const DataFolder& folder, const Speech& speech);

/// Makes a copy when one is due; says so and returns false when that fails. Throws Refusal when it
/// shows that the database is damaged.
bool copy(const DataFolder& folder, const Speech& speech);

/// Says so when the second place of the copies has not been reached for long.
void secondPlace(const DataFolder& folder, const Speech& speech);
} // namespace StartCheck
