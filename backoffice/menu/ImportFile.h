// SPDX-License-Identifier: MIT
#pragma once

#include "backoffice/menu/SheetLayout.h"
#include "backoffice/menu/WrittenNumber.h"

#include <QByteArray>
#include <QStringList>

#include <vector>

/// One line of a file that is to be imported.
struct ImportLine
{
    /// The line of the file, from 1, that it begins on.
    int line = 0;
    /// As they are in the file, in the order of importColumns().
    QStringList cells;
    /// The cell of the number column, as read.
    WrittenNumber number;
    /// Whether fields are left over: a comma in a price may have parted it.
    bool isTooWide = false;
};

/// A CSV file as an import sees it, whatever its encoding, separator and order of columns.
struct ImportFile
{
    ImportKind kind = ImportKind::Menu;
    std::vector<ImportLine> lines;

    /// Reads \a bytes. Throws ImportError when they are no table of \a kind.
    static ImportFile of(const QByteArray& bytes, ImportKind kind);
};
