// SPDX-License-Identifier: MIT
#include "common/ReceiptFiles.h"

#include <QFile>
#include <QSaveFile>

std::optional<QString> ReceiptFiles::read(const QString& path)
{
    QFile file(path);
    // Not in text mode: Qt would take the "\r" of Windows line ends away.
    if (!file.exists() || !file.open(QIODevice::ReadOnly)) {
        return std::nullopt;
    }
    const QByteArray bytes = file.readAll();
    const int end = bytes.indexOf('\0');
    return QString::fromUtf8(end < 0 ? bytes : bytes.left(end));
}

bool ReceiptFiles::replace(const QString& path, const QString& text)
{
    if (!QFile::exists(path)) {
        return true;
    }
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        return false;
    }
    const QByteArray bytes = text.toUtf8();
    // A short write is no error to QSaveFile, which would put half a text in the file's place.
    return file.write(bytes) == bytes.size() && file.flush() && file.commit();
}
