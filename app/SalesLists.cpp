// SPDX-License-Identifier: MIT
#include "app/SalesLists.h"

#include "common/Messages.h"
#include "common/Money.h"
#include "common/Texts.h"
#include "widgets/Lists.h"

namespace {
constexpr Texts texts{"FormVendelMessages"};
const auto& menuLabels = Messages::Messages97;
const auto& ticketLabels = Messages::Messages99;
const auto& sumLabel = Messages::Messages2;
const auto& taxLabel = Messages::Messages3;
const auto& grandTotalLabel = Messages::Messages4;

/// A total's row, marked by "->" in the id column.
QStringList totalCells(const QString& label, const QString& amount)
{
    return {QStringLiteral("0"), QStringLiteral("->"), label, amount};
}
} // namespace

void SalesLists::setUpMenu(QTableView& view, ListModel& model)
{
    setUpList(view, model, texts, menuLabels, {50, 25, 210, 110}, {MenuId});
}

void SalesLists::setUpTicket(QTableView& view, ListModel& model)
{
    setUpList(view, model, texts, ticketLabels, {50, 50, 210, 110}, {TicketKey, TicketArticleId});
}

void SalesLists::fillMenu(
    QTableView& view, QStandardItemModel& model, const std::vector<Article>& articles)
{
    appendRows(view, model, articles, [](const Article& article) {
        // A name that is a number is shown like a price, here and on the ticket.
        return QStringList{
            article.id, QString(), formatCell(article.name), formatCell(article.price)};
    });
}

void SalesLists::fillTicket(
    QTableView& view, QStandardItemModel& model, const std::vector<TicketLine>& lines)
{
    appendRows(view, model, lines, [](const TicketLine& line) {
        return QStringList{
            line.key, line.articleId, formatCell(line.article), formatCell(line.price)};
    });
}

void SalesLists::appendTotals(
    QTableView& view, QStandardItemModel& model, const TicketTotals& totals)
{
    ListFiller filler(view, model);
    filler.addTotal(totalCells(texts(sumLabel[0]), totals.sum + QLatin1Char('$')));
    for (const TicketTotals::Tax& tax : totals.taxes) {
        filler.addTotal(totalCells(
            texts(taxLabel[0]) + tax.rate + QLatin1Char('%'), tax.amount + QLatin1Char('$')));
    }
    filler.addTotal(totalCells(texts(grandTotalLabel[0]), QLatin1Char('$') + totals.grandTotal));
}
