// SPDX-License-Identifier: MIT
#include "forms/FormVendelSaisieStockMaj.h"

#include "common/Lists.h"
#include "common/MessageBoxes.h"
#include "common/Messages.h"
#include "common/SlotGuard.h"
#include "forms/FormVendelSaisieStock.h"
#include "forms/StockArticles.h"
#include "ui_FormVendelSaisieStockMaj.h"

namespace {
constexpr Texts texts{"FormVendelSaisieStockMajMessages"};

void addRows(ListFiller& filler, const DbRows& articles, const QString& change)
{
    for (const auto& article : articles) {
        filler.add(
            {QString::fromStdString(article.at(0)), QString::fromStdString(article.at(1)), change});
    }
}
} // namespace

FormVendelSaisieStockMaj::FormVendelSaisieStockMaj(QWidget* parent)
    : QDialog(parent)
    , ui_(std::make_unique<Ui_FormVendelSaisieStockMaj>())
    , model_(new QStandardItemModel(0, 3, this))
{
    guarded("Errors FormVendelSaisieStockMaj Constructor : ", [this] {
        ui_->setupUi(this);
        constexpr Texts captions{"FormVendelSaisieStockMaj"};
        setWindowTitle(captions(Messages::Messages154[0]));
        ui_->btn_Update->setText(captions(Messages::Messages155[0]));
        setUpPreview();
    });
}

FormVendelSaisieStockMaj::~FormVendelSaisieStockMaj() = default;

void FormVendelSaisieStockMaj::setUpPreview()
{
    setUpList(*ui_->tableView, *model_, texts, Messages::Messages147, {50, 210, 100});
    ListFiller filler(*ui_->tableView, *model_);
    addRows(filler, StockArticles::missing(), texts(Messages::Messages42[0]));
    addRows(filler, StockArticles::renamed(), texts(Messages::Messages43[0]));
}

void FormVendelSaisieStockMaj::on_btn_Update_clicked()
{
    guarded("Errors FormVendelSaisieStock on_btn_Update_clicked : ", [this] { synchronise(); });
}

void FormVendelSaisieStockMaj::synchronise()
{
    if (model_->rowCount() == 0) {
        notice(this, texts, Messages::Messages44);
    } else {
        StockArticles::synchronise();
        if (auto* stock = qobject_cast<FormVendelSaisieStock*>(parent())) {
            stock->Display(false);
        }
    }
    close();
}
