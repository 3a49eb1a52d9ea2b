// SPDX-License-Identifier: MIT
#include "forms/FormVendelSaisieStock.h"

#include "common/Messages.h"
#include "common/Money.h"
#include "common/SlotGuard.h"
#include "forms/FormVendelSaisieStockComposition.h"
#include "forms/FormVendelSaisieStockCutPaste.h"
#include "forms/FormVendelSaisieStockMaj.h"
#include "store/Recipes.h"
#include "store/StockArticles.h"
#include "ui_FormVendelSaisieStock.h"
#include "widgets/Captions.h"
#include "widgets/HoverTip.h"
#include "widgets/Lists.h"
#include "widgets/Marks.h"
#include "widgets/MessageBoxes.h"
#include "widgets/OpenWindow.h"
#include "widgets/RowKeys.h"

namespace {
constexpr Texts texts{"FormVendelSaisieStockMessages"};
const auto& articleLabels = Messages::Messages143;
const auto& recipeLabels = Messages::Messages144;
const auto& articleTip = Messages::Messages70;
const auto& compositionTip = Messages::Messages71;
const auto& noArticle = Messages::Messages39;
const auto& valid = Messages::Messages40;
const auto& expired = Messages::Messages41;
const auto& noArticleChosen = Messages::Messages46;
const auto& removalQuestion = Messages::Messages45;
} // namespace

FormVendelSaisieStock::FormVendelSaisieStock(QWidget* parent)
    : QDialog(parent)
    , ui_(std::make_unique<Ui_FormVendelSaisieStock>())
    , modelArticles_(new ListModel(0, 3, this))
    , modelCompositions_(new ListModel(0, 5, this))
    , tips_(*this, texts)
{
    guarded("FormVendelSaisieStock Contructor", [this] {
        ui_->setupUi(this);
        translateCaptions(*this);
        setUpLists();
    });
}

FormVendelSaisieStock::~FormVendelSaisieStock() = default;

void FormVendelSaisieStock::setUpLists()
{
    setUpArticles(*ui_->tableView1, *modelArticles_, texts, articleLabels);
    setUpRecipe(*ui_->tableView2, *modelCompositions_, texts, recipeLabels);
    tips_.add({*ui_->tableView1, ArticleName, articleTip, {}});
    tips_.add({*ui_->tableView2, RecipeComposition, compositionTip, {}});
    connect(ui_->tableView1->selectionModel(), &QItemSelectionModel::currentChanged, this,
        &FormVendelSaisieStock::on_tableViewSelection);
    // A click on a row number marks its row after it has become the current one.
    connect(ui_->tableView1->selectionModel(), &QItemSelectionModel::selectionChanged, this,
        [this] { on_tableViewSelection({}, {}); });

    onRowKeys(
        *ui_->tableView1, [this](const QModelIndex& index) { on_tableView1_doubleClicked(index); });
    // The removal asks nothing, so it has a key of its own.
    onKey(*ui_->tableView2, Qt::Key_Delete,
        [this](const QModelIndex& index) { on_tableView2_doubleClicked(index); });
}

void FormVendelSaisieStock::Display(bool)
{
    guarded("FormVendelSaisieStock Display", [this] { showArticles(); });
}

void FormVendelSaisieStock::showArticles()
{
    clearList(*modelArticles_);
    const std::vector<StockArticle> articles = StockArticles::all();
    if (articles.empty()) {
        notice(this, texts, noArticle);
        return;
    }
    addArticles(*ui_->tableView1, *modelArticles_, articles, texts(valid[0]));
    markIds(*modelArticles_, StockArticles::withdrawnIds(), ArticleValidity, texts(expired[0]));
}

void FormVendelSaisieStock::Display_DoseStock(const QString& id)
{
    guarded("FormVendelSaisieStock Display_DoseStock",
        [&] { showRecipe(*ui_->tableView2, *modelCompositions_, id); });
}

void FormVendelSaisieStock::Clear_List() { clearList(*modelCompositions_); }

bool FormVendelSaisieStock::eventFilter(QObject* watched, QEvent* event)
{
    guarded("FormVendelSaisieStock eventFilter", [&] { tips_.show(watched, event); });
    return false;
}

void FormVendelSaisieStock::on_btn_Display_clicked()
{
    guarded("FormVendelSaisieStock on_btn_Display_clicked", [this] { Display(true); });
}

