// SPDX-License-Identifier: MIT
#include "forms/FormVendelAbout.h"

#include "common/SlotGuard.h"
#include "ui_FormVendelAbout.h"
#include "widgets/Captions.h"
#include "widgets/Pictures.h"

#include <QDir>
#include <QLayout>
#include <QPushButton>

FormVendelAbout::FormVendelAbout(QWidget* parent)
    : QDialog(parent)
    , ui_(std::make_unique<Ui_FormVendelAbout>())
{
    guarded("FormVendelAbout Constructor", [this] {
        ui_->setupUi(this);
        translateCaptions(*this);
        ui_->lbl_QPixmap->setPixmap(Pictures::read(QStringLiteral("AproposdeImage.png")));
        const QString contact
            = tr("<p><b>%1</b><br>%2</p>"
                 "<p>Caisse enregistreuse sous licence MIT</p>"
                 "<p>Les données du magasin se trouvent dans le dossier<br>%3</p>");
        ui_->txt_Edit->setHtml(contact.arg(ui_->lbl_ProductName->text(), ui_->lbl_Version->text(),
            QDir::currentPath().toHtmlEscaped()));
        ui_->btn_buttonBox->button(QDialogButtonBox::Ok)->setFocus();
        // Without it the picture gets its place only when the window is shown.
        layout()->activate();
    });
}

FormVendelAbout::~FormVendelAbout() = default;

void FormVendelAbout::on_btn_buttonBox_clicked(QAbstractButton*)
{
    guarded("FormVendel on_btn_buttonBox_clicked", [this] { close(); });
}
