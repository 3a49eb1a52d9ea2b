// SPDX-License-Identifier: MIT
#include "backoffice/output/CsvFile.h"
#include "backoffice/output/PaperFile.h"
#include "backoffice/window/MainWindow.h"
#include "backoffice/window/ReportPage.h"

#include <QFileDialog>
#include <QMessageBox>
#include <QPrinter>
#include <QPrintPreviewDialog>
#include <QSaveFile>
#include <QStandardPaths>

// What the window writes to files and to paper.

void MainWindow::saveCsv()
{
    save(QStringLiteral("csv"), tr("Tableau (*.csv)"), [this](const Report& report) {
        return csv(report.file(), setup_.csvFormat.value_or(CsvFormat::of(setup_.locale)));
    });
}

void MainWindow::savePdf()
{
    save(QStringLiteral("pdf"), tr("Document PDF (*.pdf)"),
        [this](const Report& report) { return pdf(report, setup_.locale); });
}

void MainWindow::savePng()
{
    save(QStringLiteral("png"), tr("Image (*.png)"),
        [this](const Report& report) { return png(report, setup_.locale); });
}

void MainWindow::save(const QString& suffix, const QString& filter,
    const std::function<QByteArray(const Report&)>& contents)
{
    const Report* shown = page().report();
    if (shown == nullptr) {
        return;
    }
    // The page may be read again while its file's name is being typed.
    const Report report = *shown;
    const DayRange range = asked_.range;
    QString name = report.title + QLatin1Char(' ');
    if (page().page() != Page::Closing && range.days() > 1) {
        name += range.first.toString(Qt::ISODate) + QLatin1Char('_');
    }
    name += range.last.toString(Qt::ISODate) + QLatin1Char('.') + suffix;
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    QFileDialog dialog(this, tr("Exporter"), folder, filter);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(suffix);
    dialog.selectFile(name);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) {
        return;
    }
    const QString path = dialog.selectedFiles().constFirst();
    QSaveFile file(path);
    const QByteArray bytes = contents(report);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit()) {
        QMessageBox::warning(this, windowTitle(),
            tr("Le fichier «\u00a0%1\u00a0» n'a pas pu être écrit\u00a0: %2")
                .arg(path, file.errorString()));
    }
}

void MainWindow::printPage()
{
    const Report* shown = page().report();
    if (shown == nullptr) {
        return;
    }
    const Report report = *shown;
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageSize(QPageSize(QPageSize::A4));
    printer.setPageOrientation(QPageLayout::Portrait);
    printer.setDocName(report.title);
    QPrintPreviewDialog dialog(&printer, this);
    connect(&dialog, &QPrintPreviewDialog::paintRequested, this,
        [&](QPrinter* target) { print(report, *target, setup_.locale); });
    dialog.exec();
}
