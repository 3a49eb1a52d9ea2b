// SPDX-License-Identifier: MIT
#pragma once

#include <QModelIndex>

#include <functional>

class QTableView;

using RowAction = std::function<void(const QModelIndex&)>;

/// Runs \a action with the current index of \a view when \a key is pressed in it; held down, the
/// key acts once.
void onKey(QTableView& view, Qt::Key key, RowAction action);

/// Has Return, Enter and Space do \a action to the current row of \a view, as the mouse does it;
/// held down, they act once. When \a action fills the list again, the keyboard stays at its place
/// in it.
void onRowKeys(QTableView& view, const RowAction& action);
