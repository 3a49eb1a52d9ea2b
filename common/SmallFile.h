// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

/// Files that somebody else put into the working directory: texts, pictures, a translation.
namespace SmallFile {
/// In bytes.
inline constexpr int maximumSize = 4 * 1024 * 1024;

/// The bytes of \a file, through symbolic links. Nothing when it is missing; nothing and one
/// critical log line when it cannot be read, is no regular file or is larger than maximumSize.
/// Never waits, whatever has the name.
std::optional<QByteArray> read(const QString& file);
} // namespace SmallFile
