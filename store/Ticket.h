// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <vector>

/// One line of the ticket in progress.
struct TicketLine
{
    QString key;
    QString articleId;
    QString article;
    QString price;
};

/// The lines of one article and price, taken together.
struct TicketGroup
{
    QString count;
    QString article;
    QString price;
    /// Count times price.
    QString amount;
};

/// The ticket in progress, as the database keeps it from one start of the till to the next.
namespace Ticket {
/// All lines in the order in which they were added.
std::vector<TicketLine> lines();

/// One for each article and price.
std::vector<TicketGroup> groups();

/// The sum of all prices, empty without a line. Throws std::out_of_range when the database does not
/// answer.
QString sum();

/// Adds one unit of the article \a id of the menu.
void addArticle(const QString& id);

/// Adds a line without an article; \a amount is a number as SQL writes it.
void addAmount(const QString& amount);

/// Removes the line with the key \a line.
void remove(const QString& line);

/// Removes all lines.
void clear();
} // namespace Ticket
