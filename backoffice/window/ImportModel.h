// SPDX-License-Identifier: MIT
#pragma once

#include "backoffice/menu/ImportPlan.h"

#include <QAbstractTableModel>
#include <QCoreApplication>
#include <QSortFilterProxyModel>

/// The preview of an import: a row for each line of the file, with what becomes of it in words and
/// in colour.
class ImportModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column
    {
        Line,
        Action,
        /// The file's cells come next, and a remark.
        FirstCell
    };

    /// The ImportAction of a row.
    static constexpr int actionRole = Qt::UserRole;

    explicit ImportModel(ImportKind kind, QObject* parent = nullptr);

    void setPlan(ImportPlan plan);
    const ImportPlan& plan() const { return plan_; }
    int remarkColumn() const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(
        int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    bool isNumber(int column) const;
    QString text(const PlannedLine& line, int column) const;
    QString actionText(const PlannedLine& line) const;

    std::vector<ImportColumn> columns_;
    ImportPlan plan_;
};

/// The rows of an ImportModel, or those of refused lines only.
class ImportRows : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    using QSortFilterProxyModel::QSortFilterProxyModel;

    void showRefusedOnly(bool isOnly);

protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override;

private:
    bool isRefusedOnly_ = false;
};
