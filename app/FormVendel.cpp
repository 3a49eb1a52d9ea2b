// SPDX-License-Identifier: MIT
#include "app/FormVendel.h"

#include "app/Clock.h"
#include "app/FormVendelStart.h"
#include "app/FormVendelTicket.h"
#include "app/Payment.h"
#include "app/SalesLists.h"
#include "common/Messages.h"
#include "common/Money.h"
#include "common/SlotGuard.h"
#include "common/Texts.h"
#include "common/Tools.h"
#include "forms/FormVendelAbout.h"
#include "forms/FormVendelConfig.h"
#include "forms/FormVendelHistorique.h"
#include "forms/FormVendelSaisieArticle.h"
#include "store/Articles.h"
#include "store/Database.h"
#include "store/Settings.h"
#include "ui_FormVendel.h"
#include "widgets/Captions.h"
#include "widgets/HoverTip.h"
#include "widgets/Lists.h"
#include "widgets/MessageBoxes.h"
#include "widgets/OpenWindow.h"
#include "widgets/RowKeys.h"

#include <QGuiApplication>
#include <QMouseEvent>
#include <QShowEvent>

#include <algorithm>

namespace {
constexpr Texts texts{"FormVendelMessages"};
const auto& datePattern = Messages::Messages98;
const auto& decimalSeparator = Messages::Messages101;
const auto& addTip = Messages::Messages65;
const auto& removeTip = Messages::Messages66;
const auto& menuIsEmpty = Messages::Messages25;
const auto& menuHasDuplicates = Messages::Messages26;
const auto& nothingToShow = Messages::Messages1;
const auto& nothingToClear = Messages::Messages0;
const auto& nothingToTotal = Messages::Messages5;
const auto& noAmount = Messages::Messages12;
const auto& noValidAmount = Messages::Messages13;
const auto& nothingToPay = Messages::Messages6;
const auto& noPrinter = Messages::Messages63;
const auto& saleNotRecorded = Messages::Messages172;
constexpr int clockMs = 100;
constexpr QPoint tipOffset(150, 130);
constexpr auto payerSlot = "FormVendel on_btn_Payer_clicked";

/// Where window managers keep the splash above the window only if the window was shown before it:
/// behind it, the splash would take all clicks and not be seen.
bool isOnX11() { return QGuiApplication::platformName() == QLatin1String("xcb"); }
} // namespace

FormVendel::FormVendel(QWidget* parent)
    : QMainWindow(parent)
    , ui_(std::make_unique<Ui_FormVendel>())
    , clock_(this)
    , modelMenu_(new ListModel(0, 4, this))
    , modelTicket_(new ListModel(0, 4, this))
    , tips_(
          *this, texts, [this](QPoint, const QString&) { return ui_->chkbx_ToolTip->isChecked(); })
{
    guarded("FormVendel Constructor", [this] {
        ui_->setupUi(this);
        translateCaptions(*this);
        setWindowFlag(Qt::WindowMaximizeButtonHint, false);
        connect(&clock_, &QTimer::timeout, this, &FormVendel::on_timeout);
        clock_.start(clockMs);
        setUpLists();
        // A key can uncheck the box while a tip is shown; a mouse press hides the tip anyway.
        connect(ui_->chkbx_ToolTip, &QCheckBox::toggled, this, &hideTip);
        ui_->txt_montant->setFocus();
        Database::createIfMissing();
    });
}

FormVendel::~FormVendel() = default;

void FormVendel::setUpLists()
{
    SalesLists::setUpMenu(*ui_->tableView1, *modelMenu_);
    SalesLists::setUpTicket(*ui_->tableView2, *modelTicket_);
    tips_.add({*ui_->tableView1, SalesLists::MenuArticle, addTip, tipOffset});
    tips_.add({*ui_->tableView2, SalesLists::TicketArticle, removeTip, tipOffset});
    onRowKeys(*ui_->tableView1, [this](const QModelIndex& index) { on_tableView1_clicked(index); });
    onRowKeys(*ui_->tableView2, [this](const QModelIndex& index) {
        guarded("FormVendel on_tableView2_clicked", [&] { removeFromTicket(index); });
    });
}

void FormVendel::setVisible(bool visible)
{
    const bool opens = visible && !isVisible() && isOnX11();
    QMainWindow::setVisible(visible);
    if (opens) {
        guarded("FormVendel showEvent", [this] { showSplash(); });
    }
}

