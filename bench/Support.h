// SPDX-License-Identifier: MIT
#pragma once

#include "db/Db.h"

class QTableView;

/// Throws std::runtime_error naming \a what unless it \a holds: a measurement of something else is
/// worth nothing.
void check(bool holds, const char* what);

/// Seconds of work that the process has done; what other processes do does not count.
double workedSeconds();

/// Bytes of memory that the process holds at present.
double residentBytes();

/// The least that shows \a texts in \a view: complete rows with their height in pixels, no text
/// composed.
void fillByFloor(QTableView& view, const DbRows& texts, int height);
