// SPDX-License-Identifier: MIT
#include "forms/FormVendelHistorique.h"

#include "common/Memo.h"
#include "common/Messages.h"
#include "common/Money.h"
#include "common/SlotGuard.h"
#include "common/Tools.h"
#include "forms/FormVendelSaisieStock.h"
#include "forms/FormVendelStockCalculation.h"
#include "ui_FormVendelHistorique.h"
#include "widgets/Captions.h"
#include "widgets/HoverTip.h"
#include "widgets/Lists.h"
#include "widgets/MessageBoxes.h"
#include "widgets/OpenWindow.h"
#include "widgets/RowKeys.h"

#include <utility>

namespace {
constexpr Texts listTexts{"FormVendelMessages"};
constexpr Texts texts{"FormVendelHistoriqueMessages"};
const auto& saleLabels = Messages::Messages126;
const auto& dayLabels = Messages::Messages127;
const auto& groupLabels = Messages::Messages128;
const auto& saleTip = Messages::Messages69;
const auto& dayTip = Messages::Messages68;
const auto& totalLabel = Messages::Messages37;
const auto& purgeQuestion = Messages::Messages38;
const auto& historyIsEmpty = Messages::Messages30;
const auto& noSales = Messages::Messages34;
const auto& wrongLength = Messages::Messages36;
const auto& noDate = Messages::Messages32;
const auto& endsBeforeItsFirstDay = Messages::Messages31;
const auto& endsBeforeItStarts = Messages::Messages35;
const auto& sameDay = Messages::Messages33;
constexpr QPoint saleTipOffset(0, 80);
constexpr QPoint dayTipOffset(650, 80);

enum SaleColumn
{
    SaleMoment = 2
};

enum DayColumn
{
    Day
};

/// Shown in place of a date in the total's row.
QString totalMark() { return QStringLiteral("<-"); }

const std::array<std::string, 2>& refusalOf(Period::Fault fault)
{
    switch (fault) {
    case Period::Fault::Length:
        return wrongLength;
    case Period::Fault::NoDate:
        return noDate;
    case Period::Fault::BackwardsInTime:
        return endsBeforeItStarts;
    case Period::Fault::SameDay:
        return sameDay;
    default:
        return endsBeforeItsFirstDay;
    }
}
} // namespace

FormVendelHistorique::FormVendelHistorique(QWidget* parent)
    : QDialog(parent)
    , ui_(std::make_unique<Ui_FormVendelHistorique>())
    , modelSales_(new ListModel(this))
    , modelDays_(new ListModel(this))
    , modelGroups_(new ListModel(this))
    , tips_(*this, texts, [](QPoint position, const QString& date) {
        return isOffTheCorner(position) && date != totalMark();
    })
{
    guarded("FormVendelHistorique Contructor", [this] {
        ui_->setupUi(this);
        translateCaptions(*this);
        setUpLists();
        ui_->rb_First_Date->setChecked(true);
        tips_.add({*ui_->tableView1, SaleMoment, saleTip, saleTipOffset});
        tips_.add({*ui_->tableView2, Day, dayTip, dayTipOffset});
    });
}

FormVendelHistorique::~FormVendelHistorique() = default;

void FormVendelHistorique::setUpLists()
{
    setUpList(*ui_->tableView1, *modelSales_, listTexts, saleLabels, {210, 100, 250});
    setUpList(*ui_->tableView2, *modelDays_, listTexts, dayLabels, {150});
    setUpList(*ui_->tableView3, *modelGroups_, listTexts, groupLabels, {50, 210, 100, 100});
    onRowKeys(*ui_->tableView1, [this](const QModelIndex& index) { on_tableView1_clicked(index); });
    onRowKeys(*ui_->tableView2, [this](const QModelIndex& index) { on_tableView2_clicked(index); });
}

bool FormVendelHistorique::eventFilter(QObject* watched, QEvent* event)
{
    guarded("FormVendelHistorique eventFilter", [&] { tips_.show(watched, event); });
    return false;
}

Period FormVendelHistorique::typedPeriod() const
{
    return {ui_->txt_First_Date->text(), ui_->txt_Second_Date->text()};
}

bool FormVendelHistorique::ValidDate()
{
    bool isValid = false;
    guarded("FormVendelHistorique ValidDate", [&] {
        const Period period = typedPeriod();
        ui_->txt_First_Date->setText(period.typedFirst());
        ui_->txt_Second_Date->setText(period.typedSecond());
        const Period::Fault fault = period.fault();
        isValid = fault == Period::Fault::None || fault == Period::Fault::SameDay;
        if (!isValid) {
            notice(this, texts, refusalOf(fault));
        }
    });
    return isValid;
}

/// The sales of the typed period; nothing, and the user is told why, when there is no period or no
/// sale in it.
std::optional<FormVendelHistorique::Sales> FormVendelHistorique::salesOfPeriod()
{
    if (!ValidDate()) {
        return std::nullopt;
    }
    const Period period = typedPeriod();
    if (period.fault() == Period::Fault::SameDay) {
        notice(this, texts, refusalOf(Period::Fault::SameDay));
        return std::nullopt;
    }
    std::vector<SoldLine> lines = History::lines(period);
    if (lines.empty()) {
        const auto& message = noSales;
        notice(this,
            texts(message[0]) + period.typedFirst() + texts(message[1]) + period.typedSecond(),
            texts(message[2]));
        return std::nullopt;
    }
    return Sales{period, std::move(lines)};
}