void FormVendel::showEvent(QShowEvent* event)
{
    QMainWindow::showEvent(event);
    if (event->type() != QEvent::Show || event->spontaneous()) {
        return;
    }
    guarded("FormVendel showEvent", [this] {
        if (!isOnX11()) {
            showSplash();
        }
        for (const QString& value : Settings::printerSwitches()) {
            if (std::stoi(value.toStdString()) == 1) {
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
    guarded("FormVendel eventFilter", [&] {
        notePress(*event);
        tips_.show(watched, event);
    });
    return false;
}

/// Remembers what clicked() does not say: the button, and whether it ended a double click.
void FormVendel::notePress(const QEvent& event)
{
    if (event.type() == QEvent::MouseButtonPress || event.type() == QEvent::MouseButtonDblClick) {
        isSecondPress_ = event.type() == QEvent::MouseButtonDblClick;
        isLeftPress_ = static_cast<const QMouseEvent&>(event).button() == Qt::LeftButton;
    }
}

void FormVendel::on_timeout()
{
    guarded("FormVendel on_timeout", [this] {
        ui_->lbl_DateTime->setText(clockText(QDateTime::currentDateTime(), texts(datePattern[0])));
    });
}

void FormVendel::on_actionConfig_triggered()
{
    guarded("FormVendel on_actionConfig_triggered", [this] { openWindow<FormVendelConfig>(this); });
}

void FormVendel::on_actionSaisie_Article_triggered()
{
    guarded("FormVendel on_actionSaisie_Article_triggereds",
        [this] { openWindow<FormVendelSaisieArticle>(this); });
}

void FormVendel::on_actionHistorique_triggered()
{
    guarded("FormVendel on_actionHistorique_triggered",
        [this] { openWindow<FormVendelHistorique>(this); });
}

void FormVendel::on_actionA_propos_de_triggered()
{
    guarded(
        "FormVendel on_actionA_propos_de_triggered", [this] { openWindow<FormVendelAbout>(this); });
}

void FormVendel::on_btn_Afficher_clicked()
{
    guarded("FormVendel on_btn_Afficher_clicked", [this] { showMenu(); });
}

void FormVendel::showMenu()
{
    clearList(*modelMenu_);
    const std::vector<Article> articles = Articles::all();
    if (articles.empty()) {
        notice(this, texts, menuIsEmpty);
        return;
    }
    SalesLists::fillMenu(*ui_->tableView1, *modelMenu_, articles);
    const auto duplicates = Articles::countDuplicates();
    if (!duplicates) {
        return;
    }
    notice(this, texts, menuHasDuplicates, *duplicates);
    markIds(*modelMenu_, Articles::duplicateIds(), SalesLists::MenuMark, QStringLiteral("X"));
}

void FormVendel::on_tableView1_clicked(const QModelIndex& index)
{
    guarded("FormVendel on_tableView1_clicked", [&] { addToTicket(index); });
}

// Qt turns the second press of two quick ones into a double click; to the cashier it is one more.
void FormVendel::on_tableView1_doubleClicked(const QModelIndex& index)
{
    guarded("FormVendel on_tableView1_doubleClicked", [&] {
        if (isLeftPress_) {
            addToTicket(index);
        }
    });
}

void FormVendel::addToTicket(const QModelIndex& index)
{
    Ticket::addArticle(textAt(index, SalesLists::MenuId));
    refreshTicket();
    ui_->tableView2->scrollToBottom();
}

void FormVendel::on_tableView2_clicked(const QModelIndex& index)
{
    guarded("FormVendel on_tableView2_clicked", [&] {
        if (!isSecondPress_) {
            removeFromTicket(index);
        }
    });
}

/// Removes a line without scrolling: the next one to remove is often its neighbour.
void FormVendel::removeFromTicket(const QModelIndex& index)
{
    const int firstInView = ui_->tableView2->rowAt(0);
    Ticket::remove(textAt(index, SalesLists::TicketKey));
    refreshTicket();
    const int first = std::min(firstInView, modelTicket_->rowCount() - 1);
    // scrollToBottom forces the layout that scrollTo needs.
    ui_->tableView2->scrollToBottom();
    ui_->tableView2->scrollTo(
        modelTicket_->index(first, SalesLists::TicketArticle), QAbstractItemView::PositionAtTop);
}

/// Shows the ticket as it is stored; returns whether it has a line.
bool FormVendel::refreshTicket()
{
    clearList(*modelTicket_);
    const std::vector<TicketLine> lines = Ticket::lines();
    SalesLists::fillTicket(*ui_->tableView2, *modelTicket_, lines);
    return !lines.empty();
}

void FormVendel::on_btn_Ticket_clicked()
{
    guarded("FormVendel on_btn_Ticket_clicked", [this] {
        if (!refreshTicket()) {
            notice(this, texts, nothingToShow);
        }
    });
}

void FormVendel::on_btn_Effacer_Ticket_clicked()
{
    guarded("FormVendel on_btn_Effacer_Ticket_clicked", [this] {
        clearList(*modelTicket_);
        if (Ticket::lines().empty()) {
            notice(this, texts, nothingToClear);
        } else {
            Ticket::clear();
        }
    });
}

void FormVendel::on_btn_Total_Ticket_clicked()
{
    guarded("on_btn_Total_Ticket_clicked", [this] { showTotal(); });
}

void FormVendel::showTotal()
{
    if (Ticket::lines().empty()) {
        notice(this, texts, nothingToTotal);
        return;
    }
    refreshTicket();
    SalesLists::appendTotals(
        *ui_->tableView2, *modelTicket_, totalTicket(Ticket::sum(), Settings::taxRates()));
    ui_->tableView2->scrollToBottom();
}

void FormVendel::on_btn_1_clicked() { typeDigit("on_btn_1_clicked", 1); }
void FormVendel::on_btn_2_clicked() { typeDigit("on_btn_2_clicked", 2); }
void FormVendel::on_btn_3_clicked() { typeDigit("on_btn_3_clicked", 3); }
void FormVendel::on_btn_4_clicked() { typeDigit("on_btn_4_clicked", 4); }
void FormVendel::on_btn_5_clicked() { typeDigit("on_btn_5_clicked", 5); }
void FormVendel::on_btn_6_clicked() { typeDigit("on_btn_6_clicked", 6); }
void FormVendel::on_btn_7_clicked() { typeDigit("on_btn_7_clicked", 7); }
void FormVendel::on_btn_8_clicked() { typeDigit("on_btn_8_clicked", 8); }
void FormVendel::on_btn_9_clicked() { typeDigit("on_btn_9_clicked", 9); }
void FormVendel::on_btn_10_clicked() { typeDigit("on_btn_10_clicked", 0); }

void FormVendel::on_btn_11_clicked()
{
    guarded("on_btn_11_clicked", [this] { type(texts(decimalSeparator[0])); });
}

void FormVendel::on_btn_12_clicked()
{
    guarded("on_btn_12_clicked", [this] {
        operator_more_or_less(ui_->txt_montant->text());
        goToEmptyAmount();
    });
}

void FormVendel::on_btn_13_clicked()
{
    guarded("on_btn_13_clicked", [this] {
        operator_more_or_less(QLatin1Char('-') + ui_->txt_montant->text());
        ui_->txt_montant->setText(ui_->txt_montant->text().mid(1));
        goToEmptyAmount();
    });
}

void FormVendel::on_btn_Effacer_Saisie_clicked()
{
    guarded("on_btn_Effacer_Saisie_clicked", [this] {
        ui_->txt_montant->clear();
        goToEmptyAmount();
    });
}

/// Whoever is left without an amount types the next one.
void FormVendel::goToEmptyAmount()
{
    if (ui_->txt_montant->text().isEmpty()) {
        ui_->txt_montant->setFocus();
    }
}

void FormVendel::typeDigit(const char* slot, int digit)
{
    guarded(slot, [&] { type(QString::number(digit)); });
}

void FormVendel::type(const QString& text)
{
    ui_->txt_montant->setText(ui_->txt_montant->text() + text);
}

void FormVendel::operator_more_or_less(QString amount)
{
    guarded("operator_more_or_less", [&] { putOnTicket(amount.trimmed()); });
}

void FormVendel::putOnTicket(const QString& amount)
{
    ui_->txt_montant->setText(amount);
    if (amount.isEmpty()) {
        notice(this, texts, noAmount);
        return;
    }
    const QString number = withPoint(amount);
    if (amount == QLatin1String("-") || !Tools::isNum(number)) {
        notice(this, texts, noValidAmount);
        return;
    }
    Ticket::addAmount(number);
    refreshTicket();
    ui_->tableView2->scrollToBottom();
}

void FormVendel::on_btn_Payer_clicked()
{
    guarded(payerSlot, [this] {
        try {
            pay();
        } catch (const PrinterNotConnected&) {
            notice(this, texts, noPrinter);
        }
    });
}

void FormVendel::pay()
{
    if (Ticket::lines().empty()) {
        notice(this, texts, nothingToPay);
        return;
    }
    clearList(*modelTicket_);
    if (!guarded(payerSlot, Payment::record)) {
        refreshTicket();
        ui_->tableView2->scrollToBottom();
        notice(this, texts, saleNotRecorded);
        return;
    }
    Payment::giveReceipt([this](const Receipt& receipt) {
        return openWindow<FormVendelTicket>(this, receipt)->isFilled();
    });
}
