// SPDX-License-Identifier: MIT
#pragma once

#include "db/Db.h"

/// The least that reading \a sql from "Vendel.db" costs: open, prepare, step, finalize and close
/// straight on SQLite's C interface, the rows copied into texts.
DbRows loadByFloor(const char* sql);
