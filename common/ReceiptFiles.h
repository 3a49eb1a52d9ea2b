// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>

/// The two text files that frame a receipt, in the working directory.
namespace ReceiptFiles {
inline const QLatin1String header("EnteteFormulaire.dat");
inline const QLatin1String footer("PiedFormulaire.dat");

/// The UTF-8 text of \a file up to its first NUL, line ends untouched; nothing when the file is
/// missing or SmallFile refuses it.
std::optional<QString> read(const QString& file);

/// Replaces what \a file holds by \a text as UTF-8, whole or not at all; symbolic links and the
/// file's mode stay. A missing file stays missing. Returns false when writing fails or \a text is
/// too long to be read again, and leaves a file alone that cannot be read.
bool replace(const QString& file, const QString& text);
} // namespace ReceiptFiles
