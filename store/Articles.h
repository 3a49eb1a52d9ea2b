// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>
#include <vector>

/// An article of the menu as it is stored.
struct Article
{
    QString id;
    QString name;
    QString price;
};

/// The table of the menu's articles.
namespace Articles {
/// All articles in the order of their names. Empty when there is none, or when the database did not
/// answer.
std::vector<Article> all();

/// Those whose name contains \a term, in which "%" and "_" are SQL's wildcards.
std::vector<Article> like(const QString& term);

/// Adds an article; \a price is a number as SQL writes it.
void add(const QString& name, const QString& price);

/// The statement by which add() adds it.
QString adding(const QString& name, const QString& price);
/// A statement that gives the article with the key \a id another price.
QString pricing(const QString& id, const QString& price);

/// Gives the article with the key \a id another name and price.
void change(const QString& id, const QString& name, const QString& price);

/// Removes the article with the key \a id.
void remove(const QString& id);

/// Number of the articles whose name occurs once more, in a newer row; nothing when there is none.
/// Throws std::exception when the database does not answer.
std::optional<int> countDuplicates();

/// The same among the articles whose name contains \a term.
std::optional<int> countDuplicatesLike(const QString& term);

/// The ids of those articles. Throws std::invalid_argument on an id that is no number and
/// std::out_of_range on one that no int holds.
std::vector<int> duplicateIds();
} // namespace Articles
