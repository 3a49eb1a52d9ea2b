// SPDX-License-Identifier: MIT
#pragma once

#include "Print/escpospp/EscPos.h"

#include <QByteArray>
#include <QFile>
#include <QTemporaryDir>

/// Files of pictures in a folder of their own.
class Pictures
{
public:
    /// The path of the file \a name.
    QString path(const QString& name) const { return folder_.filePath(name); }

    /// A file that holds \a bytes, until the next one is asked for.
    std::string fileHolding(const QByteArray& bytes) const
    {
        QFile file(path("picture"));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
            qFatal("cannot write the picture");
        }
        return file.fileName().toStdString();
    }

    /// What a file of \a bytes is loaded as.
    DotMatrix loaded(const QByteArray& bytes) const
    {
        return EscPos::loadImage(fileHolding(bytes));
    }

private:
    QTemporaryDir folder_;
};

/// A grey picture of \a count white pixels behind its \a head.
inline QByteArray whitePixels(int count, const QByteArray& head)
{
    return head + QByteArray(count, '\xFF');
}
