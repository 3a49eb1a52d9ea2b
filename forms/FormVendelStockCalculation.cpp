// SPDX-License-Identifier: MIT
#include "forms/FormVendelStockCalculation.h"

#include "common/Lists.h"
#include "common/MessageBoxes.h"
#include "common/Messages.h"
#include "common/Money.h"
#include "common/SlotGuard.h"
#include "common/Tools.h"
#include "forms/Consumption.h"
#include "ui_FormVendelStockCalculation.h"

namespace {
constexpr Texts texts{"FormVendelStockCalculationMessages"};
constexpr int conversionColumn = 3;
constexpr int conversionDecimals = 3;
constexpr int otherDecimals = 2;

QStringList detailCells(const std::vector<std::string>& row)
{
    const auto withUnit = [&](std::size_t quantity, std::size_t unit) {
        return formatQuantity(row.at(quantity)) + QLatin1Char(' ')
            + QString::fromStdString(row.at(unit));
    };
    return {QString::fromStdString(row.at(0)), QString::fromStdString(row.at(1)),
        QString::fromStdString(row.at(2)), withUnit(3, 4), withUnit(5, 6)};
}

QStringList totalCells(const std::vector<std::string>& row)
{
    QStringList cells;
    for (const std::string& text : row) {
        cells << formatQuantity(
            text, cells.size() == conversionColumn ? conversionDecimals : otherDecimals);
    }
    return cells;
}

/// Writes a row for each of \a rows from the first row on; rows that a list holds beyond them stay.
template <class Cells>
void write(QTableView& view, QStandardItemModel& model, const DbRows& rows, Cells cellsOf)
{
    const int held = model.rowCount();
    ListFiller filler(view, model);
    int row = 0;
    for (const auto& values : rows) {
        const QStringList cells = cellsOf(values);
        if (row >= held) {
            filler.add(cells);
        } else {
            for (int column = 0; column < cells.size(); ++column) {
                model.item(row, column)->setText(cells.at(column));
            }
        }
        ++row;
    }
}
} // namespace

FormVendelStockCalculation::FormVendelStockCalculation(
    const QString& date1, const QString& date2, QWidget* parent)
    : QDialog(parent)
    , ui_(std::make_unique<Ui_FormVendelStockCalculation>())
    , date1_(date1)
    , date2_(date2)
    , modelDetails_(new QStandardItemModel(0, 5, this))
    , modelTotals_(new QStandardItemModel(0, 5, this))
{
    guarded("Errors FormVendelStockCalculation Constructor : ", [this] {
        ui_->setupUi(this);
        setUpLists();
        setCaptions();
    });
}

FormVendelStockCalculation::~FormVendelStockCalculation() = default;

void FormVendelStockCalculation::setUpLists()
{
    setUpList(
        *ui_->tableView1, *modelDetails_, texts, Messages::Messages165, {50, 180, 150, 130, 100});
    setUpList(
        *ui_->tableView2, *modelTotals_, texts, Messages::Messages166, {150, 140, 100, 140, 100});
}

void FormVendelStockCalculation::setCaptions()
{
    constexpr Texts captions{"FormVendelStockCalculation"};
    setWindowTitle(captions(Messages::Messages167[0]));
    ui_->btn_Display->setText(captions(Messages::Messages168[0]));
    ui_->lbl_Period->setText(captions(Messages::Messages169[0]));
    ui_->lbl_To->setText(captions(Messages::Messages169[1]));
    ui_->lbl_Period_Date1->setText(date1_);
    ui_->lbl_To_Date2->setText(date2_);
}

void FormVendelStockCalculation::on_btn_Display_clicked()
{
    guarded("Errors FormVendelStockCalculation on_btn_Display_clicked : ",
        [this] { showConsumption(); });
}

void FormVendelStockCalculation::showConsumption()
{
    const QString from = Tools::ConvDate::ToUs(date1_);
    const QString to = Tools::ConvDate::ToUs(date2_);
    const DbRows details = Consumption::details(from, to);
    if (details.empty()) {
        notice(this, texts, Messages::Messages55);
        return;
    }
    write(*ui_->tableView1, *modelDetails_, details, detailCells);
    write(*ui_->tableView2, *modelTotals_, Consumption::totals(from, to), totalCells);
}
