// SPDX-License-Identifier: MIT
#pragma once

#include "backoffice/reports/Report.h"

/// The menu and the recipes of the database in the working directory as tables for files, which an
/// import reads back without a change. Both throw ImportError when the database does not answer.
namespace MenuExport {
Table menu();

/// The recipes of the articles that are on the menu.
Table recipes();
} // namespace MenuExport
