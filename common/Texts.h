// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <string>

/// A window's texts: looked up in its own translation context and, where that has no translation,
/// in the catalogue's, "FormVendelMessages".
struct Texts
{
    const char* context;

    /// The translation of the UTF-8 \a source; with a \a count of 0 or more "%n" becomes the count.
    QString operator()(const std::string& source, int count = -1) const;
};
