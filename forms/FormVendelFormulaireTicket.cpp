// SPDX-License-Identifier: MIT
#include "forms/FormVendelFormulaireTicket.h"

#include "common/Messages.h"
#include "common/ReceiptFiles.h"
#include "common/SlotGuard.h"
#include "ui_FormVendelFormulaireTicket.h"
#include "widgets/Captions.h"
#include "widgets/MessageBoxes.h"
#include "widgets/OpenWindow.h"

namespace {
constexpr Texts texts{"FormVendelFormulaireTicketMessages"};
const auto& headerLabel = Messages::Messages59;
const auto& footerLabel = Messages::Messages60;
const auto& saveQuestion = Messages::Messages61;
const auto& notSaved = Messages::Messages171;
const auto& unsavedQuestion = Messages::Messages183;
} // namespace

FormVendelFormulaireTicket::FormVendelFormulaireTicket(QWidget* parent)
    : QDialog(parent)
    , ui_(std::make_unique<Ui_FormVendelFormulaireTicket>())
{
    guarded("FormVendelFormulaireTicket Constructor", [this] {
        ui_->setupUi(this);
        translateCaptions(*this);
        on_actionEntete_Page_triggered();
    });
}

FormVendelFormulaireTicket::~FormVendelFormulaireTicket() = default;

// Escape and the window's cross both end here.
void FormVendelFormulaireTicket::reject()
{
    bool mayClose = true;
    guarded("FormVendelFormulaireTicket reject", [&] { mayClose = mayDropText(); });
    if (mayClose) {
        QDialog::reject();
        activateOpener(*this);
    }
}

/// Whether no text would be lost, or the user gives it up.
bool FormVendelFormulaireTicket::mayDropText()
{
    return ui_->txt_Form->toPlainText() == savedText_
        || confirm(this, texts(unsavedQuestion[0]), texts(unsavedQuestion[1]), Preset::No);
}

void FormVendelFormulaireTicket::on_actionEntete_Page_triggered()
{
    guarded("FormVendelFormulaireTicket on_actionEntete_Page_triggered",
        [this] { showFile(ReceiptFiles::header, headerLabel[0]); });
}

void FormVendelFormulaireTicket::on_actionPied_Page_triggered()
{
    guarded("FormVendelFormulaireTicket on_actionPied_Page_triggered",
        [this] { showFile(ReceiptFiles::footer, footerLabel[0]); });
}

void FormVendelFormulaireTicket::showFile(const QString& file, const std::string& label)
{
    if (!mayDropText()) {
        return;
    }
    ui_->txt_Form->clear();
    savedText_.clear();
    ui_->lbl_Formulaire->setText(texts(label));
    if (const auto text = ReceiptFiles::read(file)) {
        ui_->txt_Form->setText(*text);
        savedText_ = ui_->txt_Form->toPlainText();
    }
}

void FormVendelFormulaireTicket::on_btn_Entete_Page_clicked()
{
    guarded("on_btn_Entete_Page_clicked", [this] { save(ReceiptFiles::header); });
}

void FormVendelFormulaireTicket::on_btn_Pied_Page_clicked()
{
    guarded("on_btn_Pied_Page_clicked", [this] { save(ReceiptFiles::footer); });
}

void FormVendelFormulaireTicket::save(const QString& file)
{
    if (!confirm(this, texts(saveQuestion[0]), texts(saveQuestion[1]))) {
        return;
    }
    const QString text = ui_->txt_Form->toPlainText();
    if (!ReceiptFiles::replace(file, text)) {
        notice(this, texts, notSaved);
        return;
    }
    // A file that is not there was not made either.
    if (ReceiptFiles::read(file)) {
        savedText_ = text;
    }
}
