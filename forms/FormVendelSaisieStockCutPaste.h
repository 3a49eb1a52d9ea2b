// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/HoverTip.h"
#include "widgets/ListModel.h"

#include <QDialog>
#include <QModelIndex>

#include <memory>

class Ui_FormVendelSaisieStockCutPaste;

/// Moves recipe lines, one at a time, from an article that the menu no longer sells to one that it
/// sells.
class FormVendelSaisieStockCutPaste : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FormVendelSaisieStockCutPaste)

public:
    /// \a parent is the FormVendelSaisieStock whose recipe list a move empties.
    explicit FormVendelSaisieStockCutPaste(QWidget* parent = nullptr);
    ~FormVendelSaisieStockCutPaste() override;

    /// Fills the list of withdrawn articles.
    void Display();

    /// Reads the recipe of the stock article \a id again.
    void Display_DoseStock(const QString& id);

    bool eventFilter(QObject* watched, QEvent* event) override;

private slots:
    void on_tableViewSelection(const QModelIndex& current, const QModelIndex& previous);
    void on_tableView1_clicked(const QModelIndex& index);
    void on_btn_Modify_clicked();

private:
    void setUpLists();
    void fillTargets();
    void showMarkedRecipe();
    void moveLine();

    std::unique_ptr<Ui_FormVendelSaisieStockCutPaste> ui_;
    ListModel* modelArticles_;
    ListModel* modelCompositions_;
    HoverTips tips_;
};
