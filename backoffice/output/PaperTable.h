// SPDX-License-Identifier: MIT
#pragma once

#include "backoffice/reports/Report.h"

class PaperComposer;

/// Adds \a table to \a composer's sheets, its headings on each.
void addTable(PaperComposer& composer, const Table& table);
