// SPDX-License-Identifier: MIT
#include "forms/FormVendelSaisieArticle.h"

#include "common/HoverTip.h"
#include "common/Lists.h"
#include "common/MessageBoxes.h"
#include "common/Messages.h"
#include "common/Money.h"
#include "common/SlotGuard.h"
#include "common/Tools.h"
#include "forms/ArticleTable.h"
#include "forms/DuplicateArticles.h"
#include "ui_FormVendelSaisieArticle.h"

namespace {
enum Column
{
    Id,
    Mark,
    Article,
    Price
};

constexpr Texts texts{"FormVendelSaisieArticleMessages"};
constexpr QPoint hoverTipOffset(350, 130);
constexpr QPoint lengthTipOffset(400, 20);
} // namespace

FormVendelSaisieArticle::FormVendelSaisieArticle(QWidget* parent)
    : QDialog(parent)
    , ui_(std::make_unique<Ui_FormVendelSaisieArticle>())
    , model_(new QStandardItemModel(0, 4, this))
{
    guarded("Errors FormVendelSaisieArticle Constructor : ", [this] {
        ui_->setupUi(this);
        setUpList(*ui_->tableView, *model_, {"FormVendelMessages"}, Messages::Messages97,
            {50, 25, 210, 110}, {Id});
        watchMouse(*ui_->tableView, *this);
        setCaptions();
        ui_->txt_Article->setFocus();
    });
}

FormVendelSaisieArticle::~FormVendelSaisieArticle() = default;

void FormVendelSaisieArticle::setCaptions()
{
    constexpr Texts captions{"FormVendelSaisieArticle"};
    setWindowTitle(captions(Messages::Messages116[0]));
    ui_->lbl_Menu->setText(captions(Messages::Messages117[0]));
    ui_->lbl_Article->setText(captions(Messages::Messages118[0]));
    ui_->lbl_Montant->setText(captions(Messages::Messages119[0]));
    ui_->btn_Effacer_Saisie->setText(captions(Messages::Messages120[0]));
    ui_->btn_Afficher->setText(captions(Messages::Messages121[0]));
    ui_->btn_Ajouter->setText(captions(Messages::Messages122[0]));
    ui_->btn_Supprimer->setText(captions(Messages::Messages123[0]));
    ui_->btn_Renommer->setText(captions(Messages::Messages124[0]));
    ui_->btn_Rechercher->setText(captions(Messages::Messages125[0]));
}

bool FormVendelSaisieArticle::eventFilter(QObject* watched, QEvent* event)
{
    guarded("Errors FormVendelSaisieArticle eventFilter : ", [&] { showHoverTip(watched, event); });
    return false;
}

void FormVendelSaisieArticle::showHoverTip(const QObject* watched, const QEvent* event)
{
    const auto position = mouseMoveOver(*ui_->tableView, watched, event);
    if (!position) {
        return;
    }
    const QString name = textUnder(*ui_->tableView, *position, Article);
    if ((position->x() > 0 || position->y() > 0) && !name.isEmpty()) {
        showTip(*this, *position + hoverTipOffset,
            texts(Messages::Messages67[0]) + name + texts(Messages::Messages67[1]));
    } else {
        hideTip();
    }
}

void FormVendelSaisieArticle::on_tableView_doubleClicked(const QModelIndex& index)
{
    guarded("Errors FormVendelSaisieArticle on_tableView_doubleClicked : ", [&] {
        if (!ui_->tableView->selectionModel()->isSelected(index)) {
            return;
        }
        ui_->txt_Article->setText(index.sibling(index.row(), Article).data().toString());
        ui_->txt_Montant->setText(
            index.sibling(index.row(), Price).data().toString().remove(QLatin1Char('$')));
    });
}

void FormVendelSaisieArticle::on_txt_Article_textChanged(const QString&)
{
    guarded(
        "Errors FormVendelSaisieArticle on_txt_Article_textChanged : ", [this] { checkLength(); });
}

/// Takes one surplus letter back; the text then changes again, until none is left.
void FormVendelSaisieArticle::checkLength()
{
    const auto length = ui_->txt_Article->text().size();
    if (length > Tools::NbrChar) {
        notice(this, texts(Messages::Messages28[0]) + QString::number(Tools::NbrChar),
            texts(Messages::Messages28[1]));
        ui_->txt_Article->setText(ui_->txt_Article->text().remove(Tools::NbrChar, 1));
    } else {
        showTip(*this, geometry().topLeft() + lengthTipOffset,
            texts(Messages::Messages29[0]) + QString::number(length));
    }
}

void FormVendelSaisieArticle::on_btn_Effacer_Saisie_clicked()
{
    guarded("Errors FormVendelSaisieArticle on_btn_Effacer_Saisie_clicked : ", [this] {
        ui_->txt_Article->setText(QString());
        ui_->txt_Montant->setText(QString());
    });
}

