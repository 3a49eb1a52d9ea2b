// SPDX-License-Identifier: MIT
#include "app/FormVendelTicket.h"

#include "app/ReceiptDocument.h"
#include "common/SlotGuard.h"
#include "ui_FormVendelTicket.h"
#include "widgets/Captions.h"

#include <QLayout>

FormVendelTicket::FormVendelTicket(const Receipt& receipt, QWidget* parent)
    : QDialog(parent)
    , ui_(std::make_unique<Ui_FormVendelTicket>())
{
    guarded("FormVendelTicket Constructor", [&] {
        ui_->setupUi(this);
        translateCaptions(*this);
        // The sheet is fitted to the window before the first show.
        layout()->activate();
        showReceipt(receipt, *ui_->txt_Ticket);
        isFilled_ = true;
    });
}

FormVendelTicket::~FormVendelTicket() = default;
