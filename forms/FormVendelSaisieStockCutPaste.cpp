// SPDX-License-Identifier: MIT
#include "forms/FormVendelSaisieStockCutPaste.h"

#include "common/Messages.h"
#include "common/SlotGuard.h"
#include "forms/FormVendelSaisieStock.h"
#include "store/Recipes.h"
#include "store/StockArticles.h"
#include "ui_FormVendelSaisieStockCutPaste.h"
#include "widgets/Captions.h"
#include "widgets/HoverTip.h"
#include "widgets/Lists.h"
#include "widgets/Marks.h"
#include "widgets/MessageBoxes.h"
#include "widgets/RowKeys.h"

namespace {
using Stock = FormVendelSaisieStock;

constexpr Texts texts{"FormVendelSaisieStockCutPasteMessages"};
const auto& articleLabels = Messages::Messages156;
const auto& recipeLabels = Messages::Messages157;
const auto& compositionTip = Messages::Messages72;
const auto& valid = Messages::Messages50;
const auto& expired = Messages::Messages51;
const auto& recipeIsEmpty = Messages::Messages54;
const auto& noLineChosen = Messages::Messages53;
const auto& moveQuestion = Messages::Messages52;
const QLatin1String separator(", ");
} // namespace

FormVendelSaisieStockCutPaste::FormVendelSaisieStockCutPaste(QWidget* parent)
    : QDialog(parent)
    , ui_(std::make_unique<Ui_FormVendelSaisieStockCutPaste>())
    , modelArticles_(new ListModel(0, 3, this))
    , modelCompositions_(new ListModel(0, 5, this))
    , tips_(*this, texts)
{
    guarded("FormVendelSaisieStockCutPaste Constructor", [this] {
        ui_->setupUi(this);
        translateCaptions(*this);
        setUpLists();
        fillTargets();
        Display();
        // The list's article comes first, although the replacement is above it.
        ui_->tableView1->setFocus();
    });
}

FormVendelSaisieStockCutPaste::~FormVendelSaisieStockCutPaste() = default;

void FormVendelSaisieStockCutPaste::setUpLists()
{
    Stock::setUpArticles(*ui_->tableView1, *modelArticles_, texts, articleLabels);
    Stock::setUpRecipe(*ui_->tableView2, *modelCompositions_, texts, recipeLabels);
    tips_.add({*ui_->tableView2, Stock::RecipeComposition, compositionTip, {}});
    connect(ui_->tableView1->selectionModel(), &QItemSelectionModel::currentChanged, this,
        &FormVendelSaisieStockCutPaste::on_tableViewSelection);
    // A click on a row number marks its row after it has become the current one.
    connect(ui_->tableView1->selectionModel(), &QItemSelectionModel::selectionChanged, this,
        [this] { on_tableViewSelection({}, {}); });
    for (QTableView* list : {ui_->tableView1, ui_->tableView2}) {
        onRowKeys(*list, [list](const QModelIndex& index) { list->setCurrentIndex(index); });
    }
}

void FormVendelSaisieStockCutPaste::fillTargets()
{
    QStringList targets;
    for (const StockArticle& article : StockArticles::current()) {
        targets << article.id + separator + article.name + separator + texts(valid[0]);
    }
    ui_->cbx_Article->addItems(targets);
}

void FormVendelSaisieStockCutPaste::Display()
{
    guarded("FormVendelSaisieStockCutPaste Display", [this] {
        clearList(*modelArticles_);
        Stock::addArticles(
            *ui_->tableView1, *modelArticles_, StockArticles::withdrawn(), texts(expired[0]));
    });
}

void FormVendelSaisieStockCutPaste::Display_DoseStock(const QString& id)
{
    guarded("FormVendelSaisieStockCutPaste Display_DoseStock",
        [&] { Stock::showRecipe(*ui_->tableView2, *modelCompositions_, id); });
}

bool FormVendelSaisieStockCutPaste::eventFilter(QObject* watched, QEvent* event)
{
    guarded("FormVendelSaisieStockCutPaste eventFilter", [&] { tips_.show(watched, event); });
    return false;
}

void FormVendelSaisieStockCutPaste::on_tableViewSelection(
    const QModelIndex& /*current*/, const QModelIndex& /*previous*/)
{
    guarded("FormVendelSaisieStock on_tableViewSelection", [this] { showMarkedRecipe(); });
}

void FormVendelSaisieStockCutPaste::on_tableView1_clicked(const QModelIndex& /*index*/)
{
    guarded("FormVendelSaisieStock on_tableView1_clicked", [this] { showMarkedRecipe(); });
}

/// Never the recipe of an article that is not marked: a double click would remove a line of it.
void FormVendelSaisieStockCutPaste::showMarkedRecipe()
{
    if (const auto id = markedKey(*ui_->tableView1)) {
        Display_DoseStock(*id);
    } else {
        clearList(*modelCompositions_);
    }
}

void FormVendelSaisieStockCutPaste::on_btn_Modify_clicked()
{
    guarded("FormVendelSaisieStockCutPaste on_btn_Modify_clicked", [this] { moveLine(); });
}

void FormVendelSaisieStockCutPaste::moveLine()
{
    if (modelCompositions_->rowCount() == 0) {
        notice(this, texts, recipeIsEmpty);
        return;
    }
    const auto row = chosenRow(*ui_->tableView2);
    if (!row) {
        notice(this, texts, noLineChosen);
        return;
    }
    const QString line = textAt(*row, Stock::RecipeLineKey);
    const QString source = textAt(*row, Stock::RecipeArticle);
    const QStringList target = ui_->cbx_Article->currentText().split(QLatin1Char(','));
    const QString question = texts(moveQuestion[0]) + textAt(*row, Stock::RecipeComposition)
        + texts(moveQuestion[1]) + target.value(1) + separator + target.value(2);
    if (!confirm(this, question, texts(moveQuestion[2]))) {
        return;
    }
    Recipes::move(line, target.value(0));
    Display_DoseStock(source);
    if (auto* stock = qobject_cast<Stock*>(parent())) {
        stock->Clear_List();
    }
}
