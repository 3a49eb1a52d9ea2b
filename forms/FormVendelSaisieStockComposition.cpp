// SPDX-License-Identifier: MIT
#include "forms/FormVendelSaisieStockComposition.h"

#include "common/MessageBoxes.h"
#include "common/Messages.h"
#include "common/Money.h"
#include "common/SlotGuard.h"
#include "common/Texts.h"
#include "common/Tools.h"
#include "forms/Compositions.h"
#include "forms/FormVendelSaisieStock.h"
#include "ui_FormVendelSaisieStockComposition.h"

namespace {
constexpr Texts texts{"FormVendelSaisieStockCompositionMessages"};

/// Takes the blanks around the text of \a field away and returns what is left.
QString trim(QLineEdit& field)
{
    field.setText(field.text().trimmed());
    return field.text();
}
} // namespace

FormVendelSaisieStockComposition::FormVendelSaisieStockComposition(
    const QString& article, const QString& id, QWidget* parent)
    : QDialog(parent)
    , ui_(std::make_unique<Ui_FormVendelSaisieStockComposition>())
    , article_(article)
    , id_(id)
{
    guarded("Errors FormSaisieStockComposition Constructor : ", [this] {
        ui_->setupUi(this);
        setCaptions();
        ui_->cbx_Unit->addItems({texts(Messages::Messages145[0]), texts(Messages::Messages146[0])});
    });
}

FormVendelSaisieStockComposition::~FormVendelSaisieStockComposition() = default;

void FormVendelSaisieStockComposition::setCaptions()
{
    constexpr Texts captions{"FormVendelSaisieStockComposition"};
    setWindowTitle(captions(Messages::Messages148[0]));
    ui_->lbl_Composition->setText(captions(Messages::Messages149[0]));
    ui_->lbl_Dose->setText(captions(Messages::Messages150[0]));
    ui_->lbl_Unit->setText(captions(Messages::Messages151[0]));
    ui_->lbl_ArticleTitle->setText(captions(Messages::Messages152[0]));
    ui_->btn_Add->setText(captions(Messages::Messages153[0]));
    ui_->lbl_Article->setText(article_);
}

void FormVendelSaisieStockComposition::on_btn_Add_clicked()
{
    guarded(
        "Errors FormSaisieStockComposition on_btn_Add_clicked : ", [this] { addComposition(); });
}

void FormVendelSaisieStockComposition::addComposition()
{
    const QString composition = trim(*ui_->txt_Composition);
    const QString dose = withPoint(trim(*ui_->txt_Dose));
    if (composition.isEmpty() || dose.isEmpty()) {
        notice(this, texts, Messages::Messages49);
        return;
    }
    if (!Tools::isNum(dose)) {
        notice(this, texts, Messages::Messages47);
        return;
    }
    Compositions::add(id_, composition, dose, ui_->cbx_Unit->currentText());
    if (auto* stock = qobject_cast<FormVendelSaisieStock*>(parent())) {
        stock->Display_DoseStock(id_);
    }
    close();
}
