// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QVector>
#include <QWidget>

/// One text that a window shows, and where.
struct ShownText
{
    /// Object name of the widget, with the place inside it ("tableView1 header 2").
    QString place;
    QString text;
    /// Pixels that the text lacks; 0 or less when all of it is seen.
    int missing = 0;
};

/// Every text that \a window and its widgets show: title, labels, buttons, menus, headers and cells
/// of lists, choices, texts of documents, tips, and what a screen reader says.
QVector<ShownText> shownTexts(const QWidget& window);
