// SPDX-License-Identifier: MIT
#include "forms/FormVendelSaisieArticle.h"

#include "common/Messages.h"
#include "common/Money.h"
#include "common/SlotGuard.h"
#include "common/Tools.h"
#include "store/Articles.h"
#include "ui_FormVendelSaisieArticle.h"
#include "widgets/Captions.h"
#include "widgets/HoverTip.h"
#include "widgets/Lists.h"
#include "widgets/MessageBoxes.h"
#include "widgets/RowKeys.h"

namespace {
enum Column
{
    Id,
    Mark,
    Name,
    Price
};

constexpr Texts texts{"FormVendelSaisieArticleMessages"};
const auto& labels = Messages::Messages97;
const auto& articleTip = Messages::Messages67;
const auto& tooManyCharacters = Messages::Messages28;
const auto& lengthTip = Messages::Messages29;
const auto& menuIsEmpty = Messages::Messages27;
const auto& hasDuplicates = Messages::Messages23;
const auto& foundDuplicates = Messages::Messages24;
const auto& noSearchTerm = Messages::Messages22;
const auto& incompleteArticle = Messages::Messages14;
const auto& noValidPrice = Messages::Messages15;
const auto& noArticleToRemove = Messages::Messages17;
const auto& removalQuestion = Messages::Messages16;
const auto& incompleteChange = Messages::Messages21;
const auto& noArticleToChange = Messages::Messages20;
const auto& noValidNewPrice = Messages::Messages18;
const auto& changeQuestion = Messages::Messages19;
constexpr QPoint hoverTipOffset(350, 130);
constexpr QPoint lengthTipOffset(400, 20);
} // namespace

FormVendelSaisieArticle::FormVendelSaisieArticle(QWidget* parent)
    : QDialog(parent)
    , ui_(std::make_unique<Ui_FormVendelSaisieArticle>())
    , model_(new ListModel(0, 4, this))
    , tips_(*this, texts, [](QPoint position, const QString&) { return isOffTheCorner(position); })
{
    guarded("FormVendelSaisieArticle Constructor", [this] {
        ui_->setupUi(this);
        translateCaptions(*this);
        setUpList(
            *ui_->tableView, *model_, {"FormVendelMessages"}, labels, {50, 25, 210, 110}, {Id});
        tips_.add({*ui_->tableView, Name, articleTip, hoverTipOffset});
        onRowKeys(*ui_->tableView, [this](const QModelIndex& index) {
            ui_->tableView->setCurrentIndex(index);
            on_tableView_doubleClicked(index);
        });
        ui_->txt_Article->setFocus();
    });
}

FormVendelSaisieArticle::~FormVendelSaisieArticle() = default;

bool FormVendelSaisieArticle::eventFilter(QObject* watched, QEvent* event)
{
    guarded("FormVendelSaisieArticle eventFilter", [&] { tips_.show(watched, event); });
    return false;
}

void FormVendelSaisieArticle::on_tableView_doubleClicked(const QModelIndex& index)
{
    guarded("FormVendelSaisieArticle on_tableView_doubleClicked", [&] {
        if (!ui_->tableView->selectionModel()->isSelected(index)) {
            return;
        }
        ui_->txt_Article->setText(textAt(index, Name));
        ui_->txt_Montant->setText(textAt(index, Price).remove(QLatin1Char('$')));
    });
}

void FormVendelSaisieArticle::on_txt_Article_textChanged(const QString&)
{
    guarded("FormVendelSaisieArticle on_txt_Article_textChanged", [this] { checkLength(); });
}

/// Takes one surplus letter back; the text then changes again, until none is left.
void FormVendelSaisieArticle::checkLength()
{
    const auto length = ui_->txt_Article->text().size();
    if (length > Tools::NbrChar) {
        notice(this, texts(tooManyCharacters[0]) + QString::number(Tools::NbrChar),
            texts(tooManyCharacters[1]));
        ui_->txt_Article->setText(ui_->txt_Article->text().remove(Tools::NbrChar, 1));
    } else {
        const QString tip = texts(lengthTip[0]) + QString::number(length);
        ui_->txt_Article->setAccessibleDescription(tip);
        showTip(*this, geometry().topLeft() + lengthTipOffset, tip);
    }
}

void FormVendelSaisieArticle::on_btn_Effacer_Saisie_clicked()
{
    guarded("FormVendelSaisieArticle on_btn_Effacer_Saisie_clicked", [this] {
        // A change of the focus would take away the tip that counts the letters.
        goToFirstField();
        ui_->txt_Article->setText(QString());
        ui_->txt_Montant->setText(QString());
    });
}

void FormVendelSaisieArticle::Display()
{
    guarded("FormVendelSaisieArticle Display", [this] { showMenu(); });
}

