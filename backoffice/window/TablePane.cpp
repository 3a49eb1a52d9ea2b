// SPDX-License-Identifier: MIT
#include "backoffice/window/TablePane.h"

#include "backoffice/window/TableModel.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>

#include <algorithm>
#include <numeric>

namespace {
/// What a column has more than its text needs, in pixels.
constexpr int aroundCells = 12;
} // namespace

TablePane::TablePane(const QLocale& locale, QWidget* parent)
    : QTableView(parent)
    , model_(new TableModel(locale, this))
    , order_(new TableOrder(this))
{
    order_->setSourceModel(model_);
    setModel(order_);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setAlternatingRowColors(true);
    setShowGrid(false);
    setWordWrap(false);
    setTabKeyNavigation(false);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    verticalHeader()->hide();
    constexpr int around = 8;
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + around);
    horizontalHeader()->setHighlightSections(false);
    connect(horizontalHeader(), &QHeaderView::sectionResized, this,
        [this] { isUsersWidth_ = isUsersWidth_ || !isSpreading_; });
    // As reported, until the user chooses a column.
    horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
    setSortingEnabled(true);
}

void TablePane::setTable(const Table& table)
{
    std::vector<QString> titles;
    std::transform(table.columns.begin(), table.columns.end(), std::back_inserter(titles),
        [](const Column& column) { return column.title; });
    const bool isFirst = titles != titles_;
    titles_ = std::move(titles);
    setAccessibleName(table.title);

    const QStringList keys = chosenKeys();
    const QString current = currentIndex().data(TableModel::keyRole).toString();
    const int column = currentIndex().column();
    const int across = horizontalScrollBar()->value();
    const int down = verticalScrollBar()->value();
    model_->setTable(table);
    fitColumns(isFirst);
    if (isFirst) {
        horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
        return;
    }
    choose(keys, current, column);
    horizontalScrollBar()->setValue(across);
    verticalScrollBar()->setValue(down);
}

void TablePane::fitColumns(bool isFirst)
{
    constexpr int rowsToMeasure = 200;
    horizontalHeader()->setResizeContentsPrecision(rowsToMeasure);
    needed_.resize(static_cast<std::size_t>(model_->columnCount()));
    for (int column = 0; column < model_->columnCount(); ++column) {
        needed_.at(static_cast<std::size_t>(column)) = aroundCells
            + std::max(sizeHintForColumn(column), horizontalHeader()->sectionSizeHint(column));
    }
    isUsersWidth_ = isUsersWidth_ && !isFirst;
    spread();
}

int TablePane::fullWidth() const
{
    return std::accumulate(needed_.begin(), needed_.end(), 0) + 2 * frameWidth()
        + verticalScrollBar()->sizeHint().width();
}

void TablePane::spread()
{
    if (isUsersWidth_ || needed_.empty()) {
        return;
    }
    isSpreading_ = true;
    const int room = viewport()->width() - std::accumulate(needed_.begin(), needed_.end(), 0);
    const int count = static_cast<int>(needed_.size());
    // Where there is no room, columns give away what is between them rather than the last one.
    const int extra = room < 0 ? std::max(-aroundCells, (room - count + 1) / count) : room / count;
    for (std::size_t column = 0; column < needed_.size(); ++column) {
        setColumnWidth(static_cast<int>(column), needed_.at(column) + extra);
    }
    isSpreading_ = false;
}

void TablePane::resizeEvent(QResizeEvent* event)
{
    QTableView::resizeEvent(event);
    spread();
}

QStringList TablePane::chosenKeys() const
{
    QStringList keys;
    const QModelIndexList rows = selectionModel()->selectedRows();
    for (const QModelIndex& row : rows) {
        keys += row.data(TableModel::keyRole).toString();
    }
    return keys;
}

void TablePane::choose(const QStringList& keys, const QString& current, int column)
{
    if (keys.isEmpty() && current.isEmpty()) {
        return;
    }
    QItemSelection chosen;
    for (int row = 0; row < order_->rowCount(); ++row) {
        const QModelIndex index = order_->index(row, std::max(0, column));
        const QString key = index.data(TableModel::keyRole).toString();
        if (keys.contains(key)) {
            chosen.select(index, index);
        }
        if (key == current) {
            selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
        }
    }
    selectionModel()->select(chosen, QItemSelectionModel::Select | QItemSelectionModel::Rows);
}

void TablePane::search(const QString& text) { order_->search(text); }

void TablePane::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Copy)) {
        copyRows();
        return;
    }
    QTableView::keyPressEvent(event);
}

void TablePane::copyRows() const
{
    QModelIndexList rows = selectionModel()->selectedRows();
    std::sort(rows.begin(), rows.end());
    QStringList lines;
    for (const QModelIndex& row : qAsConst(rows)) {
        QStringList cells;
        for (int column = 0; column < order_->columnCount(); ++column) {
            cells += row.sibling(row.row(), column).data().toString();
        }
        lines += cells.join(QLatin1Char('\t'));
    }
    QApplication::clipboard()->setText(lines.join(QLatin1Char('\n')));
}
