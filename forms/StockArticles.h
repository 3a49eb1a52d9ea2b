// SPDX-License-Identifier: MIT
#pragma once

#include "db/Db.h"

#include <QString>

/// The stock's own copy of the menu's articles.
namespace StockArticles {
/// All of them by name: id, name.
DbRows all();

/// Those that the menu no longer sells, by name: id, name.
DbRows withdrawn();

/// Those that the menu still sells, by name: id, name.
DbRows current();

/// Articles of the menu that the stock lacks: id, name.
DbRows missing();

/// Articles of the menu that the stock knows by another name: id, name, name in the stock.
DbRows renamed();

/// Gives every stock article the name that it bears in the menu, then adds those that the stock
/// lacks.
void synchronise();

/// Removes the article \a id with the lines of its recipe; it stays when its lines cannot be
/// removed.
void remove(const QString& id);
} // namespace StockArticles
