// SPDX-License-Identifier: MIT
#pragma once

#include "store/Articles.h"
#include "widgets/HoverTip.h"
#include "widgets/ListModel.h"

#include <QDialog>
#include <QModelIndex>

#include <array>
#include <memory>
#include <optional>
#include <string>

class Ui_FormVendelSaisieArticle;

/// The editor of the menu's articles: shows and searches them, marks duplicate names, adds, renames
/// and removes.
class FormVendelSaisieArticle : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FormVendelSaisieArticle)

public:
    explicit FormVendelSaisieArticle(QWidget* parent = nullptr);
    ~FormVendelSaisieArticle() override;

    /// Appends the whole menu to the list; a notice says that it is empty or has duplicate names.
    void Display();

    bool eventFilter(QObject* watched, QEvent* event) override;

private slots:
    void on_tableView_doubleClicked(const QModelIndex& index);
    void on_txt_Article_textChanged(const QString& text);
    void on_btn_Effacer_Saisie_clicked();
    void on_btn_Afficher_clicked();
    void on_btn_Ajouter_clicked();
    void on_btn_Supprimer_clicked();
    void on_btn_Renommer_clicked();
    void on_btn_Rechercher_clicked();

private:
    void checkLength();

    void showMenu();
    void append(const std::vector<Article>& articles);
    void reportDuplicates(const std::array<std::string, 2>& message, std::optional<int> count);

    void search();
    void add();
    void removeCurrent();
    void renameCurrent();
    void goToFirstField();
    void trimFields();
    QString currentCell(int column) const;

    std::unique_ptr<Ui_FormVendelSaisieArticle> ui_;
    ListModel* model_;
    HoverTips tips_;
};
