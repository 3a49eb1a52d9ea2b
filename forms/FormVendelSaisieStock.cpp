// SPDX-License-Identifier: MIT
#include "forms/FormVendelSaisieStock.h"

#include "common/HoverTip.h"
#include "common/Lists.h"
#include "common/MessageBoxes.h"
#include "common/Messages.h"
#include "common/SlotGuard.h"
#include "common/Windows.h"
#include "forms/Compositions.h"
#include "forms/FormVendelSaisieStockComposition.h"
#include "forms/FormVendelSaisieStockCutPaste.h"
#include "forms/FormVendelSaisieStockMaj.h"
#include "forms/StockArticles.h"
#include "forms/StockLists.h"
#include "ui_FormVendelSaisieStock.h"

using namespace StockLists;

namespace {
constexpr Texts texts{"FormVendelSaisieStockMessages"};

std::vector<int> withdrawnIds()
{
    std::vector<int> ids;
    for (const auto& article : StockArticles::withdrawn()) {
        ids.push_back(std::stoi(article.at(ArticleId)));
    }
    return ids;
}
} // namespace

FormVendelSaisieStock::FormVendelSaisieStock(QWidget* parent)
    : QDialog(parent)
    , ui_(std::make_unique<Ui_FormVendelSaisieStock>())
    , modelArticles_(new QStandardItemModel(0, 3, this))
    , modelCompositions_(new QStandardItemModel(0, 5, this))
{
    guarded("Errors FormVendelSaisieStock Contructor : ", [this] {
        ui_->setupUi(this);
        setUpLists();
        setCaptions();
    });
}

FormVendelSaisieStock::~FormVendelSaisieStock() = default;

void FormVendelSaisieStock::setUpLists()
{
    setUpArticles(*ui_->tableView1, *modelArticles_, texts, Messages::Messages143);
    setUpCompositions(*ui_->tableView2, *modelCompositions_, texts, Messages::Messages144);
    watchMouse(*ui_->tableView1, *this);
    watchMouse(*ui_->tableView2, *this);
    connect(ui_->tableView1->selectionModel(), &QItemSelectionModel::currentChanged, this,
        &FormVendelSaisieStock::on_tableViewSelection);

    const auto compose = [this](const QModelIndex& index) { on_tableView1_doubleClicked(index); };
    onKey(*ui_->tableView1, Qt::Key_Return, compose);
    onKey(*ui_->tableView1, Qt::Key_Enter, compose);
    onKey(*ui_->tableView2, Qt::Key_Delete,
        [this](const QModelIndex& index) { on_tableView2_doubleClicked(index); });
}

void FormVendelSaisieStock::setCaptions()
{
    constexpr Texts captions{"FormVendelSaisieStock"};
    setWindowTitle(captions(Messages::Messages160[0]));
    ui_->btn_Display->setText(captions(Messages::Messages161[0]));
    ui_->btn_Update->setText(captions(Messages::Messages162[0]));
    ui_->btn_Remove->setText(captions(Messages::Messages163[0]));
    ui_->btn_Cut_Paste->setText(captions(Messages::Messages164[0]));
}

void FormVendelSaisieStock::Display(bool)
{
    guarded("Errors FormVendelSaisieStock Display : ", [this] { showArticles(); });
}

void FormVendelSaisieStock::showArticles()
{
    clearList(*modelArticles_);
    const DbRows articles = StockArticles::all();
    if (articles.empty()) {
        notice(this, texts, Messages::Messages39);
        return;
    }
    addArticles(*ui_->tableView1, *modelArticles_, articles, texts(Messages::Messages40[0]));
    markIds(*modelArticles_, withdrawnIds(), ArticleValidity, texts(Messages::Messages41[0]));
}

void FormVendelSaisieStock::Display_DoseStock(const QString& id)
{
    guarded("Errors FormVendelSaisieStock Display_DoseStock : ",
        [&] { showCompositions(*ui_->tableView2, *modelCompositions_, id); });
}

