// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>
#include <string_view>

/// The two text files that frame a receipt, in the working directory.
namespace ReceiptFiles {
/// QLatin1String measures its text at compile time under GCC only.
constexpr QLatin1String fileName(std::string_view name)
{
    return QLatin1String(name.data(), static_cast<int>(name.size()));
}

inline constexpr QLatin1String header = fileName("EnteteFormulaire.dat");
inline constexpr QLatin1String footer = fileName("PiedFormulaire.dat");

/// The UTF-8 text of \a file up to its first NUL, line ends untouched; nothing when the file is
/// missing or unreadable.
std::optional<QString> read(const QString& file);

/// Replaces what \a file holds by \a text as UTF-8, whole or not at all; symbolic links and the
/// file's mode stay. A missing file stays missing. Returns false when writing fails.
bool replace(const QString& file, const QString& text);
} // namespace ReceiptFiles
