// SPDX-License-Identifier: MIT
#pragma once

#include "common/Texts.h"

#include <QModelIndex>
#include <QStringList>

#include <initializer_list>
#include <span>
#include <string>
#include <vector>

class ListModel;
class QStandardItemModel;
class QTableView;

/// Shows \a model in \a view as every list of the till looks: translated column \a labels, column
/// \a widths in pixels, the \a hidden columns, alternating colours, no editing. A screen reader
/// hears words for labels that are signs.
void setUpList(QTableView& view, ListModel& model, const Texts& texts,
    std::span<const std::string> labels, std::initializer_list<int> widths,
    std::initializer_list<int> hidden = {});

/// Empties a list; its headers and widths stay.
void clearList(QStandardItemModel& model);

/// Appends rows to a list, each as high as the list's font needs; layout is suspended while it
/// lives, so 10,000 rows fill at once.
class ListFiller
{
public:
    ListFiller(QTableView& view, QStandardItemModel& model);
    ~ListFiller();
    ListFiller(const ListFiller&) = delete;
    ListFiller& operator=(const ListFiller&) = delete;
    ListFiller(ListFiller&&) = delete;
    ListFiller& operator=(ListFiller&&) = delete;

    /// Appends one row of \a cells.
    void add(const QStringList& cells);

    /// The same on a yellow ground, for the rows of a total.
    void addTotal(const QStringList& cells);

private:
    void add(const QStringList& cells, bool isTotal);

    QTableView& view_;
    QStandardItemModel& model_;
    int rowHeight_;
};

/// Appends a row for each of \a rows, whose texts \a cellsOf gives (a QStringList).
template <class Rows, class Cells>
void appendRows(QTableView& view, QStandardItemModel& model, const Rows& rows, Cells cellsOf)
{
    ListFiller filler(view, model);
    for (const auto& row : rows) {
        filler.add(cellsOf(row));
    }
}

/// The text of \a column in the row of \a index.
QString textAt(const QModelIndex& index, int column);

/// Sets column \a column to \a mark in every row whose column 0 holds one of \a ids.
void markIds(
    QStandardItemModel& model, const std::vector<int>& ids, int column, const QString& mark);
