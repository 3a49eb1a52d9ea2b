// SPDX-License-Identifier: MIT
#pragma once

#include <string>

/// Who a till is in the book: a secret that is made once, in the file ".identite", and a name for
/// people. Two tills of one name are two.
namespace Identity {
/// What the book knows of the secret of the data folder \a folder (a descriptor), whose name is
/// \a path: its digest. The secret is made when there is none. Throws Refusal.
std::string digest(int folder, const std::string& path);

/// The name of the till in \a folder: \a asked for, and then remembered; else the remembered one,
/// else the machine's. Throws Refusal.
std::string name(int folder, const std::string& path, const std::string& asked);
} // namespace Identity