void FormVendelHistorique::on_btn_Show_Date_clicked()
{
    guarded("FormVendelHistorique on_btn_Show_Date_clicked", [this] { Display_Date(); });
}

void FormVendelHistorique::Display_Date()
{
    guarded("FormVendelHistorique Display_Date", [this] { showDays(); });
}

void FormVendelHistorique::showDays()
{
    clearList(*modelDays_);
    const std::vector<QString> days = History::days();
    if (days.empty()) {
        notice(this, texts, historyIsEmpty);
        return;
    }
    appendRows(*ui_->tableView2, *modelDays_, days,
        [](const QString& day) { return QStringList{Tools::ConvDate::ToUs_mdy(day)}; });
}

void FormVendelHistorique::on_btn_View_Historical_clicked()
{
    guarded("FormVendelHistorique on_btn_View_Historical_clicked", [this] { Display_History(); });
}

void FormVendelHistorique::Display_History()
{
    guarded("FormVendelHistorique Display_History", [this] {
        if (const auto sales = salesOfPeriod()) {
            showSales(*sales);
        }
    });
}

void FormVendelHistorique::showSales(const Sales& sales)
{
    clearList(*modelSales_);
    Memo shown(&formatExactCell);
    appendRows(*ui_->tableView1, *modelSales_, sales.lines, [&shown](const SoldLine& line) {
        return QStringList{
            shown(line.article), shown(line.price), Tools::ConvDate::ToUs_mdy(line.moment)};
    });
    showGroups(sales.period);
}

void FormVendelHistorique::showGroups(const Period& period)
{
    clearList(*modelGroups_);
    appendRows(
        *ui_->tableView3, *modelGroups_, History::groups(period), [](const SoldGroup& group) {
            return QStringList{group.count, formatExactCell(group.article),
                formatExactCell(group.price), formatExactCell(group.amount)};
        });
}

void FormVendelHistorique::on_tableView2_clicked(const QModelIndex& index)
{
    guarded("FormVendelHistorique on_tableView2_clicked", [&] { pickDate(index); });
}

void FormVendelHistorique::on_tableView1_clicked(const QModelIndex& index)
{
    guarded("FormVendelHistorique on_tableView1_clicked",
        [&] { pickDate(index.sibling(index.row(), SaleMoment)); });
}

void FormVendelHistorique::pickDate(const QModelIndex& cell)
{
    const QString date = cell.data().toString();
    if (cell.isValid() && date != totalMark()) {
        (ui_->rb_First_Date->isChecked() ? ui_->txt_First_Date : ui_->txt_Second_Date)
            ->setText(date);
    }
}

void FormVendelHistorique::on_btn_Del_Seizure_clicked()
{
    guarded("FormVendelHistorique on_btn_Del_Seizure_clicked", [this] {
        ui_->txt_First_Date->setText(QString());
        ui_->txt_Second_Date->setText(QString());
    });
}

void FormVendelHistorique::on_btn_Total_clicked()
{
    guarded("FormVendelHistorique on_btn_Total_clicked", [this] { showTotal(); });
}

void FormVendelHistorique::showTotal()
{
    const auto sales = salesOfPeriod();
    if (!sales) {
        return;
    }
    const QString sum = History::total(sales->period);
    if (sum.isEmpty()) {
        return;
    }
    showSales(*sales);
    ListFiller(*ui_->tableView1, *modelSales_)
        .addTotal({texts(totalLabel[0]), formatExactCell(sum), totalMark()});
    ui_->tableView1->scrollToBottom();
}

void FormVendelHistorique::on_btn_Clear_clicked()
{
    guarded("FormVendelHistorique on_btn_Clear_clicked", [this] { purge(); });
}

void FormVendelHistorique::purge()
{
    if (!salesOfPeriod()) {
        return;
    }
    const Period period = typedPeriod();
    const auto& question = purgeQuestion;
    if (!confirm(this,
            texts(question[0]) + period.typedFirst() + texts(question[1]) + period.typedSecond(),
            texts(question[2]), Preset::No)) {
        return;
    }
    History::purge(period);
    clearList(*modelSales_);
    clearList(*modelGroups_);
    Display_History();
    Display_Date();
}

void FormVendelHistorique::on_actionSaisie_Stock_triggered()
{
    guarded("FormVendelHistorique on_actionSaisie_Stock_triggered",
        [this] { openWindow<FormVendelSaisieStock>(this); });
}

void FormVendelHistorique::on_actionCalcul_Stock_triggered()
{
    guarded("FormVendelHistorique on_actionCalcul_Stock_triggered", [this] {
        if (salesOfPeriod()) {
            openWindow<FormVendelStockCalculation>(
                this, ui_->txt_First_Date->text(), ui_->txt_Second_Date->text());
        }
    });
}
