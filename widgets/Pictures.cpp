// SPDX-License-Identifier: MIT
#include "widgets/Pictures.h"

#include "common/SmallFile.h"

#include <QBuffer>
#include <QImageReader>

#include <algorithm>
#include <array>
#include <stdexcept>

namespace {
/// Formats whose header states the picture's true size. An icon's header may state another one.
constexpr std::array<const char*, 4> formats{"png", "jpeg", "gif", "bmp"};

QImage decoded(QByteArray bytes)
{
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer);
    const QByteArray format = reader.format();
    if (std::find(formats.begin(), formats.end(), format) == formats.end()) {
        throw std::runtime_error("it is not a PNG, JPEG, GIF or BMP");
    }
    const QSize size = reader.size();
    if (size.width() > Pictures::maximumSide || size.height() > Pictures::maximumSide) {
        throw std::runtime_error("it has a side of more than 4096 pixels");
    }
    QImage image;
    if (size.isEmpty() || !reader.read(&image)) {
        throw std::runtime_error("it is damaged");
    }
    return image;
}
} // namespace

QPixmap Pictures::read(const QString& file)
{
    const auto bytes = SmallFile::read(file);
    if (!bytes) {
        return {};
    }
    try {
        return QPixmap::fromImage(decoded(*bytes));
    } catch (const std::runtime_error& error) {
        qCritical("%s is not shown: %s", qUtf8Printable(file), error.what());
        return {};
    }
}
