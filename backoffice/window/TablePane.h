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
    explicit TablePane(const QLocale& locale, QWidget* parent = nullptr);

    void setTable(const Table& table);
    /// Shows the rows with \a text only.
    void search(const QString& text);
    /// The width at which no column is hidden, in pixels.
    int fullWidth() const;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void copyRows() const;
    void fitColumns(bool isFirst);
    /// Shares out the room that the columns leave, until the user sets a width.
    void spread();
    QStringList chosenKeys() const;
    void choose(const QStringList& keys, const QString& current, int column);

    TableModel* model_;
    TableOrder* order_;
    std::vector<QString> titles_;
    /// What each column needs, in pixels.
    std::vector<int> needed_;
    bool isSpreading_ = false;
    bool isUsersWidth_ = false;
};
