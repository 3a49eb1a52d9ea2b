// SPDX-License-Identifier: MIT
#include "forms/FormVendelFormulaireTicket.h"

#include "common/MessageBoxes.h"
#include "common/Messages.h"
#include "common/ReceiptFiles.h"
#include "common/SlotGuard.h"
#include "ui_FormVendelFormulaireTicket.h"

namespace {
constexpr Texts texts{"FormVendelFormulaireTicketMessages"};
} // namespace

FormVendelFormulaireTicket::FormVendelFormulaireTicket(QWidget* parent)
    : QDialog(parent)
    , ui_(std::make_unique<Ui_FormVendelFormulaireTicket>())
{
    guarded("Errors FormVendelFormulaireTicket Constructor : ", [this] {
        ui_->setupUi(this);
        setCaptions();
        on_actionEntete_Page_triggered();
    });
}

FormVendelFormulaireTicket::~FormVendelFormulaireTicket() = default;

void FormVendelFormulaireTicket::setCaptions()
{
    setWindowTitle(texts(Messages::Messages109[0]));
    ui_->menuAfficher->setTitle(texts(Messages::Messages110[0]));
    ui_->actionEntete_Page->setText(texts(Messages::Messages111[0]));
    ui_->actionPied_Page->setText(texts(Messages::Messages112[0]));
    ui_->lbl_Formulaire->setText(texts(Messages::Messages113[0]));
    ui_->btn_Pied_Page->setText(texts(Messages::Messages114[0]));
    ui_->btn_Entete_Page->setText(texts(Messages::Messages115[0]));
}

void FormVendelFormulaireTicket::on_actionEntete_Page_triggered()
{
    guarded("Errors FormVendelFormulaireTicket on_actionEntete_Page_triggered : ",
        [this] { showFile(ReceiptFiles::header, Messages::Messages59[0]); });
}

void FormVendelFormulaireTicket::on_actionPied_Page_triggered()
{
    guarded("Errors FormVendelFormulaireTicket on_actionPied_Page_triggered : ",
        [this] { showFile(ReceiptFiles::footer, Messages::Messages60[0]); });
}

void FormVendelFormulaireTicket::showFile(const QString& file, const std::string& label)
{
    ui_->txt_Form->clear();
    ui_->lbl_Formulaire->setText(texts(label));
    if (const auto text = ReceiptFiles::read(file)) {
        ui_->txt_Form->setText(*text);
    }
}

void FormVendelFormulaireTicket::on_btn_Entete_Page_clicked()
{
    guarded("Errors on_btn_Entete_Page_clicked : ", [this] { save(ReceiptFiles::header); });
}

void FormVendelFormulaireTicket::on_btn_Pied_Page_clicked()
{
    guarded("Errors on_btn_Pied_Page_clicked : ", [this] { save(ReceiptFiles::footer); });
}

void FormVendelFormulaireTicket::save(const QString& file)
{
    if (!confirm(this, texts(Messages::Messages61[0]), texts(Messages::Messages61[1]))) {
        return;
    }
    if (!ReceiptFiles::replace(file, ui_->txt_Form->toPlainText())) {
        notice(this, texts, Messages::Messages171);
    }
}
