// SPDX-License-Identifier: MIT
#include "widgets/RowKeys.h"

#include <QItemSelectionModel>
#include <QShortcut>
#include <QTableView>

#include <algorithm>
#include <utility>

namespace {
/// Moves the keyboard's frame of a list that was filled again back to \a row, or to the last one;
/// nothing is marked.
void returnTo(const QTableView& view, int row, int column)
{
    const int last = view.model()->rowCount() - 1;
    if (!view.currentIndex().isValid() && last >= 0) {
        view.selectionModel()->setCurrentIndex(
            view.model()->index(std::min(row, last), column), QItemSelectionModel::NoUpdate);
    }
}
} // namespace

void onKey(QTableView& view, Qt::Key key, RowAction action)
{
    auto* shortcut = new QShortcut(QKeySequence(key), &view);
    shortcut->setContext(Qt::WidgetShortcut);
    shortcut->setAutoRepeat(false);
    QObject::connect(shortcut, &QShortcut::activated, &view,
        [&view, run = std::move(action)] { run(view.currentIndex()); });
}

void onRowKeys(QTableView& view, const RowAction& action)
{
    const auto act = [&view, action](const QModelIndex& index) {
        if (index.isValid()) {
            const int row = index.row();
            const int column = index.column();
            action(index);
            returnTo(view, row, column);
        }
    };
    for (const auto key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
        onKey(view, key, act);
    }
}
