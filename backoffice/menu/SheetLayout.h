// SPDX-License-Identifier: MIT
#pragma once

#include "backoffice/menu/CsvRows.h"

#include <QString>

#include <optional>
#include <vector>

/// What a file is imported as.
enum class ImportKind
{
    Menu,
    Recipes
};

/// A column that an import needs.
struct ImportColumn
{
    QString title;
    bool isNumber = false;
};

/// The columns of \a kind, in the order in which the lines of an ImportFile have them.
std::vector<ImportColumn> importColumns(ImportKind kind);

/// Where in a file each of those columns is.
struct SheetLayout
{
    /// For each column its place among the fields.
    std::vector<int> places;
    /// Number of fields that a record may have.
    int width = 0;
    bool hasHeading = false;

    /// The layout of a file whose first record with text is \a first. Throws ImportError when a
    /// column is missing, is there twice, or cannot be told from others without a heading.
    static SheetLayout of(const CsvRow& first, ImportKind kind);
};
