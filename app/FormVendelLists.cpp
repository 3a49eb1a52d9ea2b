// SPDX-License-Identifier: MIT
#include "app/Configuration.h"
#include "app/FormVendel.h"
#include "app/FormVendelTexts.h"
#include "app/TicketTable.h"
#include "app/TicketTotals.h"
#include "common/Lists.h"
#include "common/MessageBoxes.h"
#include "common/Messages.h"
#include "common/Money.h"
#include "common/SlotGuard.h"
#include "forms/DuplicateArticles.h"
#include "ui_FormVendel.h"

#include <algorithm>

namespace {
enum MenuColumn
{
    MenuId,
    MenuMark
};

/// A total's row, which the ticket's list tells from a line by its "->".
QStringList totalCells(const QString& label, const QString& amount)
{
    return {QStringLiteral("0"), QStringLiteral("->"), label, amount};
}

QString keyOf(const QModelIndex& index)
{
    return index.sibling(index.row(), 0).data().toString();
}
} // namespace

void FormVendel::on_btn_Afficher_clicked()
{
    guarded("Errors FormVendel on_btn_Afficher_clicked : ", [this] { showMenu(); });
}

void FormVendel::showMenu()
{
    clearList(*modelMenu_);
    const DbRows articles = Db::DbLoad("select * from Article order by Article asc");
    if (articles.empty()) {
        notice(this, catalogueTexts, Messages::Messages25);
        return;
    }
    {
        ListFiller filler(*ui_->tableView1, *modelMenu_);
        for (const auto& article : articles) {
            filler.add({QString::fromStdString(article.at(0)), QString(), formatCell(article.at(1)),
                formatCell(article.at(2))});
        }
    }
    const auto duplicates = DuplicateArticles::count();
    if (!duplicates) {
        return;
    }
    notice(this, catalogueTexts, Messages::Messages26, *duplicates);
    markIds(*modelMenu_, DuplicateArticles::ids(), MenuMark, QStringLiteral("X"));
}

void FormVendel::on_tableView1_clicked(const QModelIndex& index)
{
    guarded("Errors FormVendel on_tableView1_clicked : ", [&] { addToTicket(index); });
}

// Qt turns the second press of two quick ones into a double click; to the cashier it is one more.
void FormVendel::on_tableView1_doubleClicked(const QModelIndex& index)
{
    guarded("Errors FormVendel on_tableView1_doubleClicked : ", [&] {
        if (isLeftPress_) {
            addToTicket(index);
        }
    });
}

void FormVendel::addToTicket(const QModelIndex& index)
{
    TicketTable::addArticle(keyOf(index));
    refreshTicket();
    ui_->tableView2->scrollToBottom();
}

void FormVendel::on_tableView2_clicked(const QModelIndex& index)
{
    guarded("Errors FormVendel on_tableView2_clicked : ", [&] {
        if (isSecondPress_) {
            return;
        }
        removeFromTicket(index);
    });
}

/// Removes a line and leaves those around it where they stand: the next may be meant for removal.
void FormVendel::removeFromTicket(const QModelIndex& index)
{
    const int firstInView = ui_->tableView2->rowAt(0);
    TicketTable::remove(keyOf(index));
    refreshTicket();
    const int first = std::min(firstInView, modelTicket_->rowCount() - 1);
    // The first scroll lays the list out, without which the second would find no way to go.
    ui_->tableView2->scrollToBottom();
    ui_->tableView2->scrollTo(
        modelTicket_->index(first, TicketTable::Article), QAbstractItemView::PositionAtTop);
}

/// Shows the ticket as it is stored; returns whether it holds a line.
bool FormVendel::refreshTicket()
{
    clearList(*modelTicket_);
    const DbRows rows = TicketTable::rows();
    ListFiller filler(*ui_->tableView2, *modelTicket_);
    for (const auto& row : rows) {
        filler.add({QString::fromStdString(row.at(TicketTable::Line)),
            QString::fromStdString(row.at(TicketTable::ArticleId)),
            formatCell(row.at(TicketTable::Article)), formatCell(row.at(TicketTable::Price))});
    }
    return !rows.empty();
}

void FormVendel::on_btn_Ticket_clicked()
{
    guarded("Errors FormVendel on_btn_Ticket_clicked : ", [this] {
        if (!refreshTicket()) {
            notice(this, catalogueTexts, Messages::Messages1);
        }
    });
}

void FormVendel::on_btn_Effacer_Ticket_clicked()
{
    guarded("Errors FormVendel on_btn_Effacer_Ticket_clicked : ", [this] {
        clearList(*modelTicket_);
        if (TicketTable::rows().empty()) {
            notice(this, catalogueTexts, Messages::Messages0);
        } else {
            TicketTable::clear();
        }
    });
}

void FormVendel::on_btn_Total_Ticket_clicked()
{
    guarded("Errors on_btn_Total_Ticket_clicked : ", [this] { showTotal(); });
}

void FormVendel::showTotal()
{
    if (TicketTable::rows().empty()) {
        notice(this, catalogueTexts, Messages::Messages5);
        return;
    }
    refreshTicket();
    const TicketTotals totals = totalTicket(TicketTable::sum(), Configuration::taxRates());
    {
        ListFiller filler(*ui_->tableView2, *modelTicket_);
        filler.addTotal(
            totalCells(catalogueTexts(Messages::Messages2[0]), totals.sum + QLatin1Char('$')));
        for (const TicketTotals::Tax& tax : totals.taxes) {
            filler.addTotal(
                totalCells(catalogueTexts(Messages::Messages3[0]) + tax.rate + QLatin1Char('%'),
                    tax.amount + QLatin1Char('$')));
        }
        filler.addTotal(totalCells(
            catalogueTexts(Messages::Messages4[0]), QLatin1Char('$') + totals.grandTotal));
    }
    ui_->tableView2->scrollToBottom();
}
