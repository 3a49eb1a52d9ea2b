// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/ListModel.h"

#include <QDialog>

#include <memory>

class Ui_FormVendelSaisieStockMaj;

/// Shows what the stock's copy of the menu lacks and brings it up to date.
class FormVendelSaisieStockMaj : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FormVendelSaisieStockMaj)

public:
    /// \a parent is the FormVendelSaisieStock that shows the outcome.
    explicit FormVendelSaisieStockMaj(QWidget* parent = nullptr);
    ~FormVendelSaisieStockMaj() override;

private slots:
    void on_btn_Update_clicked();

private:
    void setUpPreview();
    void synchronise();

    std::unique_ptr<Ui_FormVendelSaisieStockMaj> ui_;
    ListModel* model_;
};
