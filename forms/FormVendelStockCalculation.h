// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/ListModel.h"

#include <QDialog>

#include <memory>

class Ui_FormVendelStockCalculation;

/// What the sales of a period consumed, by article and by composition.
class FormVendelStockCalculation : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FormVendelStockCalculation)

public:
    /// For the sales from \a date1 to \a date2, month first with or without a time of day; a second
    /// date without one excludes its day. Nothing is computed yet.
    FormVendelStockCalculation(
        const QString& date1, const QString& date2, QWidget* parent = nullptr);
    ~FormVendelStockCalculation() override;

private slots:
    void on_btn_Display_clicked();

private:
    void setUpLists();
    void showConsumption();

    std::unique_ptr<Ui_FormVendelStockCalculation> ui_;
    QString date1_;
    QString date2_;
    ListModel* modelDetails_;
    ListModel* modelTotals_;
};
