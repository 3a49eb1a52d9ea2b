// SPDX-License-Identifier: MIT
#include "tests/support/Widgets.h"

#include <QApplication>
#include <QMouseEvent>

namespace {
QPoint centreOf(QAbstractItemView& view, int row, int column)
{
    const QModelIndex index = view.model()->index(row, column);
    view.scrollTo(index);
    return view.visualRect(index).center();
}
} // namespace

void click(QWidget& window, const char* name)
{
    QTest::mouseClick(&child<QWidget>(window, name), Qt::LeftButton);
}

void clickCell(QWidget& window, const char* name, int row, int column)
{
    auto& view = child<QAbstractItemView>(window, name);
    QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::NoModifier, centreOf(view, row, column));
}

void doubleClickCell(QWidget& window, const char* name, int row, int column)
{
    auto& view = child<QAbstractItemView>(window, name);
    const QPoint point = centreOf(view, row, column);
    QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::NoModifier, point);
    // The second half of a double click; Qt Test's own function sends a press of its own first.
    QMouseEvent press(QEvent::MouseButtonDblClick, point, view.viewport()->mapToGlobal(point),
        Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(view.viewport(), &press);
    QMouseEvent release(QEvent::MouseButtonRelease, point, view.viewport()->mapToGlobal(point),
        Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(view.viewport(), &release);
}

void hoverCell(QWidget& window, const char* name, int row, int column)
{
    auto& view = child<QAbstractItemView>(window, name);
    const QPoint point = centreOf(view, row, column);
    QMouseEvent move(QEvent::MouseMove, point, view.viewport()->mapToGlobal(point), Qt::NoButton,
        Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(view.viewport(), &move);
}

QStringList rowTexts(QWidget& window, const char* name, int row)
{
    const auto* model = child<QAbstractItemView>(window, name).model();
    QStringList texts;
    for (int column = 0; column < model->columnCount(); ++column) {
        texts << model->index(row, column).data().toString();
    }
    return texts;
}

int rowCount(QWidget& window, const char* name)
{
    return child<QAbstractItemView>(window, name).model()->rowCount();
}
