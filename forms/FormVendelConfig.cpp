// SPDX-License-Identifier: MIT
#include "forms/FormVendelConfig.h"

#include "common/MessageBoxes.h"
#include "common/Messages.h"
#include "common/Money.h"
#include "common/SlotGuard.h"
#include "common/Tools.h"
#include "common/Windows.h"
#include "db/Db.h"
#include "forms/FormVendelFormulaireTicket.h"
#include "ui_FormVendelConfig.h"

namespace {
enum PrinterSwitch
{
    Off,
    On
};

constexpr Texts texts{"FormVendelConfigMessages"};
constexpr std::size_t valueColumn = 2;

/// The value in the first of \a rows. Throws std::out_of_range when the setting is missing.
std::string firstValue(const DbRows& rows)
{
    return rows.at(0).at(valueColumn);
}

void store(const QString& value, const char* setting)
{
    const QString sql = QLatin1String("update Config set valeur = ") + value
        + QLatin1String(" where param like '") + QLatin1String(setting) + QLatin1Char('\'');
    Db::DbLoad(sql.toUtf8().constData());
}
} // namespace

FormVendelConfig::FormVendelConfig(QWidget* parent)
    : QDialog(parent)
    , ui_(std::make_unique<Ui_FormVendelConfig>())
{
    guarded("Errors FormVendelConfig Constructor : ", [this] {
        ui_->setupUi(this);
        setCaptions();
        ui_->cbx_Epson->addItems({QStringLiteral("OFF"), QStringLiteral("ON")});
        showSettings();
    });
}

FormVendelConfig::~FormVendelConfig() = default;

void FormVendelConfig::setCaptions()
{
    constexpr Texts captions{"FormVendelConfig"};
    ui_->lbl_TVA->setText(captions(Messages::Messages102[0]));
    ui_->lbl_Epson->setText(captions(Messages::Messages103[0]));
    ui_->lbl_Formulaire->setText(captions(Messages::Messages104[0]));
    ui_->btn_Maj_TVA->setText(captions(Messages::Messages105[0]));
    ui_->btn_Maj_Epson->setText(captions(Messages::Messages106[0]));
    ui_->btn_Maj_Formulaire->setText(captions(Messages::Messages107[0]));
    setWindowTitle(captions(Messages::Messages108[0]));
}

void FormVendelConfig::showSettings()
{
    const std::string printer
        = firstValue(Db::DbLoad("select * from Config where param like 'Epson TM-T20II'"));
    ui_->cbx_Epson->setCurrentIndex(QString::fromStdString(printer).toInt() == On ? On : Off);
    ui_->txt_TVA->setText(
        formatAmount(firstValue(Db::DbLoad("select * from Config where param like 'TVA'"))));
    // A new rate is typed over the old one.
    ui_->txt_TVA->selectAll();
}

void FormVendelConfig::on_btn_Maj_TVA_clicked()
{
    guarded("Errors on_btn_Maj_TVA_clicked : ", [this] { storeRate(); });
}

void FormVendelConfig::storeRate()
{
    ui_->txt_TVA->setText(ui_->txt_TVA->text().trimmed());
    const QString rate = withPoint(ui_->txt_TVA->text());
    // An empty text is no number either.
    if (!Tools::isNum(rate)) {
        notice(this, texts, Messages::Messages57);
        return;
    }
    store(rate, "TVA");
    close();
}

void FormVendelConfig::on_btn_Maj_Epson_clicked()
{
    guarded("Errors on_btn_Maj_Epson_clicked : ", [this] {
        store(QString::number(ui_->cbx_Epson->currentIndex()), "Epson TM-T20II");
        close();
    });
}

void FormVendelConfig::on_btn_Maj_Formulaire_clicked()
{
    guarded("Errors FormVendelConfig on_btn_Maj_Formulaire_clicked : ",
        [this] { openWindow<FormVendelFormulaireTicket>(this); });
}
