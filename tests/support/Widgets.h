// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractItemView>
#include <QEvent>
#include <QPoint>
#include <QPointF>
#include <QRect>
#include <QString>
#include <QStringList>
#include <QTest>
#include <QWidget>

/// The child of \a window with the given object name; ends the test program when there is none.
template <class Widget> Widget& child(QWidget& window, const char* name)
{
    auto* found = window.findChild<Widget*>(QString::fromLatin1(name));
    if (found == nullptr) {
        qFatal("no widget %s", name);
    }
    return *found;
}

/// Clicks the middle of the widget \a name with the left mouse button.
void click(QWidget& window, const char* name);

/// Presses and releases the left mouse button once on the cell of the list \a name.
void clickCell(QWidget& window, const char* name, int row, int column,
    Qt::KeyboardModifiers modifiers = Qt::NoModifier);

/// Double-clicks the cell of the list \a name, as a mouse does it: press, release, double click,
/// release.
void doubleClickCell(QWidget& window, const char* name, int row, int column,
    Qt::KeyboardModifiers modifiers = Qt::NoModifier);

/// Moves the mouse over \a point of \a widget.
void hoverPoint(QWidget& widget, QPointF point);

/// Moves the mouse over the cell of the list \a name.
void hoverCell(QWidget& window, const char* name, int row, int column);

/// The texts of one row of the list \a name, hidden columns included.
QStringList rowTexts(QWidget& window, const char* name, int row);

/// The number of rows of the list \a name.
int rowCount(QWidget& window, const char* name);

/// Opens the menu \a menu of the menu bar with the mouse and clicks its entry \a action.
void chooseMenu(QWidget& window, const char* menu, const char* action);

/// The visible tip's text, empty when there is none.
QString tipText();

/// The visible tip, null when there is none.
QWidget* visibleTip();

/// Whether the visible tip was told to go: it stays for another third of a second.
bool isTipLeaving();

/// The visible tip's place on the screen; ends the test program when there is none.
QRect tipGeometry();

/// Whether the visible tip stands where Qt puts one that is asked for at \a point (screen pixels).
bool tipStandsAt(QPoint point);

/// Names of the visible labels and buttons of \a window that need more room than they have.
QStringList clippedTexts(QWidget& window);

/// Names of \a window's widgets in the order in which Tab reaches them, from the one that has the
/// focus on.
QStringList tabOrder(QWidget& window);

/// Counts the events of \a type that reach \a watched while it lives.
class EventCount : public QObject
{
public:
    EventCount(QObject& watched, QEvent::Type type)
        : type_(type)
    {
        // clazy 1.11 ends in an assertion where a filter is installed on a reference.
        QObject* object = &watched;
        object->installEventFilter(this);
    }

    int value() const { return value_; }

    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        value_ += event->type() == type_ ? 1 : 0;
        return false;
    }

private:
    QEvent::Type type_;
    int value_ = 0;
};
