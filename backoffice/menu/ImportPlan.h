// SPDX-License-Identifier: MIT
#pragma once

#include "backoffice/menu/ImportFile.h"

#include <QLocale>

#include <string>
#include <vector>

/// What an import does with a line.
enum class ImportAction
{
    New,
    Changed,
    Unchanged,
    Refused
};

/// A line of a file and what becomes of it.
struct PlannedLine
{
    ImportLine line;
    ImportAction action = ImportAction::Unchanged;
    /// Why a line is refused, what changes ("2,50 → 3,00"), or what to look after.
    QString remark;
    /// Whether the remark is a warning about a line that is imported.
    bool isWarning = false;
};

/// What an import would do to the shop as it was when the plan was made.
struct ImportPlan
{
    ImportKind kind = ImportKind::Menu;
    std::vector<PlannedLine> lines;
    /// What the shop's database has to run, all or nothing. It refuses to when the menu or the
    /// recipes are no longer those that the plan was made for.
    std::vector<std::string> statements;

    /// Number of lines that \a action is for.
    int count(ImportAction action) const;
    /// Number of lines that change something.
    int changes() const { return count(ImportAction::New) + count(ImportAction::Changed); }

    /// Compares \a file with the menu or the recipes of the database in the working directory.
    /// Numbers in remarks are written as \a locale does. Throws ImportError when the database does
    /// not answer.
    static ImportPlan of(const ImportFile& file, const QLocale& locale);
};
