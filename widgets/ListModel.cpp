// SPDX-License-Identifier: MIT
#include "widgets/ListModel.h"

#include <QStringList>

QVariant ListModel::data(const QModelIndex& index, int role) const
{
    if (role == Qt::AccessibleDescriptionRole) {
        return description(index);
    }
    if (role == Qt::AccessibleTextRole) {
        const QString text = QStandardItemModel::data(index).toString();
        return text.isEmpty() ? rowText(index.row()) : text;
    }
    return QStandardItemModel::data(index, role);
}

QString ListModel::rowText(int row) const
{
    QStringList texts;
    for (int column = 0; column < columnCount(); ++column) {
        const QString text = QStandardItemModel::data(index(row, column)).toString();
        if (!text.isEmpty() && !quiet_.contains(column)) {
            texts << text;
        }
    }
    return texts.join(QLatin1String(", "));
}

QString ListModel::description(const QModelIndex& cell) const
{
    if (!cell.isValid()) {
        return {};
    }
    const QString explanation = explanation_ ? explanation_(cell) : QString();
    return explanation.isEmpty() ? rowText(cell.row())
                                 : rowText(cell.row()) + QLatin1Char('\n') + explanation;
}
