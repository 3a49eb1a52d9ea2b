// SPDX-License-Identifier: MIT
#pragma once

#include "db/Db.h"

#include <QString>

#include <string>

/// The ticket in progress, as the database keeps it from one start of the till to the next.
namespace TicketTable {
/// Columns of rows() and of the ticket list.
enum Column
{
    Line,
    ArticleId,
    Article,
    Price
};

/// All lines: line key, article id, article, price.
DbRows rows();

/// One row for each article and price: count, article, price, count times price.
DbRows groups();

/// One row with the sum of all prices.
DbRows sum();

/// Adds one unit of the article \a id of the menu.
void addArticle(const QString& id);

/// Adds a line without an article; \a amount is a number as SQL writes it.
void addAmount(const QString& amount);

/// Removes the line with the key \a line.
void remove(const QString& line);

/// Removes all lines.
void clear();
} // namespace TicketTable
