// SPDX-License-Identifier: MIT
#pragma once

#include "backoffice/sales/SentenceError.h"

#include <QString>

/// Why a file is not written.
class OutputError : public SentenceError
{
public:
    using SentenceError::SentenceError;
};

namespace OutputFile {
/// Writes \a bytes as the file \a path, which has either its old content or all of the new; "-" is
/// standard output, and a device or a pipe gets the bytes as they are. Throws OutputError.
void write(const QString& path, const QByteArray& bytes);
} // namespace OutputFile
