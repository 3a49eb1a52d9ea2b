// SPDX-License-Identifier: MIT
#pragma once

#include "backoffice/reports/Report.h"

#include <QByteArray>

class QPrinter;

/// \a report on sheets of A4 as a PDF file, with its fonts.
QByteArray pdf(const Report& report, const QLocale& locale);

/// The first of these sheets as a PNG file, 150 dots per inch.
QByteArray png(const Report& report, const QLocale& locale);

/// Prints the sheets that \a printer was told to print, as large as its paper allows. False where
/// the printer does not start.
bool print(const Report& report, QPrinter& printer, const QLocale& locale);
