// SPDX-License-Identifier: MIT
#pragma once

#include "store/History.h"
#include "widgets/HoverTip.h"
#include "widgets/ListModel.h"

#include <QDialog>
#include <QPoint>

#include <array>
#include <memory>
#include <optional>
#include <string>

class QModelIndex;
class QTableView;
class Ui_FormVendelHistorique;

/// The history of sales: the days with sales, the sales of a period line by line and grouped, their
/// total, their purge, and the way to the stock windows.
class FormVendelHistorique : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FormVendelHistorique)

public:
    explicit FormVendelHistorique(QWidget* parent = nullptr);
    ~FormVendelHistorique() override;

    /// Trims both date fields and says what is wrong with them, if anything; two equal days pass.
    /// Returns whether they make a period.
    bool ValidDate();

    /// Lists the days with sales.
    void Display_Date();

    /// Lists the sales of the typed period, line by line and grouped by article and price.
    void Display_History();

    bool eventFilter(QObject* watched, QEvent* event) override;

private slots:
    void on_btn_Show_Date_clicked();
    void on_btn_View_Historical_clicked();
    void on_tableView2_clicked(const QModelIndex& index);
    void on_tableView1_clicked(const QModelIndex& index);
    void on_btn_Del_Seizure_clicked();
    void on_btn_Total_clicked();
    void on_btn_Clear_clicked();
    void on_actionSaisie_Stock_triggered();
    void on_actionCalcul_Stock_triggered();

private:
    struct Sales
    {
        Period period;
        std::vector<SoldLine> lines;
    };

    void setUpLists();

    Period typedPeriod() const;
    std::optional<Sales> salesOfPeriod();
    void showDays();
    void showSales(const Sales& sales);
    void showGroups(const Period& period);
    void showTotal();
    void purge();
    void pickDate(const QModelIndex& cell);

    std::unique_ptr<Ui_FormVendelHistorique> ui_;
    ListModel* modelSales_;
    ListModel* modelDays_;
    ListModel* modelGroups_;
    HoverTips tips_;
};
