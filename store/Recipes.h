// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <vector>

/// One line of a stock article's recipe.
struct RecipeLine
{
    QString key;
    /// The id of the stock article.
    QString article;
    QString composition;
    QString dose;
    QString unit;
};

/// The recipes of the stock articles.
namespace Recipes {
/// The recipe of the stock article with the id \a article, in the order of its compositions.
std::vector<RecipeLine> of(const QString& article);

/// The recipes of all stock articles, in the order of their keys.
std::vector<RecipeLine> all();

/// Adds a line to the recipe of \a article; \a dose is a number with "." as decimal separator.
void add(
    const QString& article, const QString& composition, const QString& dose, const QString& unit);

/// The statement by which add() adds it.
QString adding(
    const QString& article, const QString& composition, const QString& dose, const QString& unit);
/// A statement that gives \a line another dose and unit.
QString dosing(const QString& line, const QString& dose, const QString& unit);

/// Removes the line with the key \a line.
void remove(const QString& line);

/// Makes \a line part of the recipe of \a article.
void move(const QString& line, const QString& article);
} // namespace Recipes
