// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QStringList>

#include <limits>
#include <vector>

/// One record of a CSV file.
struct CsvRow
{
    /// The line of the file, from 1, that it begins on.
    int line = 0;
    QStringList fields;
};

namespace CsvRows {
/// The first \a most records of the UTF-8 text \a text whose fields \a separator parts; records
/// without any text are left out. Throws ImportError for a quote that is never closed and for more
/// fields than a table has.
std::vector<CsvRow> of(
    const QByteArray& text, char separator, std::size_t most = std::numeric_limits<int>::max());
} // namespace CsvRows
