// SPDX-License-Identifier: MIT
#include "forms/FormVendelHistorique.h"

#include "common/HoverTip.h"
#include "common/Lists.h"
#include "common/MessageBoxes.h"
#include "common/Messages.h"
#include "common/Money.h"
#include "common/SlotGuard.h"
#include "common/Tools.h"
#include "common/Windows.h"
#include "forms/FormVendelSaisieStock.h"
#include "forms/FormVendelStockCalculation.h"
#include "ui_FormVendelHistorique.h"

#include <QStandardItemModel>

#include <unordered_map>
#include <utility>

namespace {
constexpr Texts listTexts{"FormVendelMessages"};
constexpr Texts texts{"FormVendelHistoriqueMessages"};
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

enum StoredColumn
{
    StoredArticle = 1,
    StoredPrice,
    StoredMoment
};

/// What stands in place of a date in the row of the total.
QString totalMark()
{
    return QStringLiteral("<-");
}

/// Shown texts by their stored ones. Cells that show the same share one string: the sales of a year
/// name some forty articles at some forty prices.
class CellTexts
{
public:
    const QString& operator()(const std::string& stored)
    {
        const auto [entry, isNew] = shown_.try_emplace(stored);
        if (isNew) {
            entry->second = formatExactCell(stored);
        }
        return entry->second;
    }

private:
    std::unordered_map<std::string, QString> shown_;
};

DbRows loadPeriod(const QString& sql, const Period& period)
{
    return Db::DbLoad(sql.arg(period.from(), period.to()).toUtf8().constData());
}

const std::array<std::string, 2>& refusalOf(Period::Fault fault)
{
    switch (fault) {
    case Period::Fault::Length:
        return Messages::Messages36;
    case Period::Fault::NoDate:
        return Messages::Messages32;
    case Period::Fault::BackwardsInTime:
        return Messages::Messages35;
    case Period::Fault::SameDay:
        return Messages::Messages33;
    default:
        return Messages::Messages31;
    }
}
} // namespace

FormVendelHistorique::FormVendelHistorique(QWidget* parent)
    : QDialog(parent)
    , ui_(std::make_unique<Ui_FormVendelHistorique>())
    , modelSales_(new QStandardItemModel(this))
    , modelDays_(new QStandardItemModel(this))
    , modelGroups_(new QStandardItemModel(this))
{
    guarded("Errors FormVendelHistorique Contructor : ", [this] {
        ui_->setupUi(this);
        setUpLists();
        ui_->rb_First_Date->setChecked(true);
        watchMouse(*ui_->tableView1, *this);
        watchMouse(*ui_->tableView2, *this);
        setCaptions();
    });
}

FormVendelHistorique::~FormVendelHistorique() = default;

void FormVendelHistorique::setUpLists()
{
    setUpList(*ui_->tableView1, *modelSales_, listTexts, Messages::Messages126, {210, 100, 250});
    setUpList(*ui_->tableView2, *modelDays_, listTexts, Messages::Messages127, {150});
    setUpList(
        *ui_->tableView3, *modelGroups_, listTexts, Messages::Messages128, {50, 210, 100, 100});
}

void FormVendelHistorique::setCaptions()
{
    constexpr Texts captions{"FormVendelHistorique"};
    setWindowTitle(captions(Messages::Messages129[0]));
    ui_->btn_View_Historical->setText(captions(Messages::Messages130[0]));
    ui_->btn_Show_Date->setText(captions(Messages::Messages131[0]));
    ui_->btn_Total->setText(captions(Messages::Messages132[0]));
    ui_->btn_Clear->setText(captions(Messages::Messages133[0]));
    ui_->lbl_First_Date->setText(captions(Messages::Messages134[0]));
    ui_->lbl_Second_Date->setText(captions(Messages::Messages135[0]));
    ui_->rb_First_Date->setText(captions(Messages::Messages136[0]));
    ui_->rb_Second_Date->setText(captions(Messages::Messages137[0]));
    ui_->btn_Del_Seizure->setText(captions(Messages::Messages138[0]));
    ui_->menuStock->setTitle(captions(Messages::Messages139[0]));
    ui_->actionSaisie_Stock->setText(captions(Messages::Messages140[0]));
    ui_->actionCalcul_Stock->setText(captions(Messages::Messages141[0]));
    ui_->groupBox->setTitle(captions(Messages::Messages142[0]));
}

bool FormVendelHistorique::eventFilter(QObject* watched, QEvent* event)
{
    guarded("Errors FormVendelHistorique eventFilter : ", [&] {
        showHoverTip(
            *ui_->tableView1, SaleMoment, saleTipOffset, Messages::Messages69, watched, event);
        showHoverTip(*ui_->tableView2, Day, dayTipOffset, Messages::Messages68, watched, event);
    });
    return false;
}

void FormVendelHistorique::showHoverTip(const QTableView& view, int column, QPoint offset,
    const std::array<std::string, 2>& message, const QObject* watched, const QEvent* event)
{
    const auto position = mouseMoveOver(view, watched, event);
    if (!position) {
        return;
    }
    const QString date = textUnder(view, *position, column);
    const bool isInside = position->x() > 0 || position->y() > 0;
    if (isInside && !date.isEmpty() && date != totalMark()) {
        showTip(*this, *position + offset, texts(message[0]) + date + texts(message[1]));
    } else {
        hideTip();
    }
}

Period FormVendelHistorique::typedPeriod() const
{
    return {ui_->txt_First_Date->text(), ui_->txt_Second_Date->text()};
}

