// SPDX-License-Identifier: MIT
#include "forms/FormVendelSaisieStockComposition.h"

#include "common/Messages.h"
#include "common/Money.h"
#include "common/SlotGuard.h"
#include "common/Texts.h"
#include "common/Tools.h"
#include "forms/FormVendelSaisieStock.h"
#include "store/Recipes.h"
#include "ui_FormVendelSaisieStockComposition.h"
#include "widgets/Captions.h"
#include "widgets/MessageBoxes.h"

namespace {
constexpr Texts texts{"FormVendelSaisieStockCompositionMessages"};
const auto& centilitre = Messages::Messages145;
const auto& gram = Messages::Messages146;
const auto& incompleteLine = Messages::Messages49;
const auto& noValidDose = Messages::Messages47;

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
    guarded("FormSaisieStockComposition Constructor", [this] {
        ui_->setupUi(this);
        translateCaptions(*this);
        ui_->lbl_Article->setText(article_);
        ui_->cbx_Unit->addItems({texts(centilitre[0]), texts(gram[0])});
    });
}

FormVendelSaisieStockComposition::~FormVendelSaisieStockComposition() = default;

void FormVendelSaisieStockComposition::on_btn_Add_clicked()
{
    guarded("FormSaisieStockComposition on_btn_Add_clicked", [this] { addComposition(); });
}

void FormVendelSaisieStockComposition::addComposition()
{
    const QString composition = trim(*ui_->txt_Composition);
    const QString dose = withPoint(trim(*ui_->txt_Dose));
    if (composition.isEmpty() || dose.isEmpty()) {
        notice(this, texts, incompleteLine);
        return;
    }
    if (!Tools::isNum(dose)) {
        notice(this, texts, noValidDose);
        return;
    }
    Recipes::add(id_, composition, dose, ui_->cbx_Unit->currentText());
    if (auto* stock = qobject_cast<FormVendelSaisieStock*>(parent())) {
        stock->Display_DoseStock(id_);
    }
    close();
}
