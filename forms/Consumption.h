// SPDX-License-Identifier: MIT
#pragma once

#include "db/Db.h"

#include <QString>

/// What the sales between two dates consumed by the recipes of the stock. Dates are text as
/// date_heure holds it, with or without a time of day; a second date without one excludes its day.
namespace Consumption {
/// One row per article and composition: sales, article, composition, dose, unit, sales x dose,
/// unit.
DbRows details(const QString& from, const QString& to);

/// One row per composition: composition, consumption, unit, consumption in the larger unit, that
/// unit; the last two are empty where there is no larger one.
DbRows totals(const QString& from, const QString& to);
} // namespace Consumption
