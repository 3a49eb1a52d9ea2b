// SPDX-License-Identifier: MIT
#include "forms/FormVendelSaisieStockMaj.h"

#include "common/Messages.h"
#include "common/SlotGuard.h"
#include "forms/FormVendelSaisieStock.h"
#include "store/StockArticles.h"
#include "ui_FormVendelSaisieStockMaj.h"
#include "widgets/Captions.h"
#include "widgets/Lists.h"
#include "widgets/MessageBoxes.h"
#include "widgets/OpenWindow.h"

namespace {
constexpr Texts texts{"FormVendelSaisieStockMajMessages"};
const auto& labels = Messages::Messages147;
const auto& added = Messages::Messages42;
const auto& renamed = Messages::Messages43;
const auto& nothingToUpdate = Messages::Messages44;
} // namespace

FormVendelSaisieStockMaj::FormVendelSaisieStockMaj(QWidget* parent)
    : QDialog(parent)
    , ui_(std::make_unique<Ui_FormVendelSaisieStockMaj>())
    , model_(new ListModel(0, 3, this))
{
    guarded("FormVendelSaisieStockMaj Constructor", [this] {
        ui_->setupUi(this);
        translateCaptions(*this);
        setUpPreview();
    });
}

FormVendelSaisieStockMaj::~FormVendelSaisieStockMaj() = default;

void FormVendelSaisieStockMaj::setUpPreview()
{
    setUpList(*ui_->tableView, *model_, texts, labels, {50, 210, 100});
    const auto append = [this](const std::vector<StockArticle>& articles, const QString& change) {
        appendRows(*ui_->tableView, *model_, articles, [&change](const StockArticle& article) {
            return QStringList{article.id, article.name, change};
        });
    };
    append(StockArticles::missing(), texts(added[0]));
    append(StockArticles::renamed(), texts(renamed[0]));
}

void FormVendelSaisieStockMaj::on_btn_Update_clicked()
{
    guarded("FormVendelSaisieStock on_btn_Update_clicked", [this] { synchronise(); });
}

void FormVendelSaisieStockMaj::synchronise()
{
    if (model_->rowCount() == 0) {
        notice(this, texts, nothingToUpdate);
    } else {
        StockArticles::synchronise();
        if (auto* stock = qobject_cast<FormVendelSaisieStock*>(parent())) {
            stock->Display(false);
        }
    }
    close();
    activateOpener(*this);
}