void FormVendelSaisieArticle::Display()
{
    guarded("Errors FormVendelSaisieArticle Display : ", [this] { showMenu(); });
}

void FormVendelSaisieArticle::showMenu()
{
    if (ArticleTable::rows().empty()) {
        notice(this, texts, Messages::Messages27);
        return;
    }
    append(ArticleTable::rows());
    tellOfDuplicates(Messages::Messages23, DuplicateArticles::count());
}

void FormVendelSaisieArticle::append(const DbRows& articles)
{
    ListFiller filler(*ui_->tableView, *model_);
    for (const auto& article : articles) {
        const std::string& id = article.at(ArticleTable::Id);
        const bool isDuplicate = DuplicateArticles::contain(id);
        filler.add({QString::fromStdString(id), isDuplicate ? QStringLiteral("X") : QString(),
            formatCell(article.at(ArticleTable::Article)),
            formatCell(article.at(ArticleTable::Price))});
    }
}

void FormVendelSaisieArticle::tellOfDuplicates(
    const std::array<std::string, 2>& message, std::optional<int> count)
{
    if (count) {
        notice(this, texts, message, *count);
    }
}

void FormVendelSaisieArticle::on_btn_Afficher_clicked()
{
    guarded("Errors FormVendelSaisieArticle on_btn_Afficher_clicked : ", [this] {
        clearList(*model_);
        Display();
    });
}

void FormVendelSaisieArticle::on_btn_Rechercher_clicked()
{
    guarded("Errors FormVendelSaisieArticle on_btn_Rechercher_clicked : ", [this] { search(); });
}

void FormVendelSaisieArticle::search()
{
    ui_->txt_Article->setText(ui_->txt_Article->text().trimmed());
    const QString term = ui_->txt_Article->text();
    if (term.isEmpty()) {
        notice(this, texts, Messages::Messages22);
        return;
    }
    clearList(*model_);
    append(ArticleTable::rowsLike(term));
    tellOfDuplicates(Messages::Messages24, DuplicateArticles::countLike(term));
}

void FormVendelSaisieArticle::on_btn_Ajouter_clicked()
{
    guarded("Errors FormVendelSaisieArticle on_btn_Ajouter_clicked : ", [this] { add(); });
}

void FormVendelSaisieArticle::add()
{
    trimFields();
    const QString article = ui_->txt_Article->text();
    if (article.isEmpty() || ui_->txt_Montant->text().isEmpty()) {
        notice(this, texts, Messages::Messages14);
        return;
    }
    const QString price = withPoint(ui_->txt_Montant->text());
    if (!Tools::isNum(price)) {
        notice(this, texts, Messages::Messages15);
        return;
    }
    clearList(*model_);
    ArticleTable::add(article, price);
    Display();
}

void FormVendelSaisieArticle::on_btn_Supprimer_clicked()
{
    guarded(
        "Errors FormVendelSaisieArticle on_btn_Supprimer_clicked : ", [this] { removeCurrent(); });
}

void FormVendelSaisieArticle::removeCurrent()
{
    if (!ui_->tableView->selectionModel()->hasSelection()) {
        notice(this, texts, Messages::Messages17);
        return;
    }
    if (!confirm(this, texts, Messages::Messages16, currentCell(Article))) {
        return;
    }
    ArticleTable::remove(currentCell(Id));
    clearList(*model_);
    Display();
}

void FormVendelSaisieArticle::on_btn_Renommer_clicked()
{
    guarded(
        "Errors FormVendelSaisieArticle on_btn_Renommer_clicked : ", [this] { renameCurrent(); });
}

void FormVendelSaisieArticle::renameCurrent()
{
    trimFields();
    const QString article = ui_->txt_Article->text();
    if (article.isEmpty() || ui_->txt_Montant->text().isEmpty()) {
        notice(this, texts, Messages::Messages21);
        return;
    }
    if (!ui_->tableView->selectionModel()->hasSelection()) {
        notice(this, texts, Messages::Messages20);
        return;
    }
    const QString price = withPoint(ui_->txt_Montant->text());
    if (!Tools::isNum(price)) {
        notice(this, texts, Messages::Messages18);
        return;
    }
    if (!confirm(this, texts, Messages::Messages19, currentCell(Article))) {
        return;
    }
    ArticleTable::change(currentCell(Id), article, price);
    clearList(*model_);
    Display();
}

void FormVendelSaisieArticle::trimFields()
{
    ui_->txt_Article->setText(ui_->txt_Article->text().trimmed());
    ui_->txt_Montant->setText(ui_->txt_Montant->text().trimmed());
}

QString FormVendelSaisieArticle::currentCell(int column) const
{
    const QModelIndex current = ui_->tableView->currentIndex();
    return current.sibling(current.row(), column).data().toString();
}
