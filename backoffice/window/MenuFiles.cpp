// SPDX-License-Identifier: MIT
#include "backoffice/window/MenuFiles.h"

#include "backoffice/menu/MenuExport.h"
#include "backoffice/menu/SheetText.h"
#include "backoffice/window/ImportDialog.h"

#include <QFileDialog>
#include <QMenu>
#include <QMessageBox>
#include <QSaveFile>
#include <QStandardPaths>

MenuFiles::MenuFiles(
    const QString& folder, const QLocale& locale, CsvFormat format, QWidget* window)
    : QObject(window)
    , folder_(folder)
    , locale_(locale)
    , format_(format)
    , window_(window)
{ }

void MenuFiles::addTo(QMenu& menu)
{
    const auto add = [&](const QString& text, ImportKind kind, void (MenuFiles::*act)(ImportKind)) {
        connect(menu.addAction(text), &QAction::triggered, this,
            [this, act, kind] { (this->*act)(kind); });
    };
    add(tr("&Importer le menu…"), ImportKind::Menu, &MenuFiles::importFile);
    add(tr("Importer les &recettes…"), ImportKind::Recipes, &MenuFiles::importFile);
    menu.addSeparator();
    add(tr("&Exporter le menu…"), ImportKind::Menu, &MenuFiles::exportFile);
    add(tr("Exporter les re&cettes…"), ImportKind::Recipes, &MenuFiles::exportFile);
}

Import MenuFiles::import() const
{
    // The program itself makes the copy, in a process of its own.
    return {folder_, QStringLiteral("/proc/self/exe"), locale_};
}

void MenuFiles::importFile(ImportKind kind)
{
    auto* dialog = new ImportDialog(kind, import(), window_);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowModality(Qt::WindowModal);
    connect(dialog, &ImportDialog::imported, this, &MenuFiles::imported);
    dialog->show();
}

void MenuFiles::exportFile(ImportKind kind)
{
    const bool isMenu = kind == ImportKind::Menu;
    QByteArray bytes;
    try {
        import().enterShop();
        bytes = csv(isMenu ? MenuExport::menu() : MenuExport::recipes(), format_);
    } catch (const ImportError& error) {
        QMessageBox::warning(window_, tr("Exporter"), error.sentence());
        return;
    }
    QFileDialog dialog(window_, tr("Exporter"),
        QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation), tr("Tableau (*.csv)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QStringLiteral("csv"));
    dialog.selectFile(isMenu ? tr("Menu.csv") : tr("Recettes.csv"));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) {
        return;
    }
    const QString path = dialog.selectedFiles().constFirst();
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit()) {
        QMessageBox::warning(
            window_, tr("Exporter"), tr("Le fichier « %1 » ne peut pas être écrit.").arg(path));
    }
}
