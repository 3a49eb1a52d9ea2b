// SPDX-License-Identifier: MIT
#include "widgets/Lists.h"

#include "common/Messages.h"
#include "widgets/ListModel.h"

#include <QHeaderView>
#include <QHelpEvent>
#include <QSet>
#include <QStandardItemModel>
#include <QStyledItemDelegate>
#include <QTableView>

namespace {
constexpr int minimumSectionPixels = 10;
constexpr int rowPaddingPixels = 4;
constexpr int rowNumberPointSize = 10;

/// A view answers Qt's tip request, sent when the mouse rests, by hiding whatever tip is shown; the
/// till's hover tips stay for their ten seconds.
class TipKeepingDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
        const QModelIndex& index) override
    {
        return event->type() == QEvent::ToolTip
            || QStyledItemDelegate::helpEvent(event, view, option, index);
    }
};

/// The word for a \a label that is only a sign, empty for a word.
QString spokenLabel(const std::string& label, const Texts& texts)
{
    if (label == "#") {
        return texts(Messages::Messages182[0]);
    }
    return label == "X" ? texts(Messages::Messages26[1]) : QString();
}

void setUpHeaders(QTableView& view)
{
    view.horizontalHeader()->setDefaultAlignment(Qt::AlignLeft);
    view.horizontalHeader()->setMinimumSectionSize(minimumSectionPixels);
    QHeaderView& rowNumbers = *view.verticalHeader();
    rowNumbers.setMinimumSectionSize(minimumSectionPixels);
    rowNumbers.setDefaultSectionSize(minimumSectionPixels);
    // Small row numbers leave the columns their room, also on a menu of a thousand articles.
    QFont font = rowNumbers.font();
    font.setPointSize(rowNumberPointSize);
    rowNumbers.setFont(font);
}
} // namespace

void setUpList(QTableView& view, ListModel& model, const Texts& texts,
    std::span<const std::string> labels, std::initializer_list<int> widths,
    std::initializer_list<int> hidden)
{
    QStringList captions;
    for (const std::string& label : labels) {
        captions << texts(label);
    }
    model.setColumnCount(static_cast<int>(captions.size()));
    model.setHorizontalHeaderLabels(captions);
    int section = 0;
    for (const std::string& label : labels) {
        QStandardItem& header = *model.horizontalHeaderItem(section++);
        header.setTextAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        header.setAccessibleText(spokenLabel(label, texts));
    }

    view.setModel(&model);
    view.setItemDelegate(new TipKeepingDelegate(&view));
    view.setStyleSheet(
        QStringLiteral("alternate-background-color: LightBlue;background-color: White"));
    view.setAlternatingRowColors(true);
    view.setEditTriggers(QAbstractItemView::NoEditTriggers);
    // Rows are one line high: word wrap would hide what follows a comma.
    view.setWordWrap(false);
    // Tab walks through the window; the arrow keys walk through the list.
    view.setTabKeyNavigation(false);
    setUpHeaders(view);
    int column = 0;
    for (const int width : widths) {
        view.setColumnWidth(column++, width);
    }
    for (const int hiddenColumn : hidden) {
        view.setColumnHidden(hiddenColumn, true);
        model.keepQuietAbout(hiddenColumn);
    }
}

void clearList(QStandardItemModel& model) { model.removeRows(0, model.rowCount()); }

ListFiller::ListFiller(QTableView& view, QStandardItemModel& model)
    : view_(view)
    , model_(model)
    , rowHeight_(view.fontMetrics().height() + rowPaddingPixels)
{
    view_.setUpdatesEnabled(false);
    view_.verticalHeader()->setUpdatesEnabled(false);
}

ListFiller::~ListFiller()
{
    view_.verticalHeader()->setUpdatesEnabled(true);
    view_.setUpdatesEnabled(true);
}

void ListFiller::add(const QStringList& cells) { add(cells, false); }

void ListFiller::addTotal(const QStringList& cells) { add(cells, true); }

void ListFiller::add(const QStringList& cells, bool isTotal)
{
    QList<QStandardItem*> items;
    items.reserve(cells.size());
    for (const QString& cell : cells) {
        items << new QStandardItem(cell);
        if (isTotal) {
            items.last()->setBackground(Qt::yellow);
        }
    }
    model_.appendRow(items);
    view_.setRowHeight(model_.rowCount() - 1, rowHeight_);
}

QString textAt(const QModelIndex& index, int column)
{
    return index.sibling(index.row(), column).data().toString();
}

void markIds(
    QStandardItemModel& model, const std::vector<int>& ids, int column, const QString& mark)
{
    const QSet<int> marked(ids.begin(), ids.end());
    if (marked.isEmpty()) {
        return;
    }
    for (int row = 0; row < model.rowCount(); ++row) {
        if (marked.contains(model.index(row, 0).data().toInt())) {
            model.setData(model.index(row, column), mark);
        }
    }
}
