// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <exception>

/// Why a file cannot be imported as a whole, or why nothing was.
class ImportError : public std::exception
{
public:
    explicit ImportError(QString sentence)
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

/// The text in files that spreadsheets and editors have written.
namespace SheetText {
/// The bytes of the file \a path, at most SmallFile::maximumSize. Throws ImportError.
QByteArray bytesOf(const QString& path);

/// \a bytes as text: UTF-8, UTF-16 with its mark, or else Windows-1252. Throws ImportError when it
/// is none of them.
QString decoded(const QByteArray& bytes);

/// \a cell without the apostrophe that keeps a spreadsheet from taking a text for a formula.
QString withoutGuard(const QString& cell);
} // namespace SheetText
