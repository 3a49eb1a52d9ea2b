// SPDX-License-Identifier: MIT
#include "forms/FormVendelStockCalculation.h"

#include "common/Messages.h"
#include "common/Money.h"
#include "common/SlotGuard.h"
#include "common/Tools.h"
#include "store/Consumption.h"
#include "ui_FormVendelStockCalculation.h"
#include "widgets/Captions.h"
#include "widgets/Lists.h"
#include "widgets/MessageBoxes.h"

namespace {
constexpr Texts texts{"FormVendelStockCalculationMessages"};
const auto& partLabels = Messages::Messages165;
const auto& totalLabels = Messages::Messages166;
const auto& nothingConsumed = Messages::Messages55;
constexpr int conversionDecimals = 3;

QString withUnit(const QString& quantity, const QString& unit)
{
    return Tools::isNum(quantity) ? formatQuantity(quantity) + QLatin1Char(' ') + unit : quantity;
}

QStringList detailCells(const ConsumedPart& part)
{
    return {part.sales, part.article, part.composition, withUnit(part.dose, part.doseUnit),
        withUnit(part.amount, part.amountUnit)};
}

/// A composition whose name is a number is shown like a quantity.
QStringList totalCells(const ConsumedTotal& total)
{
    return {formatQuantity(total.composition), formatQuantity(total.amount),
        formatQuantity(total.unit), formatQuantity(total.converted, conversionDecimals),
        formatQuantity(total.convertedUnit)};
}

/// Writes \a rows over those of the list, from the first on. Rows that the list has beyond them
/// stay: the window has never emptied its lists.
template <class Rows, class Cells>
void write(QTableView& view, QStandardItemModel& model, const Rows& rows, Cells cellsOf)
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
    , modelDetails_(new ListModel(0, 5, this))
    , modelTotals_(new ListModel(0, 5, this))
{
    guarded("FormVendelStockCalculation Constructor", [this] {
        ui_->setupUi(this);
        translateCaptions(*this);
        ui_->lbl_Period_Date1->setText(date1_);
        ui_->lbl_To_Date2->setText(date2_);
        setUpLists();
    });
}

FormVendelStockCalculation::~FormVendelStockCalculation() = default;

void FormVendelStockCalculation::setUpLists()
{
    setUpList(*ui_->tableView1, *modelDetails_, texts, partLabels, {50, 180, 150, 130, 100});
    setUpList(*ui_->tableView2, *modelTotals_, texts, totalLabels, {150, 140, 100, 140, 100});
}

void FormVendelStockCalculation::on_btn_Display_clicked()
{
    guarded("FormVendelStockCalculation on_btn_Display_clicked", [this] { showConsumption(); });
}

void FormVendelStockCalculation::showConsumption()
{
    const QString from = Tools::ConvDate::ToUs(date1_);
    const QString to = Tools::ConvDate::ToUs(date2_);
    const std::vector<ConsumedPart> details = Consumption::details(from, to);
    if (details.empty()) {
        notice(this, texts, nothingConsumed);
        return;
    }
    write(*ui_->tableView1, *modelDetails_, details, detailCells);
    write(*ui_->tableView2, *modelTotals_, Consumption::totals(from, to), totalCells);
}
