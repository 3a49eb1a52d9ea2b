// SPDX-License-Identifier: MIT
#pragma once

#include <QPixmap>

namespace Pictures {
/// In pixels.
inline constexpr int maximumSide = 4096;

/// The picture in \a file: PNG, JPEG, GIF or BMP. None when the file is missing; none and one
/// critical log line when SmallFile refuses it, it holds no such picture or one with a side longer
/// than maximumSide.
QPixmap read(const QString& file);
} // namespace Pictures