void FormVendelSaisieArticle::showMenu()
{
    const std::vector<Article> articles = Articles::all();
    if (articles.empty()) {
        notice(this, texts, menuIsEmpty);
        return;
    }
    append(articles);
    reportDuplicates(hasDuplicates, Articles::countDuplicates());
}

void FormVendelSaisieArticle::append(const std::vector<Article>& articles)
{
    const std::vector<int> duplicates
        = articles.empty() ? std::vector<int>() : Articles::duplicateIds();
    appendRows(*ui_->tableView, *model_, articles, [](const Article& article) {
        // A name that is a number is shown like a price.
        return QStringList{
            article.id, QString(), formatCell(article.name), formatCell(article.price)};
    });
    markIds(*model_, duplicates, Mark, QStringLiteral("X"));
}

void FormVendelSaisieArticle::reportDuplicates(
    const std::array<std::string, 2>& message, std::optional<int> count)
{
    if (count) {
        notice(this, texts, message, *count);
    }
}

void FormVendelSaisieArticle::on_btn_Afficher_clicked()
{
    guarded("FormVendelSaisieArticle on_btn_Afficher_clicked", [this] {
        clearList(*model_);
        Display();
    });
}

void FormVendelSaisieArticle::on_btn_Rechercher_clicked()
{
    guarded("FormVendelSaisieArticle on_btn_Rechercher_clicked", [this] { search(); });
}

void FormVendelSaisieArticle::search()
{
    ui_->txt_Article->setText(ui_->txt_Article->text().trimmed());
    const QString term = ui_->txt_Article->text();
    if (term.isEmpty()) {
        notice(this, texts, noSearchTerm);
        return;
    }
    clearList(*model_);
    append(Articles::like(term));
    reportDuplicates(foundDuplicates, Articles::countDuplicatesLike(term));
}

void FormVendelSaisieArticle::on_btn_Ajouter_clicked()
{
    guarded("FormVendelSaisieArticle on_btn_Ajouter_clicked", [this] {
        add();
        goToFirstField();
    });
}

void FormVendelSaisieArticle::add()
{
    trimFields();
    const QString article = ui_->txt_Article->text();
    if (article.isEmpty() || ui_->txt_Montant->text().isEmpty()) {
        notice(this, texts, incompleteArticle);
        return;
    }
    const QString price = withPoint(ui_->txt_Montant->text());
    if (!Tools::isNum(price)) {
        notice(this, texts, noValidPrice);
        return;
    }
    clearList(*model_);
    Articles::add(article, price);
    Display();
}

void FormVendelSaisieArticle::on_btn_Supprimer_clicked()
{
    guarded("FormVendelSaisieArticle on_btn_Supprimer_clicked", [this] { removeCurrent(); });
}

void FormVendelSaisieArticle::removeCurrent()
{
    if (!ui_->tableView->selectionModel()->hasSelection()) {
        notice(this, texts, noArticleToRemove);
        return;
    }
    if (!confirm(this, texts, removalQuestion, currentCell(Name), Preset::No)) {
        return;
    }
    Articles::remove(currentCell(Id));
    clearList(*model_);
    Display();
}

void FormVendelSaisieArticle::on_btn_Renommer_clicked()
{
    guarded("FormVendelSaisieArticle on_btn_Renommer_clicked", [this] { renameCurrent(); });
}

void FormVendelSaisieArticle::renameCurrent()
{
    trimFields();
    const QString article = ui_->txt_Article->text();
    if (article.isEmpty() || ui_->txt_Montant->text().isEmpty()) {
        notice(this, texts, incompleteChange);
        return;
    }
    if (!ui_->tableView->selectionModel()->hasSelection()) {
        notice(this, texts, noArticleToChange);
        return;
    }
    const QString price = withPoint(ui_->txt_Montant->text());
    if (!Tools::isNum(price)) {
        notice(this, texts, noValidNewPrice);
        return;
    }
    if (!confirm(this, texts, changeQuestion, currentCell(Name))) {
        return;
    }
    Articles::change(currentCell(Id), article, price);
    clearList(*model_);
    Display();
}

/// The next article is typed over this one.
void FormVendelSaisieArticle::goToFirstField()
{
    ui_->txt_Article->setFocus();
    ui_->txt_Article->selectAll();
}

void FormVendelSaisieArticle::trimFields()
{
    ui_->txt_Article->setText(ui_->txt_Article->text().trimmed());
    ui_->txt_Montant->setText(ui_->txt_Montant->text().trimmed());
}

QString FormVendelSaisieArticle::currentCell(int column) const
{
    return textAt(ui_->tableView->currentIndex(), column);
}
