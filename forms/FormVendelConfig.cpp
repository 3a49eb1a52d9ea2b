// SPDX-License-Identifier: MIT
#include "forms/FormVendelConfig.h"

#include "common/Messages.h"
#include "common/Money.h"
#include "common/SlotGuard.h"
#include "common/Tools.h"
#include "forms/FormVendelFormulaireTicket.h"
#include "store/Settings.h"
#include "ui_FormVendelConfig.h"
#include "widgets/Captions.h"
#include "widgets/MessageBoxes.h"
#include "widgets/OpenWindow.h"

namespace {
enum PrinterSwitch
{
    Off,
    On
};

constexpr Texts texts{"FormVendelConfigMessages"};
const auto& noValidRate = Messages::Messages57;
} // namespace

FormVendelConfig::FormVendelConfig(QWidget* parent)
    : QDialog(parent)
    , ui_(std::make_unique<Ui_FormVendelConfig>())
{
    guarded("FormVendelConfig Constructor", [this] {
        ui_->setupUi(this);
        translateCaptions(*this);
        ui_->cbx_Epson->addItems({QStringLiteral("OFF"), QStringLiteral("ON")});
        showSettings();
    });
}

FormVendelConfig::~FormVendelConfig() = default;

void FormVendelConfig::showSettings()
{
    ui_->cbx_Epson->setCurrentIndex(Settings::printerSwitch().toInt() == On ? On : Off);
    ui_->txt_TVA->setText(formatAmount(Settings::taxRate()));
    // A new rate is typed over the old one.
    ui_->txt_TVA->selectAll();
}

void FormVendelConfig::on_btn_Maj_TVA_clicked()
{
    guarded("on_btn_Maj_TVA_clicked", [this] { storeRate(); });
}

void FormVendelConfig::storeRate()
{
    ui_->txt_TVA->setText(ui_->txt_TVA->text().trimmed());
    const QString rate = withPoint(ui_->txt_TVA->text());
    // An empty text is no number either.
    if (!Tools::isNum(rate)) {
        notice(this, texts, noValidRate);
        return;
    }
    Settings::setTaxRate(rate);
    close();
}

void FormVendelConfig::on_btn_Maj_Epson_clicked()
{
    guarded("on_btn_Maj_Epson_clicked", [this] {
        Settings::setPrinterSwitch(QString::number(ui_->cbx_Epson->currentIndex()));
        close();
    });
}

void FormVendelConfig::on_btn_Maj_Formulaire_clicked()
{
    guarded("FormVendelConfig on_btn_Maj_Formulaire_clicked",
        [this] { openWindow<FormVendelFormulaireTicket>(this); });
}
