// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

/// Changes that several modules of this folder make together.
namespace Transaction {
/// Runs \a statements, all of them or none. Returns whether they are done.
bool run(const std::vector<std::string>& statements);
} // namespace Transaction
