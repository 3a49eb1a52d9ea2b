// SPDX-License-Identifier: MIT
#pragma once

#include "backoffice/sales/SentenceError.h"

#include <QByteArray>
#include <QString>

/// Why a file cannot be imported as a whole, or why nothing was.
class ImportError : public SentenceError
{
public:
    using SentenceError::SentenceError;
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
