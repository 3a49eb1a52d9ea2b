// SPDX-License-Identifier: MIT
#include "forms/StockLists.h"

#include "common/HoverTip.h"
#include "common/Lists.h"
#include "common/Money.h"
#include "forms/Compositions.h"

#include <QCursor>
#include <QShortcut>
#include <QStandardItemModel>
#include <QTableView>

#include <utility>

void StockLists::setUpArticles(QTableView& view, QStandardItemModel& model, const Texts& texts,
    std::span<const std::string> labels)
{
    setUpList(view, model, texts, labels, {50, 210, 110});
}

void StockLists::setUpCompositions(QTableView& view, QStandardItemModel& model, const Texts& texts,
    std::span<const std::string> labels)
{
    setUpList(view, model, texts, labels, {50, 50, 180, 90, 50}, {CompositionArticle});
}

void StockLists::addArticles(
    QTableView& view, QStandardItemModel& model, const DbRows& articles, const QString& validity)
{
    ListFiller filler(view, model);
    for (const auto& article : articles) {
        filler.add({QString::fromStdString(article.at(0)), QString::fromStdString(article.at(1)),
            validity});
    }
}

void StockLists::showCompositions(
    QTableView& view, QStandardItemModel& model, const QString& article)
{
    clearList(model);
    const DbRows rows = Compositions::of(article);
    ListFiller filler(view, model);
    for (const auto& row : rows) {
        filler.add({QString::fromStdString(row.at(CompositionLine)),
            QString::fromStdString(row.at(CompositionArticle)),
            QString::fromStdString(row.at(CompositionName)),
            formatQuantity(row.at(CompositionDose)),
            QString::fromStdString(row.at(CompositionUnit))});
    }
}

QString StockLists::textAt(const QModelIndex& index, int column)
{
    return index.sibling(index.row(), column).data().toString();
}

std::optional<QString> StockLists::selectedKey(const QTableView& view, const QModelIndex& index)
{
    if (!view.selectionModel()->isSelected(index)) {
        return std::nullopt;
    }
    return textAt(index, 0);
}

std::optional<QModelIndex> StockLists::chosenRow(const QTableView& view)
{
    const QItemSelectionModel& selection = *view.selectionModel();
    if (!selection.hasSelection() || !selection.currentIndex().isValid()) {
        return std::nullopt;
    }
    return selection.currentIndex();
}

void StockLists::showTipOver(QWidget& window, const QTableView& view, const QObject* watched,
    const QEvent* event, int column, const Texts& texts, const std::array<std::string, 2>& message)
{
    const auto position = mouseMoveOver(view, watched, event);
    if (!position) {
        return;
    }
    const QString text = textUnder(view, *position, column);
    if (text.isEmpty()) {
        hideTip();
    } else {
        showTip(window, QCursor::pos(), texts(message[0]) + text + texts(message[1]));
    }
}

void StockLists::onKey(
    QTableView& view, Qt::Key key, std::function<void(const QModelIndex&)> action)
{
    auto* shortcut = new QShortcut(QKeySequence(key), &view);
    shortcut->setContext(Qt::WidgetShortcut);
    shortcut->setAutoRepeat(false);
    QObject::connect(shortcut, &QShortcut::activated, &view,
        [&view, run = std::move(action)] { run(view.currentIndex()); });
}
