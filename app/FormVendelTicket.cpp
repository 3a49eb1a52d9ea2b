// SPDX-License-Identifier: MIT
#include "app/FormVendelTicket.h"

#include "app/ReceiptDocument.h"
#include "common/SlotGuard.h"
#include "ui_FormVendelTicket.h"
#include "widgets/Captions.h"

#include <QAbstractTextDocumentLayout>
#include <QLayout>
#include <QScrollBar>
#include <QShowEvent>

FormVendelTicket::FormVendelTicket(const Receipt& receipt, QWidget* parent)
    : QDialog(parent)
    , ui_(std::make_unique<Ui_FormVendelTicket>())
    , receipt_(receipt)
{
    guarded("FormVendelTicket Constructor", [&] {
        ui_->setupUi(this);
        translateCaptions(*this);
        fill();
        isFilled_ = true;
    });
}

FormVendelTicket::~FormVendelTicket() = default;

/// Fits the sheet to the window, which is shown only later.
void FormVendelTicket::fill()
{
    layout()->activate();
    width_ = ui_->txt_Ticket->maximumViewportSize().width();
    showReceipt(receipt_, *ui_->txt_Ticket);
}

/// Shows the end, where the total is; a receipt that fits does not move.
void FormVendelTicket::scrollToEnd()
{
    // Qt lays out a long text bit by bit: its size is known once all of it is.
    ui_->txt_Ticket->document()->documentLayout()->documentSize();
    QScrollBar& bar = *ui_->txt_Ticket->verticalScrollBar();
    bar.setValue(bar.maximum());
}

void FormVendelTicket::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    if (isFilled_ && !event->spontaneous()) {
        guarded("FormVendelTicket showEvent", [this] { scrollToEnd(); });
    }
}

// On a small screen the window becomes smaller once more before it is shown.
void FormVendelTicket::resizeEvent(QResizeEvent* event)
{
    QDialog::resizeEvent(event);
    // What the constructor could not fill may have no layout either.
    if (!isFilled_) {
        return;
    }
    guarded("FormVendelTicket resizeEvent", [this] {
        layout()->activate();
        if (ui_->txt_Ticket->maximumViewportSize().width() != width_) {
            ui_->txt_Ticket->clear();
            fill();
        }
    });
}
