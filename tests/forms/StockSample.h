// SPDX-License-Identifier: MIT
#pragma once

#include "forms/FormVendelSaisieStock.h"
#include "forms/FormVendelSaisieStockCutPaste.h"
#include "forms/FormVendelSaisieStockMaj.h"
#include "tests/support/Captured.h"
#include "tests/support/Shop.h"
#include "tests/support/Widgets.h"

#include <QApplication>
#include <QTableView>
#include <QTest>

/// A shop whose menu sells Café (1) and Thé (2); the stock knows both and Sirop (3), which the menu
/// no longer sells. Café consumes 7 g of Grains and 1.5 cl of Lait, Sirop 3 cl of Menthe.
struct StockSample : Shop
{
    /// The statements \a change change the sample.
    explicit StockSample(const char* change = "")
    {
        fill("insert into Article (article, prix) values ('Café', 2), ('Thé', 2.5);"
             "insert into ArticleStock values (1, 'Café'), (2, 'Thé'), (3, 'Sirop');"
             "insert into DoseStock values (10, 1, 'Lait', 1.5, 'cl'), (11, 1, 'Grains', 7, 'g'),"
             " (12, 3, 'Menthe', 3, 'cl')");
        fill(change);
    }

    /// The keys of all lines of recipes.
    QString lines() const { return cell("select group_concat(idlig) from DoseStock"); }
    /// The keys of all stock articles.
    QString articles() const { return cell("select group_concat(id) from ArticleStock"); }
};

/// Shows \a window and waits until it takes keys.
inline bool showActive(QWidget& window)
{
    window.show();
    return QTest::qWaitFor([&] { return QApplication::activeWindow() == &window; });
}

/// The stock editor of the sample shop, on the screen, its articles listed: Café, Sirop, Thé.
struct OpenStock : StockSample
{
    FormVendelSaisieStock window;
    QTableView& left = child<QTableView>(window, "tableView1");
    QTableView& right = child<QTableView>(window, "tableView2");

    explicit OpenStock(const char* change = "")
        : StockSample(change)
    {
        if (!showActive(window)) {
            qFatal("the stock editor does not become active");
        }
        window.Display(true);
    }

    /// Marks the article in \a row with the mouse.
    void mark(int row) { clickCell(window, "tableView1", row, 1); }
};

/// A \a Window of the sample shop that the stock editor opens, on the screen.
template <class Window> struct OpenOverStock : StockSample
{
    FormVendelSaisieStock stock;
    Window window{&stock};

    explicit OpenOverStock(const char* change = "")
        : StockSample(change)
    {
        if (!showActive(window)) {
            qFatal("the window does not become active");
        }
    }
};

using OpenUpdate = OpenOverStock<FormVendelSaisieStockMaj>;

/// The transfer window; Sirop alone is listed, at first.
using OpenTransfer = OpenOverStock<FormVendelSaisieStockCutPaste>;

/// The compositions that the recipe on the right of \a window shows, parted by "|".
inline QString recipe(QWidget& window)
{
    QStringList names;
    for (int row = 0; row < rowCount(window, "tableView2"); ++row) {
        names << rowTexts(window, "tableView2", row).at(2);
    }
    return names.join('|');
}

/// What the database layer said so far.
inline QByteArray diagnostics(CapturedOutput& output) { return output.text(); }
