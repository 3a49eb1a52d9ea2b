// SPDX-License-Identifier: MIT
#pragma once

#include "common/Texts.h"
#include "store/StockArticles.h"

#include <QModelIndex>
#include <QString>

#include <array>
#include <functional>
#include <optional>
#include <span>
#include <string>

class QEvent;
class QObject;
class QStandardItemModel;
class QTableView;
class QWidget;

/// What the stock editor and the transfer window have in common: the list of stock articles and
/// the list of one article's recipe.
namespace StockLists {
enum ArticleColumn
{
    ArticleId,
    ArticleName,
    ArticleValidity
};

enum CompositionColumn
{
    CompositionLine,
    CompositionArticle,
    CompositionName,
    CompositionDose,
    CompositionUnit
};

/// Columns, widths and looks of the article list.
void setUpArticles(QTableView& view, QStandardItemModel& model, const Texts& texts,
    std::span<const std::string> labels);

/// Columns, widths and looks of the recipe list; the owning article's column is hidden.
void setUpCompositions(QTableView& view, QStandardItemModel& model, const Texts& texts,
    std::span<const std::string> labels);

/// Appends \a articles, all of the given \a validity.
void addArticles(QTableView& view, QStandardItemModel& model,
    const std::vector<StockArticle>& articles, const QString& validity);

/// Fills the emptied recipe list with what is stored for \a article.
void showCompositions(QTableView& view, QStandardItemModel& model, const QString& article);

/// The key in column 0 of the row of \a index while \a index is selected in \a view.
std::optional<QString> selectedKey(const QTableView& view, const QModelIndex& index);

/// The key of the marked article: of the current row while it is selected, else of the only
/// selected one.
std::optional<QString> markedKey(const QTableView& view);

/// The row that a button acts on: the current one, however many are selected; nothing when none is
/// selected.
std::optional<QModelIndex> chosenRow(const QTableView& view);

/// Runs \a action with the current index of \a view when \a key is pressed in it; held down, the
/// key acts once.
void onKey(QTableView& view, Qt::Key key, std::function<void(const QModelIndex&)> action);
} // namespace StockLists