void FormVendelSaisieStock::on_btn_Update_clicked()
{
    guarded("FormVendelSaisieStock on_btn_Update_clicked",
        [this] { openWindow<FormVendelSaisieStockMaj>(this); });
}

void FormVendelSaisieStock::on_btn_Cut_Paste_clicked()
{
    guarded("FormVendelSaisieStock on_btn_Cut_Paste_clicked",
        [this] { openWindow<FormVendelSaisieStockCutPaste>(this); });
}

void FormVendelSaisieStock::on_btn_Remove_clicked()
{
    guarded("FormVendelSaisieStock on_btn_Remove_clicked", [this] { removeArticle(); });
}

void FormVendelSaisieStock::removeArticle()
{
    if (modelArticles_->rowCount() == 0) {
        notice(this, texts, noArticle);
        return;
    }
    const auto row = chosenRow(*ui_->tableView1);
    if (!row) {
        notice(this, texts, noArticleChosen);
        return;
    }
    const QString id = textAt(*row, ArticleId);
    const QString name
        = textAt(*row, ArticleName) + QLatin1String(", ") + textAt(*row, ArticleValidity);
    if (confirm(this, texts, removalQuestion, name, Preset::No) && StockArticles::remove(id)) {
        Clear_List();
        Display(true);
    }
}

void FormVendelSaisieStock::on_tableView1_clicked(const QModelIndex& /*index*/)
{
    guarded("FormVendelSaisieStock on_tableView1_clicked", [this] { showMarkedRecipe(); });
}

void FormVendelSaisieStock::on_tableViewSelection(
    const QModelIndex& /*current*/, const QModelIndex& /*previous*/)
{
    guarded("FormVendelSaisieStock on_tableViewSelection", [this] { showMarkedRecipe(); });
}

/// Never the recipe of an article that is not marked: a double click would remove a line of it.
void FormVendelSaisieStock::showMarkedRecipe()
{
    if (const auto id = markedKey(*ui_->tableView1)) {
        Display_DoseStock(*id);
    } else {
        Clear_List();
    }
}

void FormVendelSaisieStock::on_tableView1_doubleClicked(const QModelIndex& index)
{
    guarded("FormVendelSaisieStock on_tableView1_doubleClicked", [&] { composeRecipeOf(index); });
}

void FormVendelSaisieStock::composeRecipeOf(const QModelIndex& index)
{
    if (index.isValid()) {
        if (markedKey(*ui_->tableView1) != textAt(index, ArticleId)) {
            ui_->tableView1->setCurrentIndex(index);
        }
        openWindow<FormVendelSaisieStockComposition>(
            this, textAt(index, ArticleName), textAt(index, ArticleId));
    }
}

void FormVendelSaisieStock::on_tableView2_doubleClicked(const QModelIndex& index)
{
    guarded("FormVendelSaisieStock on_tableView2_doubleClicked", [&] { removeLine(index); });
}

void FormVendelSaisieStock::removeLine(const QModelIndex& index)
{
    const auto line = selectedKey(*ui_->tableView2, index);
    if (!line) {
        return;
    }
    const QString article = textAt(index, RecipeArticle);
    Recipes::remove(*line);
    Display_DoseStock(article);
}

void FormVendelSaisieStock::setUpArticles(
    QTableView& view, ListModel& model, const Texts& context, std::span<const std::string> labels)
{
    setUpList(view, model, context, labels, {50, 210, 110});
}

void FormVendelSaisieStock::setUpRecipe(
    QTableView& view, ListModel& model, const Texts& context, std::span<const std::string> labels)
{
    setUpList(view, model, context, labels, {50, 50, 180, 90, 50}, {RecipeArticle});
}

void FormVendelSaisieStock::addArticles(QTableView& view, QStandardItemModel& model,
    const std::vector<StockArticle>& articles, const QString& validity)
{
    appendRows(view, model, articles, [&validity](const StockArticle& article) {
        return QStringList{article.id, article.name, validity};
    });
}

void FormVendelSaisieStock::showRecipe(
    QTableView& view, QStandardItemModel& model, const QString& article)
{
    clearList(model);
    appendRows(view, model, Recipes::of(article), [](const RecipeLine& line) {
        return QStringList{
            line.key, line.article, line.composition, formatQuantity(line.dose), line.unit};
    });
}
