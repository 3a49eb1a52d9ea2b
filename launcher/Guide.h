// SPDX-License-Identifier: MIT
#pragma once

#include <string>

class Speech;

/// The guide for cashier and owner.
namespace Guide {
/// Shows \a file in the desktop's browser, without waiting for it to be read. Where no browser
/// opens, \a file is printed on standard output, and \a speech says what to do with it. Throws
/// Refusal when there is no such file.
void open(const std::string& file, const Speech& speech);
} // namespace Guide
