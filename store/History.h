// SPDX-License-Identifier: MIT
#pragma once

#include "common/Period.h"
#include "store/Ticket.h"

#include <QString>

#include <vector>

/// One line of a past sale.
struct SoldLine
{
    QString article;
    QString price;
    /// "yyyy-MM-dd HH:mm:ss.zzz", by the wall clock.
    QString moment;
};

/// The lines of one article and price in a period.
struct SoldGroup
{
    QString count;
    QString article;
    QString price;
    /// Count times price.
    QString amount;
};

/// The history of what was sold.
namespace History {
/// Copies \a lines of the ticket into the history, all of them or none; the database dates them.
/// Returns whether they are recorded.
bool record(const std::vector<TicketLine>& lines);

/// The days with a sale, "yyyy-MM-dd".
std::vector<QString> days();

/// The lines sold in \a period, in the order of their moments. Lines that show the same text share
/// one string.
std::vector<SoldLine> lines(const Period& period);

/// The same, one for each article and price.
std::vector<SoldGroup> groups(const Period& period);

/// The sum of all prices in \a period, empty without a sale. Throws std::out_of_range when the
/// database does not answer.
QString total(const Period& period);

/// Deletes the lines of \a period for good.
void purge(const Period& period);
} // namespace History