void FormVendelSaisieStock::Clear_List()
{
    clearList(*modelCompositions_);
}

bool FormVendelSaisieStock::eventFilter(QObject* watched, QEvent* event)
{
    guarded("Errors FormVendelSaisieStock eventFilter : ", [&] {
        showTipOver(
            *this, *ui_->tableView1, watched, event, ArticleName, texts, Messages::Messages70);
        showTipOver(
            *this, *ui_->tableView2, watched, event, CompositionName, texts, Messages::Messages71);
    });
    return false;
}

void FormVendelSaisieStock::on_btn_Display_clicked()
{
    guarded("Errors FormVendelSaisieStock on_btn_Display_clicked : ", [this] { Display(true); });
}

void FormVendelSaisieStock::on_btn_Update_clicked()
{
    guarded("Errors FormVendelSaisieStock on_btn_Update_clicked : ",
        [this] { openWindow<FormVendelSaisieStockMaj>(this); });
}

void FormVendelSaisieStock::on_btn_Cut_Paste_clicked()
{
    guarded("Errors FormVendelSaisieStock on_btn_Cut_Paste_clicked : ",
        [this] { openWindow<FormVendelSaisieStockCutPaste>(this); });
}

void FormVendelSaisieStock::on_btn_Remove_clicked()
{
    guarded("Errors FormVendelSaisieStock on_btn_Remove_clicked : ", [this] { removeArticle(); });
}

void FormVendelSaisieStock::removeArticle()
{
    if (modelArticles_->rowCount() == 0) {
        notice(this, texts, Messages::Messages39);
        return;
    }
    const auto row = chosenRow(*ui_->tableView1);
    if (!row) {
        notice(this, texts, Messages::Messages46);
        return;
    }
    const QString id = textAt(*row, ArticleId);
    const QString name
        = textAt(*row, ArticleName) + QLatin1String(", ") + textAt(*row, ArticleValidity);
    if (confirm(this, texts, Messages::Messages45, name)) {
        StockArticles::remove(id);
        Clear_List();
        Display(true);
    }
}

void FormVendelSaisieStock::on_tableView1_clicked(const QModelIndex& index)
{
    guarded("Errors FormVendelSaisieStock on_tableView1_clicked : ", [&] { showRecipeOf(index); });
}

void FormVendelSaisieStock::on_tableViewSelection(
    const QModelIndex& current, const QModelIndex& /*previous*/)
{
    guarded(
        "Errors FormVendelSaisieStock on_tableViewSelection : ", [&] { showRecipeOf(current); });
}

void FormVendelSaisieStock::showRecipeOf(const QModelIndex& index)
{
    if (const auto id = selectedKey(*ui_->tableView1, index)) {
        Display_DoseStock(*id);
    }
}

void FormVendelSaisieStock::on_tableView1_doubleClicked(const QModelIndex& index)
{
    guarded("Errors FormVendelSaisieStock on_tableView1_doubleClicked : ",
        [&] { composeRecipeOf(index); });
}

void FormVendelSaisieStock::composeRecipeOf(const QModelIndex& index)
{
    if (index.isValid()) {
        openWindow<FormVendelSaisieStockComposition>(
            this, textAt(index, ArticleName), textAt(index, ArticleId));
    }
}

void FormVendelSaisieStock::on_tableView2_doubleClicked(const QModelIndex& index)
{
    guarded(
        "Errors FormVendelSaisieStock on_tableView2_doubleClicked : ", [&] { removeLine(index); });
}

void FormVendelSaisieStock::removeLine(const QModelIndex& index)
{
    const auto line = selectedKey(*ui_->tableView2, index);
    if (!line) {
        return;
    }
    const QString article = textAt(index, CompositionArticle);
    Compositions::remove(*line);
    Display_DoseStock(article);
}
