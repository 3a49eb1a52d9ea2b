// SPDX-License-Identifier: MIT
#pragma once

#include "app/TicketTotals.h"
#include "store/Articles.h"
#include "store/Ticket.h"

class ListModel;
class QStandardItemModel;
class QTableView;

/// The two lists of the sales screen: the menu and the ticket.
namespace SalesLists {
enum MenuColumn
{
    MenuId,
    MenuMark,
    MenuArticle
};

enum TicketColumn
{
    TicketKey,
    TicketArticleId,
    TicketArticle
};

/// Labels, widths and looks.
void setUpMenu(QTableView& view, ListModel& model);
void setUpTicket(QTableView& view, ListModel& model);

/// Appends a row for each article, and for each line.
void fillMenu(QTableView& view, QStandardItemModel& model, const std::vector<Article>& articles);
void fillTicket(QTableView& view, QStandardItemModel& model, const std::vector<TicketLine>& lines);

/// Appends the yellow rows of \a totals to the ticket.
void appendTotals(QTableView& view, QStandardItemModel& model, const TicketTotals& totals);
} // namespace SalesLists
