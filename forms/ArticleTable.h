// SPDX-License-Identifier: MIT
#pragma once

#include "db/Db.h"

#include <QString>

/// The menu's articles as they are stored.
namespace ArticleTable {
/// The columns of rows() and rowsLike().
enum Column
{
    Id,
    Article,
    Price
};

/// All articles in the order of their names.
DbRows rows();

/// The articles whose name contains \a term, in which "%" and "_" are SQL's wildcards.
DbRows rowsLike(const QString& term);

/// Adds an article; \a price is a number as SQL writes it.
void add(const QString& article, const QString& price);

/// Gives the article with the key \a id another name and price.
void change(const QString& id, const QString& article, const QString& price);

/// Removes the article with the key \a id.
void remove(const QString& id);
} // namespace ArticleTable
