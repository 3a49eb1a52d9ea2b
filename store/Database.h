// SPDX-License-Identifier: MIT
#pragma once

/// The shop's database as a whole.
namespace Database {
/// Creates the tables and the default settings unless the working directory holds "Vendel.db".
void createIfMissing();
} // namespace Database
