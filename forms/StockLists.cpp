// SPDX-License-Identifier: MIT
#include "forms/StockLists.h"

#include "common/Money.h"
#include "store/Recipes.h"
#include "widgets/HoverTip.h"
#include "widgets/Lists.h"

#include <QCursor>
#include <QSet>
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

void StockLists::addArticles(QTableView& view, QStandardItemModel& model,
    const std::vector<StockArticle>& articles, const QString& validity)
{
    appendRows(view, model, articles, [&validity](const StockArticle& article) {
        return QStringList{article.id, article.name, validity};
    });
}

void StockLists::showCompositions(
    QTableView& view, QStandardItemModel& model, const QString& article)
{
    clearList(model);
    appendRows(view, model, Recipes::of(article), [](const RecipeLine& line) {
        return QStringList{
            line.key, line.article, line.composition, formatQuantity(line.dose), line.unit};
    });
}

std::optional<QString> StockLists::selectedKey(const QTableView& view, const QModelIndex& index)
{
    if (!view.selectionModel()->isSelected(index)) {
        return std::nullopt;
    }
    return textAt(index, 0);
}

std::optional<QString> StockLists::markedKey(const QTableView& view)
{
    const QItemSelectionModel& selection = *view.selectionModel();
    const QModelIndex current = selection.currentIndex();
    if (current.isValid() && selection.rowIntersectsSelection(current.row(), QModelIndex())) {
        return textAt(current, 0);
    }
    QSet<QString> keys;
    const QModelIndexList cells = selection.selectedIndexes();
    for (const QModelIndex& cell : cells) {
        keys << textAt(cell, 0);
    }
    return keys.size() == 1 ? std::make_optional(*keys.begin()) : std::nullopt;
}

std::optional<QModelIndex> StockLists::chosenRow(const QTableView& view)
{
    const QItemSelectionModel& selection = *view.selectionModel();
    if (!selection.hasSelection() || !selection.currentIndex().isValid()) {
        return std::nullopt;
    }
    return selection.currentIndex();
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
