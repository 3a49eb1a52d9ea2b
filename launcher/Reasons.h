// SPDX-License-Identifier: MIT
#pragma once

#include "launcher/Sentences.h"

/// Why something failed, in a shopkeeper's words instead of an engineer's.
namespace Reasons {
/// For the errno \a number.
Words ofSystem(int number);

/// For SQLite's result code \a code, with or without its details.
Words ofSqlite(int code);

/// For the exit status \a status of the command that sends sales to the central book.
Words ofBook(int status);
} // namespace Reasons
