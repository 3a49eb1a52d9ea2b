// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include <memory>

class Ui_FormVendelSaisieStockComposition;

/// Adds one line to the recipe of a stock article.
class FormVendelSaisieStockComposition : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FormVendelSaisieStockComposition)

public:
    /// For the stock article \a id, named \a article; \a parent is the FormVendelSaisieStock whose
    /// recipe list shows the new line.
    FormVendelSaisieStockComposition(
        const QString& article, const QString& id, QWidget* parent = nullptr);
    ~FormVendelSaisieStockComposition() override;

private slots:
    void on_btn_Add_clicked();

private:
    void addComposition();

    std::unique_ptr<Ui_FormVendelSaisieStockComposition> ui_;
    QString article_;
    QString id_;
};
