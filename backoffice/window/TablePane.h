// SPDX-License-Identifier: MIT
#pragma once

#include "backoffice/reports/Report.h"

#include <QTableView>

class TableModel;
class TableOrder;

/// A sortable table. New figures leave what the user has chosen, scrolled to and sorted by.
class TablePane : public QTableView
{
    Q_OBJECT

public:
    explicit TablePane(QLocale locale, QWidget* parent = nullptr);

    void setTable(const Table& table);
    /// Shows the rows with \a text only.
    void search(const QString& text);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void copyRows() const;
    void fitColumns(bool isFirst);
    QStringList chosenKeys() const;
    void choose(const QStringList& keys, const QString& current, int column);

    TableModel* model_;
    TableOrder* order_;
    std::vector<QString> titles_;
};
