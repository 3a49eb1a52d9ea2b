// SPDX-License-Identifier: MIT
#pragma once

#include "backoffice/reports/Report.h"

#include <QAbstractTableModel>
#include <QSortFilterProxyModel>

/// A report's table for a view.
class TableModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    /// The cell's value, which it is sorted by.
    static constexpr int valueRole = Qt::UserRole;
    /// What tells a row from others, whatever its figures are.
    static constexpr int keyRole = Qt::UserRole + 1;

    explicit TableModel(const QLocale& locale, QObject* parent = nullptr);

    void setTable(const Table& table);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(
        int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    QString key(std::size_t row) const;

    QLocale locale_;
    Table table_;
};

/// The rows of a TableModel that contain what is searched, in the order of a column's values.
class TableOrder : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    explicit TableOrder(QObject* parent = nullptr);

    /// Keeps the rows that show \a text, whatever its case and its accents are.
    void search(const QString& text);

protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override;
    bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;

private:
    QString searched_;
};
