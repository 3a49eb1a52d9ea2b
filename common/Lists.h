// SPDX-License-Identifier: MIT
#pragma once

#include "common/Texts.h"

#include <QStringList>

#include <initializer_list>
#include <span>
#include <string>
#include <vector>

class QStandardItemModel;
class QTableView;

/// Shows \a model in \a view as every list of the till looks: translated column \a labels, column
/// \a widths in pixels, the \a hidden columns, alternating colours, no editing.
void setUpList(QTableView& view, QStandardItemModel& model, const Texts& texts,
    std::span<const std::string> labels, std::initializer_list<int> widths,
    std::initializer_list<int> hidden = {});

/// Empties a list; its headers and widths stay.
void clearList(QStandardItemModel& model);

/// Appends rows to a list, each as high as the list's font needs; while it lives the list does not
/// lay itself out, so that 10,000 articles stand within a blink.
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

/// Sets column \a column to \a mark in every row whose column 0 holds one of \a ids.
void markIds(
    QStandardItemModel& model, const std::vector<int>& ids, int column, const QString& mark);
