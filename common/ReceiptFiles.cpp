// SPDX-License-Identifier: MIT
#include "common/ReceiptFiles.h"

#include "common/SmallFile.h"

#include <QFile>
#include <QSaveFile>

std::optional<QString> ReceiptFiles::read(const QString& file)
{
    const auto bytes = SmallFile::read(file);
    if (!bytes) {
        return std::nullopt;
    }
    const auto end = bytes->indexOf('\0');
    return QString::fromUtf8(end < 0 ? *bytes : bytes->left(end));
}

bool ReceiptFiles::replace(const QString& file, const QString& text)
{
    if (!QFile::exists(file)) {
        return true;
    }
    const QByteArray bytes = text.toUtf8();
    // Nobody has seen the text of an unreadable file, and no receipt would show the new one.
    if (!read(file) || bytes.size() > SmallFile::maximumSize) {
        return false;
    }
    QSaveFile saved(file);
    if (!saved.open(QIODevice::WriteOnly)) {
        return false;
    }
    // A short write is no error to QSaveFile, which would put half a text in the file's place.
    return saved.write(bytes) == bytes.size() && saved.flush() && saved.commit();
}
