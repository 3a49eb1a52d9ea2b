// SPDX-License-Identifier: MIT
#pragma once

#include <QModelIndex>
#include <QString>

#include <optional>

class QTableView;

/// The key in column 0 of the row of \a index while \a index is selected in \a view.
std::optional<QString> selectedKey(const QTableView& view, const QModelIndex& index);

/// The key of the marked article: of the current row while it is selected, else of the only
/// selected one.
std::optional<QString> markedKey(const QTableView& view);

/// The row that a button acts on: the current one, however many are selected; nothing when none is
/// selected.
std::optional<QModelIndex> chosenRow(const QTableView& view);
