// SPDX-License-Identifier: MIT
#include "app/FormVendelTicket.h"

#include "app/ReceiptDocument.h"
#include "app/TicketTable.h"
#include "common/Messages.h"
#include "common/SlotGuard.h"
#include "common/Texts.h"
#include "ui_FormVendelTicket.h"

#include <QLayout>

FormVendelTicket::FormVendelTicket(QWidget* parent)
    : QDialog(parent)
    , ui_(std::make_unique<Ui_FormVendelTicket>())
{
    guarded("Errors FormVendelTicket Constructor : ", [this] {
        ui_->setupUi(this);
        setWindowTitle(Texts{"FormVendelTicket"}(Messages::Messages100[0]));
        // The sheet is fitted to the window before the first show.
        layout()->activate();
        showReceipt(composeReceipt(readSale(QDateTime::currentDateTime())), *ui_->txt_Ticket);
        TicketTable::clear();
    });
}

FormVendelTicket::~FormVendelTicket() = default;
