// SPDX-License-Identifier: MIT
#include "app/FormVendel.h"
#include "app/FormVendelTexts.h"
#include "app/TicketTable.h"
#include "common/MessageBoxes.h"
#include "common/Messages.h"
#include "common/Money.h"
#include "common/SlotGuard.h"
#include "common/Tools.h"
#include "ui_FormVendel.h"

void FormVendel::on_btn_1_clicked()
{
    guarded("Errors on_btn_1_clicked : ", [this] { typeText(QStringLiteral("1")); });
}

void FormVendel::on_btn_2_clicked()
{
    guarded("Errors on_btn_2_clicked : ", [this] { typeText(QStringLiteral("2")); });
}

void FormVendel::on_btn_3_clicked()
{
    guarded("Errors on_btn_3_clicked : ", [this] { typeText(QStringLiteral("3")); });
}

void FormVendel::on_btn_4_clicked()
{
    guarded("Errors on_btn_4_clicked : ", [this] { typeText(QStringLiteral("4")); });
}

void FormVendel::on_btn_5_clicked()
{
    guarded("Errors on_btn_5_clicked : ", [this] { typeText(QStringLiteral("5")); });
}

void FormVendel::on_btn_6_clicked()
{
    guarded("Errors on_btn_6_clicked : ", [this] { typeText(QStringLiteral("6")); });
}

void FormVendel::on_btn_7_clicked()
{
    guarded("Errors on_btn_7_clicked : ", [this] { typeText(QStringLiteral("7")); });
}

void FormVendel::on_btn_8_clicked()
{
    guarded("Errors on_btn_8_clicked : ", [this] { typeText(QStringLiteral("8")); });
}

void FormVendel::on_btn_9_clicked()
{
    guarded("Errors on_btn_9_clicked : ", [this] { typeText(QStringLiteral("9")); });
}

void FormVendel::on_btn_10_clicked()
{
    guarded("Errors on_btn_10_clicked : ", [this] { typeText(QStringLiteral("0")); });
}

void FormVendel::on_btn_11_clicked()
{
    guarded("Errors on_btn_11_clicked : ",
        [this] { typeText(catalogueTexts(Messages::Messages101[0])); });
}

void FormVendel::on_btn_12_clicked()
{
    guarded(
        "Errors on_btn_12_clicked : ", [this] { operator_more_or_less(ui_->txt_montant->text()); });
}

void FormVendel::on_btn_13_clicked()
{
    guarded("Errors on_btn_13_clicked : ", [this] {
        operator_more_or_less(QLatin1Char('-') + ui_->txt_montant->text());
        ui_->txt_montant->setText(ui_->txt_montant->text().mid(1));
    });
}

void FormVendel::on_btn_Effacer_Saisie_clicked()
{
    guarded("Errors on_btn_Effacer_Saisie_clicked : ",
        [this] { ui_->txt_montant->setText(QString()); });
}

void FormVendel::typeText(const QString& text)
{
    ui_->txt_montant->setText(ui_->txt_montant->text() + text);
}

void FormVendel::operator_more_or_less(QString amount)
{
    guarded("Errors operator_more_or_less : ", [&] { putOnTicket(amount.trimmed()); });
}

void FormVendel::putOnTicket(const QString& amount)
{
    ui_->txt_montant->setText(amount);
    if (amount.isEmpty()) {
        notice(this, catalogueTexts, Messages::Messages12);
        return;
    }
    const QString number = withPoint(amount);
    if (amount == QLatin1String("-") || !Tools::isNum(number)) {
        notice(this, catalogueTexts, Messages::Messages13);
        return;
    }
    TicketTable::addAmount(number);
    refreshTicket();
    ui_->tableView2->scrollToBottom();
}
