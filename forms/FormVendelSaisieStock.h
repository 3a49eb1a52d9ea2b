// SPDX-License-Identifier: MIT
#pragma once

#include "common/Texts.h"
#include "store/StockArticles.h"
#include "widgets/HoverTip.h"
#include "widgets/ListModel.h"

#include <QDialog>
#include <QModelIndex>

#include <memory>
#include <span>
#include <string>
#include <vector>

class QTableView;
class Ui_FormVendelSaisieStock;

/// The stock editor: the stock articles and the recipe of the selected one.
class FormVendelSaisieStock : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FormVendelSaisieStock)

public:
    enum ArticleColumn
    {
        ArticleId,
        ArticleName,
        ArticleValidity
    };
    enum RecipeColumn
    {
        RecipeLineKey,
        RecipeArticle,
        RecipeComposition
    };

    explicit FormVendelSaisieStock(QWidget* parent = nullptr);
    ~FormVendelSaisieStock() override;

    /// Reads the stock articles again; the argument changes nothing.
    void Display(bool);

    /// Reads the recipe of the stock article \a id again.
    void Display_DoseStock(const QString& id);

    /// Empties the recipe list.
    void Clear_List();

    bool eventFilter(QObject* watched, QEvent* event) override;

    /// The two lists, here and in the transfer window: columns, widths and looks.
    static void setUpArticles(QTableView& view, ListModel& model, const Texts& context,
        std::span<const std::string> labels);
    static void setUpRecipe(QTableView& view, ListModel& model, const Texts& context,
        std::span<const std::string> labels);

    /// Appends \a articles, all of the given \a validity.
    static void addArticles(QTableView& view, QStandardItemModel& model,
        const std::vector<StockArticle>& articles, const QString& validity);

    /// Shows the recipe that is stored for \a article in place of what \a view shows.
    static void showRecipe(QTableView& view, QStandardItemModel& model, const QString& article);

private slots:
    void on_btn_Display_clicked();
    void on_btn_Update_clicked();
    void on_btn_Cut_Paste_clicked();
    void on_btn_Remove_clicked();
    void on_tableView1_clicked(const QModelIndex& index);
    void on_tableView1_doubleClicked(const QModelIndex& index);
    void on_tableView2_doubleClicked(const QModelIndex& index);
    void on_tableViewSelection(const QModelIndex& current, const QModelIndex& previous);

private:
    void setUpLists();
    void showArticles();
    void showMarkedRecipe();
    void composeRecipeOf(const QModelIndex& index);
    void removeArticle();
    void removeLine(const QModelIndex& index);

    std::unique_ptr<Ui_FormVendelSaisieStock> ui_;
    ListModel* modelArticles_;
    ListModel* modelCompositions_;
    HoverTips tips_;
};
