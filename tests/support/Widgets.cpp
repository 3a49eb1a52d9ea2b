// SPDX-License-Identifier: MIT
#include "tests/support/Widgets.h"

#include <QAbstractButton>
#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QToolTip>

#include <algorithm>

namespace {
QPoint centreOf(QAbstractItemView& view, int row, int column)
{
    const QModelIndex index = view.model()->index(row, column);
    view.scrollTo(index);
    return view.visualRect(index).center();
}

template <class Widget> QStringList tooSmall(QWidget& window)
{
    QStringList names;
    for (const Widget* widget : window.findChildren<Widget*>()) {
        const QSize needed = widget->sizeHint();
        if (widget->isVisible()
            && (widget->width() < needed.width() || widget->height() < needed.height())) {
            names << widget->objectName();
        }
    }
    return names;
}
} // namespace

void click(QWidget& window, const char* name)
{
    QTest::mouseClick(&child<QWidget>(window, name), Qt::LeftButton);
}

void clickCell(
    QWidget& window, const char* name, int row, int column, Qt::KeyboardModifiers modifiers)
{
    auto& view = child<QAbstractItemView>(window, name);
    QTest::mouseClick(view.viewport(), Qt::LeftButton, modifiers, centreOf(view, row, column));
}

void doubleClickCell(
    QWidget& window, const char* name, int row, int column, Qt::KeyboardModifiers modifiers)
{
    auto& view = child<QAbstractItemView>(window, name);
    const QPoint point = centreOf(view, row, column);
    QTest::mouseClick(view.viewport(), Qt::LeftButton, modifiers, point);
    // The second half of a double click; Qt Test's own function sends a press of its own first.
    QMouseEvent press(QEvent::MouseButtonDblClick, point, view.viewport()->mapToGlobal(point),
        Qt::LeftButton, Qt::LeftButton, modifiers);
    QApplication::sendEvent(view.viewport(), &press);
    QMouseEvent release(QEvent::MouseButtonRelease, point, view.viewport()->mapToGlobal(point),
        Qt::LeftButton, Qt::NoButton, modifiers);
    QApplication::sendEvent(view.viewport(), &release);
}

void hoverPoint(QWidget& widget, QPointF point)
{
    const QPointF onScreen = point + widget.mapToGlobal(QPoint());
    QMouseEvent move(
        QEvent::MouseMove, point, onScreen, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(&widget, &move);
}

void hoverCell(QWidget& window, const char* name, int row, int column)
{
    auto& view = child<QAbstractItemView>(window, name);
    const QPoint point = centreOf(view, row, column);
    hoverPoint(*view.viewport(), point);
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

void chooseMenu(QWidget& window, const char* menu, const char* action)
{
    auto& popup = child<QMenu>(window, menu);
    const auto bars = window.findChildren<QMenuBar*>();
    for (QMenuBar* bar : bars) {
        if (bar->actions().contains(popup.menuAction())) {
            QTest::mouseClick(bar, Qt::LeftButton, Qt::NoModifier,
                bar->actionGeometry(popup.menuAction()).center());
        }
    }
    auto* entry = window.findChild<QAction*>(QString::fromLatin1(action));
    if (!popup.isVisible() || entry == nullptr) {
        qFatal("no entry %s in a menu %s", action, menu);
    }
    QTest::mouseClick(&popup, Qt::LeftButton, Qt::NoModifier, popup.actionGeometry(entry).center());
}

QString tipText() { return QToolTip::isVisible() ? QToolTip::text() : QString(); }

QWidget* visibleTip()
{
    const auto widgets = QApplication::topLevelWidgets();
    for (QWidget* widget : widgets) {
        if (widget->inherits("QTipLabel") && widget->isVisible()) {
            return widget;
        }
    }
    return nullptr;
}

bool isTipLeaving()
{
    const auto timers = QAbstractEventDispatcher::instance()->registeredTimers(visibleTip());
    return std::any_of(
        timers.begin(), timers.end(), [](const auto& timer) { return timer.interval == 300; });
}

QRect tipGeometry()
{
    const QWidget* tip = visibleTip();
    if (tip == nullptr) {
        qFatal("no tip");
    }
    return tip->geometry();
}

bool tipStandsAt(QPoint point)
{
    const QPoint stands = tipGeometry().topLeft();
    QToolTip::showText(point, tipText() + ' ');
    return stands == tipGeometry().topLeft();
}

QStringList clippedTexts(QWidget& window)
{
    return tooSmall<QLabel>(window) + tooSmall<QAbstractButton>(window);
}

QStringList tabOrder(QWidget& window)
{
    const QWidget* first = window.focusWidget();
    if (first == nullptr) {
        qFatal("no widget has the focus");
    }
    QStringList names;
    do {
        names << window.focusWidget()->objectName();
        QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
    } while (window.focusWidget() != first && names.size() < 50);
    return names;
}
