// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <QModelIndex>
#include <QStandardItemModel>

#include <memory>

class Ui_FormVendelSaisieStock;

/// The stock editor: the stock articles and the recipe of the selected one.
class FormVendelSaisieStock : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FormVendelSaisieStock)

public:
    explicit FormVendelSaisieStock(QWidget* parent = nullptr);
    ~FormVendelSaisieStock() override;

    /// Reads the stock articles again; the argument changes nothing.
    void Display(bool);

    /// Reads the recipe of the stock article \a id again.
    void Display_DoseStock(const QString& id);

    /// Empties the recipe list.
    void Clear_List();

    bool eventFilter(QObject* watched, QEvent* event) override;

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
    QStandardItemModel* modelArticles_;
    QStandardItemModel* modelCompositions_;
};
