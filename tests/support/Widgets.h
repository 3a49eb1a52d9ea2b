// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractItemView>
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
void clickCell(QWidget& window, const char* name, int row, int column);

/// Double-clicks the cell of the list \a name, as a mouse does it: press, release, double click,
/// release.
void doubleClickCell(QWidget& window, const char* name, int row, int column);

/// Moves the mouse over the cell of the list \a name.
void hoverCell(QWidget& window, const char* name, int row, int column);

/// The texts of one row of the list \a name, hidden columns included.
QStringList rowTexts(QWidget& window, const char* name, int row);

/// The number of rows of the list \a name.
int rowCount(QWidget& window, const char* name);
