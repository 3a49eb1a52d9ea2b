// SPDX-License-Identifier: MIT
#pragma once

#include <QSet>
#include <QStandardItemModel>

#include <functional>
#include <utility>

/// The rows of a list, and what a screen reader says of them: a cell's text (an empty one's row),
/// then the row, then what a hover tip shows of it.
class ListModel : public QStandardItemModel
{
public:
    /// What there is to know of a cell's row, empty when there is nothing.
    using Explanation = std::function<QString(const QModelIndex& cell)>;

    using QStandardItemModel::QStandardItemModel;

    /// Leaves \a column out of what is said of a row.
    void keepQuietAbout(int column) { quiet_ << column; }

    /// Has \a explanation added to what is said of a row.
    void explain(Explanation explanation) { explanation_ = std::move(explanation); }

    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

private:
    QString rowText(int row) const;
    QString description(const QModelIndex& cell) const;

    QSet<int> quiet_;
    Explanation explanation_;
};
