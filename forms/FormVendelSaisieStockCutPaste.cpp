// SPDX-License-Identifier: MIT
#include "forms/FormVendelSaisieStockCutPaste.h"

#include "common/HoverTip.h"
#include "common/Lists.h"
#include "common/MessageBoxes.h"
#include "common/Messages.h"
#include "common/SlotGuard.h"
#include "forms/Compositions.h"
#include "forms/FormVendelSaisieStock.h"
#include "forms/StockArticles.h"
#include "forms/StockLists.h"
#include "ui_FormVendelSaisieStockCutPaste.h"

using namespace StockLists;

namespace {
constexpr Texts texts{"FormVendelSaisieStockCutPasteMessages"};
const QLatin1String separator(", ");
} // namespace

FormVendelSaisieStockCutPaste::FormVendelSaisieStockCutPaste(QWidget* parent)
    : QDialog(parent)
    , ui_(std::make_unique<Ui_FormVendelSaisieStockCutPaste>())
    , modelArticles_(new QStandardItemModel(0, 3, this))
    , modelCompositions_(new QStandardItemModel(0, 5, this))
{
    guarded("Errors FormVendelSaisieStockCutPaste Constructor : ", [this] {
        ui_->setupUi(this);
        constexpr Texts captions{"FormVendelSaisieStockCutPaste"};
        setWindowTitle(captions(Messages::Messages158[0]));
        ui_->btn_Modify->setText(captions(Messages::Messages159[0]));
        setUpLists();
        fillTargets();
        Display();
    });
}

FormVendelSaisieStockCutPaste::~FormVendelSaisieStockCutPaste() = default;

void FormVendelSaisieStockCutPaste::setUpLists()
{
    setUpArticles(*ui_->tableView1, *modelArticles_, texts, Messages::Messages156);
    setUpCompositions(*ui_->tableView2, *modelCompositions_, texts, Messages::Messages157);
    watchMouse(*ui_->tableView2, *this);
    connect(ui_->tableView1->selectionModel(), &QItemSelectionModel::currentChanged, this,
        &FormVendelSaisieStockCutPaste::on_tableViewSelection);
}

void FormVendelSaisieStockCutPaste::fillTargets()
{
    QStringList targets;
    for (const auto& article : StockArticles::current()) {
        targets << QString::fromStdString(article.at(ArticleId)) + separator
                + QString::fromStdString(article.at(ArticleName)) + separator
                + texts(Messages::Messages50[0]);
    }
    ui_->cbx_Article->addItems(targets);
}

void FormVendelSaisieStockCutPaste::Display()
{
    guarded("Errors FormVendelSaisieStockCutPaste Display : ", [this] {
        clearList(*modelArticles_);
        addArticles(*ui_->tableView1, *modelArticles_, StockArticles::withdrawn(),
            texts(Messages::Messages51[0]));
    });
}

void FormVendelSaisieStockCutPaste::Display_DoseStock(const QString& id)
{
    guarded("Errors FormVendelSaisieStockCutPaste Display_DoseStock : ",
        [&] { showCompositions(*ui_->tableView2, *modelCompositions_, id); });
}

bool FormVendelSaisieStockCutPaste::eventFilter(QObject* watched, QEvent* event)
{
    guarded("Errors FormVendelSaisieStockCutPaste eventFilter : ", [&] {
        showTipOver(
            *this, *ui_->tableView2, watched, event, CompositionName, texts, Messages::Messages72);
    });
    return false;
}

void FormVendelSaisieStockCutPaste::on_tableViewSelection(
    const QModelIndex& current, const QModelIndex& /*previous*/)
{
    guarded(
        "Errors FormVendelSaisieStock on_tableViewSelection : ", [&] { showRecipeOf(current); });
}

void FormVendelSaisieStockCutPaste::on_tableView1_clicked(const QModelIndex& index)
{
    guarded("Errors FormVendelSaisieStock on_tableView1_clicked : ", [&] { showRecipeOf(index); });
}

void FormVendelSaisieStockCutPaste::showRecipeOf(const QModelIndex& index)
{
    if (const auto id = selectedKey(*ui_->tableView1, index)) {
        Display_DoseStock(*id);
    }
}

void FormVendelSaisieStockCutPaste::on_btn_Modify_clicked()
{
    guarded(
        "Errors FormVendelSaisieStockCutPaste on_btn_Modify_clicked : ", [this] { moveLine(); });
}

void FormVendelSaisieStockCutPaste::moveLine()
{
    if (modelCompositions_->rowCount() == 0) {
        notice(this, texts, Messages::Messages54);
        return;
    }
    const auto row = chosenRow(*ui_->tableView2);
    if (!row) {
        notice(this, texts, Messages::Messages53);
        return;
    }
    const QString line = textAt(*row, CompositionLine);
    const QString source = textAt(*row, CompositionArticle);
    const QStringList target = ui_->cbx_Article->currentText().split(QLatin1Char(','));
    const QString question = texts(Messages::Messages52[0]) + textAt(*row, CompositionName)
        + texts(Messages::Messages52[1]) + target.value(1) + separator + target.value(2);
    if (!confirm(this, question, texts(Messages::Messages52[2]))) {
        return;
    }
    Compositions::move(line, target.value(0));
    Display_DoseStock(source);
    if (auto* stock = qobject_cast<FormVendelSaisieStock*>(parent())) {
        stock->Clear_List();
    }
}