bool FormVendelHistorique::ValidDate()
{
    bool isValid = false;
    guarded("Errors FormVendelHistorique ValidDate : ", [&] {
        const Period period = typedPeriod();
        ui_->txt_First_Date->setText(period.first());
        ui_->txt_Second_Date->setText(period.second());
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
    DbRows rows = loadPeriod(
        QStringLiteral(
            "select * from Historique where date_heure between '%1' and '%2' order by date_heure "
            "asc"),
        period);
    if (rows.empty()) {
        const auto& message = Messages::Messages34;
        notice(this, texts(message[0]) + period.first() + texts(message[1]) + period.second(),
            texts(message[2]));
        return std::nullopt;
    }
    return Sales{period, std::move(rows)};
}

void FormVendelHistorique::on_btn_Show_Date_clicked()
{
    guarded("Errors FormVendelHistorique on_btn_Show_Date_clicked : ", [this] { Display_Date(); });
}

void FormVendelHistorique::Display_Date()
{
    guarded("Errors FormVendelHistorique Display_Date : ", [this] { showDays(); });
}

void FormVendelHistorique::showDays()
{
    clearList(*modelDays_);
    const DbRows days
        = Db::DbLoad("select distinct substr(date_heure,1,10) as date from Historique");
    if (days.empty()) {
        notice(this, texts, Messages::Messages30);
        return;
    }
    ListFiller filler(*ui_->tableView2, *modelDays_);
    for (const auto& day : days) {
        filler.add({Tools::ConvDate::ToUs_mdy(QString::fromStdString(day.at(0)))});
    }
}

void FormVendelHistorique::on_btn_View_Historical_clicked()
{
    guarded("Errors FormVendelHistorique on_btn_View_Historical_clicked : ",
        [this] { Display_History(); });
}

void FormVendelHistorique::Display_History()
{
    guarded("Errors FormVendelHistorique Display_History : ", [this] {
        if (auto sales = salesOfPeriod()) {
            showSales(*std::move(sales));
        }
    });
}

void FormVendelHistorique::showSales(Sales sales)
{
    clearList(*modelSales_);
    {
        CellTexts shown;
        ListFiller filler(*ui_->tableView1, *modelSales_);
        for (auto& stored : sales.rows) {
            // Each row is given back once it is listed, so that a year is not held twice.
            const auto row = std::move(stored);
            filler.add({shown(row.at(StoredArticle)), shown(row.at(StoredPrice)),
                Tools::ConvDate::ToUs_mdy(QString::fromStdString(row.at(StoredMoment)))});
        }
    }
    showGroups(sales.period);
}

void FormVendelHistorique::showGroups(const Period& period)
{
    clearList(*modelGroups_);
    const DbRows groups = loadPeriod(
        QStringLiteral(
            "select distinct compte, article, prix, compte * prix as calcul from (select distinct "
            "count(article) as compte, article, prix from Historique where date_heure between "
            "'%1' and '%2' group by article, prix)"),
        period);
    ListFiller filler(*ui_->tableView3, *modelGroups_);
    for (const auto& group : groups) {
        filler.add({QString::fromStdString(group.at(0)), formatExactCell(group.at(1)),
            formatExactCell(group.at(2)), formatExactCell(group.at(3))});
    }
}

void FormVendelHistorique::on_tableView2_clicked(const QModelIndex& index)
{
    guarded("Errors FormVendelHistorique on_tableView2_clicked : ", [&] { pickDate(index); });
}

void FormVendelHistorique::on_tableView1_clicked(const QModelIndex& index)
{
    guarded("Errors FormVendelHistorique on_tableView1_clicked : ",
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
    guarded("Errors FormVendelHistorique on_btn_Del_Seizure_clicked : ", [this] {
        ui_->txt_First_Date->setText(QString());
        ui_->txt_Second_Date->setText(QString());
    });
}

void FormVendelHistorique::on_btn_Total_clicked()
{
    guarded("Errors FormVendelHistorique on_btn_Total_clicked : ", [this] { showTotal(); });
}

void FormVendelHistorique::showTotal()
{
    auto sales = salesOfPeriod();
    if (!sales) {
        return;
    }
    const DbRows sums = loadPeriod(
        QStringLiteral("select sum(prix) from Historique where date_heure between '%1' and '%2'"),
        sales->period);
    const std::string& sum = sums.at(0).at(0);
    if (sum.empty()) {
        return;
    }
    showSales(*std::move(sales));
    ListFiller(*ui_->tableView1, *modelSales_)
        .addTotal({texts(Messages::Messages37[0]), formatExactCell(sum), totalMark()});
    ui_->tableView1->scrollToBottom();
}

void FormVendelHistorique::on_btn_Clear_clicked()
{
    guarded("Errors FormVendelHistorique on_btn_Clear_clicked : ", [this] { purge(); });
}

void FormVendelHistorique::purge()
{
    if (!salesOfPeriod()) {
        return;
    }
    const Period period = typedPeriod();
    const auto& question = Messages::Messages38;
    if (!confirm(this, texts(question[0]) + period.first() + texts(question[1]) + period.second(),
            texts(question[2]))) {
        return;
    }
    loadPeriod(
        QStringLiteral("delete from Historique where date_heure between '%1' and '%2'"), period);
    clearList(*modelSales_);
    clearList(*modelGroups_);
    Display_History();
    Display_Date();
}

void FormVendelHistorique::on_actionSaisie_Stock_triggered()
{
    guarded("Errors FormVendelHistorique on_actionSaisie_Stock_triggered : ",
        [this] { openWindow<FormVendelSaisieStock>(this); });
}

void FormVendelHistorique::on_actionCalcul_Stock_triggered()
{
    guarded("Errors FormVendelHistorique on_actionCalcul_Stock_triggered : ", [this] {
        if (salesOfPeriod()) {
            openWindow<FormVendelStockCalculation>(
                this, ui_->txt_First_Date->text(), ui_->txt_Second_Date->text());
        }
    });
}
