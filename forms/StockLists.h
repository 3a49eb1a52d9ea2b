// SPDX-License-Identifier: MIT
#pragma once

#include "common/Texts.h"
#include "db/Db.h"

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

/// Appends \a articles (id, name), all of the given \a validity.
void addArticles(
    QTableView& view, QStandardItemModel& model, const DbRows& articles, const QString& validity);

/// Fills the emptied recipe list with what is stored for \a article.
void showCompositions(QTableView& view, QStandardItemModel& model, const QString& article);

/// The text of \a column in the row of \a index.
QString textAt(const QModelIndex& index, int column);

/// The key in column 0 of the row of \a index while \a index is selected in \a view.
std::optional<QString> selectedKey(const QTableView& view, const QModelIndex& index);

/// The row that a button acts on: the current one, however many are selected; nothing when none is
/// selected.
std::optional<QModelIndex> chosenRow(const QTableView& view);

/// For a mouse move over \a view shows, at the cursor, head and tail of \a message around the text
/// of \a column; without a text there any tip goes.
void showTipOver(QWidget& window, const QTableView& view, const QObject* watched,
    const QEvent* event, int column, const Texts& texts, const std::array<std::string, 2>& message);

/// Runs \a action with the current index of \a view when \a key is pressed in it; held down, the
/// key acts once.
void onKey(QTableView& view, Qt::Key key, std::function<void(const QModelIndex&)> action);
} // namespace StockLists
