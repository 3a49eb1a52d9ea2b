// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <string>

/// A window's texts: looked up in one translation context and, where that has no translation, in
/// the catalogue's, "FormVendelMessages".
struct Texts
{
    const char* context;

    /// The translation of the UTF-8 \a source; with a \a count of 0 or more "%n" becomes the count.
    QString operator()(const std::string& source, int count = -1) const;

    /// The translation of a caption of the window class \a window: of the contexts named after the
    /// class, after the class and "Messages", and the catalogue's, the first that has one counts.
    static QString caption(const char* window, const QString& source);
};
