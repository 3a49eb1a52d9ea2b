// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/Captured.h"
#include "tests/support/Shop.h"

#include <QAbstractButton>
#include <QApplication>
#include <QTest>
#include <QWidget>

/// A shop whose menu sells Café (1) and Thé (2); the stock knows both and Sirop (3), which the menu
/// no longer sells. Café consumes 7 g of Grains and 1.5 cl of Lait, Sirop 3 cl of Menthe.
struct StockSample : Shop
{
    StockSample()
    {
        sql("insert into Article (article, prix) values ('Café', 2), ('Thé', 2.5)");
        sql("insert into ArticleStock values (1, 'Café'), (2, 'Thé'), (3, 'Sirop')");
        sql("insert into DoseStock values (10, 1, 'Lait', 1.5, 'cl'), (11, 1, 'Grains', 7, 'g'), "
            "(12, 3, 'Menthe', 3, 'cl')");
    }
};

/// Shows \a window and waits until it takes keys.
inline bool showActive(QWidget& window)
{
    window.show();
    return QTest::qWaitFor([&] { return QApplication::activeWindow() == &window; });
}

/// What the database layer said so far, without what else stands in \a output.
inline QByteArray diagnostics(CapturedOutput& output)
{
    QByteArray lines;
    const auto written = output.text().split('\n');
    for (const QByteArray& line : written) {
        if (line.startsWith("Errors Db::DbLoad")) {
            lines += line + '\n';
        }
    }
    return lines;
}

/// Whether any button of \a window is pressed by Return while another widget has the focus.
inline bool anyAutoDefault(const QWidget& window)
{
    const auto buttons = window.findChildren<QAbstractButton*>();
    for (const auto* button : buttons) {
        if (button->property("autoDefault").toBool()) {
            return true;
        }
    }
    return false;
}

/// Whether the shown tip is beside \a cursor (screen pixels).
inline bool tipIsBeside(QPoint cursor)
{
    const auto widgets = QApplication::topLevelWidgets();
    for (const QWidget* widget : widgets) {
        if (widget->inherits("QTipLabel") && widget->isVisible()) {
            return (widget->pos() - cursor).manhattanLength() < 40;
        }
    }
    return false;
}
