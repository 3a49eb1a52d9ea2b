// SPDX-License-Identifier: MIT
#pragma once

#include "backoffice/reports/Report.h"

#include <QByteArray>

/// How a spreadsheet of some country expects its files.
struct CsvFormat
{
    QChar separator;
    QChar decimalMark;

    /// ";" where a decimal comma needs the "," for itself, else ",".
    static CsvFormat of(const QLocale& locale);
};

/// \a table as a CSV file (RFC 4180), the column titles as its first line: UTF-8 with the mark by
/// which spreadsheets know it. Texts are quoted, numbers and dates are not: money has two decimals
/// and no unit, days are "2026-11-30" and months "2026-11", which a spreadsheet of any language
/// reads as dates.
QByteArray csv(const Table& table, const CsvFormat& format);

/// \a text as it is written to a file: one that a spreadsheet would take for a formula, because it
/// begins with "=", "+", "-", "@", a tab or a line break, has an apostrophe in front; so has one
/// that begins with apostrophes before such a character, so that who reads the file can take the
/// first one away.
QString withGuard(const QString& text);
