// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <vector>

/// An article of the stock.
struct StockArticle
{
    QString id;
    QString name;
};

/// The stock's own copy of the menu's articles.
namespace StockArticles {
/// All of them by name.
std::vector<StockArticle> all();

/// Those that the menu no longer sells, by name.
std::vector<StockArticle> withdrawn();

/// The ids of those. Throws std::out_of_range on one that no int holds.
std::vector<int> withdrawnIds();

/// Those that the menu still sells, by name.
std::vector<StockArticle> current();

/// Articles of the menu that the stock lacks.
std::vector<StockArticle> missing();

/// Articles of the menu that the stock knows by another name, with their name in the menu.
std::vector<StockArticle> renamed();

/// Gives every stock article its name in the menu, then adds those that the stock lacks.
void synchronise();
/// The second of these two statements.
const char* addingMissing();

/// Removes the article \a id with the lines of its recipe, all of it or nothing. Returns whether it
/// is removed.
bool remove(const QString& id);
} // namespace StockArticles
