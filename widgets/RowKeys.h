// SPDX-License-Identifier: MIT
#pragma once

#include <QModelIndex>

#include <functional>

class QTableView;

using RowAction = std::function<void(const QModelIndex&)>;

/// Runs \a action with the current index of \a view when \a key is pressed in it and there is one;
/// held down, the key acts once. When \a action fills the list again, the keyboard stays at its
/// place in it, and nothing is marked there.
void onKey(QTableView& view, Qt::Key key, RowAction action);

/// The same for each of Return, Enter and Space, which do what the mouse does to a row.
void onRowKeys(QTableView& view, const RowAction& action);
