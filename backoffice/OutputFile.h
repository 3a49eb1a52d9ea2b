// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <exception>

/// Why a file is not written.
class OutputError : public std::exception
{
public:
    explicit OutputError(QString sentence)
        : sentence_(std::move(sentence))
        , bytes_(sentence_.toUtf8())
    { }

    /// One sentence for the owner, in the language of the program.
    const QString& sentence() const { return sentence_; }
    const char* what() const noexcept override { return bytes_.constData(); }

private:
    QString sentence_;
    QByteArray bytes_;
};

namespace OutputFile {
/// Writes \a bytes as the file \a path, which has either its old content or all of the new; "-" is
/// standard output, and a device or a pipe gets the bytes as they are. Throws OutputError.
void write(const QString& path, const QByteArray& bytes);
} // namespace OutputFile
