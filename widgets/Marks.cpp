// SPDX-License-Identifier: MIT
#include "widgets/Marks.h"

#include "widgets/Lists.h"

#include <QItemSelectionModel>
#include <QSet>
#include <QTableView>

std::optional<QString> selectedKey(const QTableView& view, const QModelIndex& index)
{
    if (!view.selectionModel()->isSelected(index)) {
        return std::nullopt;
    }
    return textAt(index, 0);
}

std::optional<QString> markedKey(const QTableView& view)
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

std::optional<QModelIndex> chosenRow(const QTableView& view)
{
    const QItemSelectionModel& selection = *view.selectionModel();
    if (!selection.hasSelection() || !selection.currentIndex().isValid()) {
        return std::nullopt;
    }
    return selection.currentIndex();
}
