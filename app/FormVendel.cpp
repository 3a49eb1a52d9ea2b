// SPDX-License-Identifier: MIT
#include "app/FormVendel.h"

#include "app/Clock.h"
#include "app/Configuration.h"
#include "app/FormVendelStart.h"
#include "app/FormVendelTexts.h"
#include "app/TicketTable.h"
#include "common/HoverTip.h"
#include "common/Lists.h"
#include "common/Messages.h"
#include "common/SlotGuard.h"
#include "common/Windows.h"
#include "db/Db.h"
#include "forms/FormVendelAbout.h"
#include "forms/FormVendelConfig.h"
#include "forms/FormVendelHistorique.h"
#include "forms/FormVendelSaisieArticle.h"
#include "ui_FormVendel.h"

#include <QFile>
#include <QMouseEvent>
#include <QShowEvent>

namespace {
constexpr int clockMs = 100;
constexpr QPoint tipOffset(150, 130);
} // namespace

FormVendel::FormVendel(QWidget* parent)
    : QMainWindow(parent)
    , ui_(std::make_unique<Ui_FormVendel>())
    , clock_(this)
    , modelMenu_(new QStandardItemModel(0, 4, this))
    , modelTicket_(new QStandardItemModel(0, 4, this))
{
    guarded("Errors FormVendel Constructor : ", [this] {
        ui_->setupUi(this);
        connect(&clock_, &QTimer::timeout, this, &FormVendel::on_timeout);
        clock_.start(clockMs);
        setUpLists();
        setCaptions();
        watchMouse(*ui_->tableView1, *this);
        watchMouse(*ui_->tableView2, *this);
        // A key unchecks the box while a tip stands; a press of the mouse hides it anyway.
        connect(ui_->chkbx_ToolTip, &QCheckBox::toggled, this, &hideTip);
        if (!QFile::exists(QStringLiteral("Vendel.db"))) {
            Db::DbCreate();
        }
    });
}

FormVendel::~FormVendel() = default;

void FormVendel::setUpLists()
{
    setUpList(*ui_->tableView1, *modelMenu_, catalogueTexts, Messages::Messages97,
        {50, 25, 210, 110}, {0});
    setUpList(*ui_->tableView2, *modelTicket_, catalogueTexts, Messages::Messages99,
        {50, 50, 210, 110}, {0, 1});
}

void FormVendel::setCaptions()
{
    constexpr Texts captions{"FormVendel"};
    ui_->lbl_Menu->setText(captions(Messages::Messages80[0]));
    ui_->lbl_Ticket->setText(captions(Messages::Messages81[0]));
    ui_->lbl_Montant->setText(captions(Messages::Messages82[0]));
    ui_->btn_Effacer_Saisie->setText(captions(Messages::Messages83[0]));
    ui_->btn_Afficher->setText(captions(Messages::Messages84[0]));
    ui_->btn_Ticket->setText(captions(Messages::Messages85[0]));
    ui_->btn_Effacer_Ticket->setText(captions(Messages::Messages86[0]));
    ui_->btn_Total_Ticket->setText(captions(Messages::Messages87[0]));
    ui_->btn_11->setText(captions(Messages::Messages88[0]));
    ui_->btn_Payer->setText(captions(Messages::Messages89[0]));
    ui_->menuVendel->setTitle(captions(Messages::Messages90[0]));
    ui_->actionConfig->setText(captions(Messages::Messages91[0]));
    ui_->actionSaisie_Article->setText(captions(Messages::Messages92[0]));
    ui_->actionHistorique->setText(captions(Messages::Messages93[0]));
    ui_->menu->setTitle(captions(Messages::Messages94[0]));
    ui_->actionA_propos_de->setText(captions(Messages::Messages95[0]));
    setWindowTitle(captions(Messages::Messages96[0]));
}

void FormVendel::showEvent(QShowEvent* event)
{
    QMainWindow::showEvent(event);
    if (event->type() != QEvent::Show || event->spontaneous()) {
        return;
    }
    guarded("Errors FormVendel showEvent : ", [this] {
        showSplash();
        for (const auto& row : Configuration::printerSwitches()) {
            if (std::stoi(row.at(0)) == 1) {
                qDebug("Warning Epson to 1 (ON)");
            }
        }
    });
}

void FormVendel::showSplash()
{
    auto* splash = new FormVendelStart(this);
    splash->move(rect().center() - splash->rect().center());
    splash->show();
}

bool FormVendel::eventFilter(QObject* watched, QEvent* event)
{
    guarded("Errors FormVendel eventFilter : ", [&] {
        if (event->type() == QEvent::MouseButtonPress
            || event->type() == QEvent::MouseButtonDblClick) {
            isSecondPress_ = event->type() == QEvent::MouseButtonDblClick;
            isLeftPress_ = static_cast<const QMouseEvent*>(event)->button() == Qt::LeftButton;
        }
        showHoverTip(*ui_->tableView1, watched, event, Messages::Messages65);
        showHoverTip(*ui_->tableView2, watched, event, Messages::Messages66);
    });
    return false;
}

void FormVendel::showHoverTip(const QTableView& view, const QObject* watched, const QEvent* event,
    const std::array<std::string, 2>& message)
{
    const auto position = mouseMoveOver(view, watched, event);
    if (!position) {
        return;
    }
    const QString name = textUnder(view, *position, TicketTable::Article);
    if (ui_->chkbx_ToolTip->isChecked() && !name.isEmpty()) {
        showTip(*this, *position + tipOffset,
            catalogueTexts(message[0]) + name + catalogueTexts(message[1]));
    } else {
        hideTip();
    }
}

void FormVendel::on_timeout()
{
    guarded("Errors FormVendel on_timeout : ", [this] {
        ui_->lbl_DateTime->setText(
            clockText(QDateTime::currentDateTime(), catalogueTexts(Messages::Messages98[0])));
    });
}

void FormVendel::on_actionConfig_triggered()
{
    guarded("Errors FormVendel on_actionConfig_triggered : ",
        [this] { openWindow<FormVendelConfig>(this); });
}

void FormVendel::on_actionSaisie_Article_triggered()
{
    guarded("Errors FormVendel on_actionSaisie_Article_triggereds : ",
        [this] { openWindow<FormVendelSaisieArticle>(this); });
}

void FormVendel::on_actionHistorique_triggered()
{
    guarded("Errors FormVendel on_actionHistorique_triggered : ",
        [this] { openWindow<FormVendelHistorique>(this); });
}

void FormVendel::on_actionA_propos_de_triggered()
{
    guarded("Errors FormVendel on_actionA_propos_de_triggered : ",
        [this] { openWindow<FormVendelAbout>(this); });
}
