// SPDX-License-Identifier: MIT
#pragma once

#include "db/Db.h"

#include <QString>

/// The lines of the stock articles' recipes.
namespace Compositions {
/// The recipe of \a article by composition: line, article, composition, dose, unit.
DbRows of(const QString& article);

/// Adds a line to the recipe of \a article; \a dose is a number with "." as decimal separator.
void add(
    const QString& article, const QString& composition, const QString& dose, const QString& unit);

/// Removes one line.
void remove(const QString& line);

/// Makes \a line part of the recipe of \a article.
void move(const QString& line, const QString& article);
} // namespace Compositions
