// SPDX-License-Identifier: MIT
#pragma once

#include "db/Db.h"

/// The least that reading \a sql from "Vendel.db" costs: open, prepare, step, finalize and close
/// straight on SQLite's C interface, the rows copied into texts.
DbRows loadByFloor(const char* sql);

/// The least that running \a statements in one transaction costs, on one connection.
void transactByFloor(const std::vector<std::string>& statements);
