// SPDX-License-Identifier: MIT
#include "backoffice/window/MainWindow.h"
#include "backoffice/window/MenuFiles.h"
#include "backoffice/window/PeriodBar.h"
#include "backoffice/window/ReportPage.h"
#include "backoffice/window/TillChoice.h"

#include <QAction>
#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenuBar>
#include <QProgressBar>
#include <QTabWidget>
#include <QToolButton>

// What the window is made of.

void MainWindow::buildTop()
{
    auto* whole = new QWidget(this);
    auto* column = new QVBoxLayout(whole);
    auto* line = new QHBoxLayout;
    period_ = new PeriodBar(setup_.locale, setup_.today, whole);
    connect(period_, &PeriodBar::chosen, this, &MainWindow::readPage);
    line->addWidget(period_);
    if (setup_.isBook) {
        tills_ = new TillChoice(setup_.tills, whole);
        connect(tills_, &TillChoice::chosen, this, &MainWindow::readPage);
        line->addWidget(tills_);
    }
    line->addStretch();
    addProgress(*line);
    auto* caption = new QLabel(tr("&TVA"), whole);
    taxRate_ = new QDoubleSpinBox(whole);
    taxRate_->setObjectName(QStringLiteral("taxRate"));
    taxRate_->setAccessibleName(tr("Taux de TVA"));
    taxRate_->setToolTip(tr("Change les pages, pas le taux de la caisse"));
    taxRate_->setLocale(setup_.locale);
    taxRate_->setSuffix(QStringLiteral("\u00a0%"));
    constexpr double highest = 100;
    taxRate_->setRange(0, highest);
    taxRate_->setAlignment(Qt::AlignRight);
    taxRate_->setKeyboardTracking(false);
    connect(
        taxRate_, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this, [this](double rate) {
            hasOwnRate_ = rate != configuredRate_;
            readPage();
        });
    caption->setBuddy(taxRate_);
    line->addWidget(caption);
    line->addWidget(taxRate_);
    column->addLayout(line);
    tabs_ = new QTabWidget(whole);
    tabs_->setObjectName(QStringLiteral("pages"));
    column->addWidget(tabs_, 1);
    setCentralWidget(whole);
}

void MainWindow::buildPages()
{
    const std::array<QString, 5> titles{
        tr("Ventes"), tr("Articles"), tr("Heures"), tr("Consommation"), tr("Clôture")};
    for (std::size_t at = 0; at < pages_.size(); ++at) {
        pages_.at(at) = new ReportPage(static_cast<Page>(at), setup_.locale, tabs_);
        connect(pages_.at(at), &ReportPage::rankingChosen, this, &MainWindow::readPage);
        connect(pages_.at(at), &ReportPage::reloadAsked, this, &MainWindow::readPage);
        tabs_->addTab(pages_.at(at), titles.at(at));
    }
    connect(tabs_, &QTabWidget::currentChanged, this, &MainWindow::readPage);
}

void MainWindow::buildFileMenu()
{
    QMenu& menu = *menuBar()->addMenu(tr("&Fichier"));
    const auto addTo = [&](const QString& text, auto slot) {
        QAction* action = menu.addAction(text);
        connect(action, &QAction::triggered, this, slot);
        return action;
    };
    QAction* csv = addTo(tr("Exporter en &CSV…"), &MainWindow::saveCsv);
    csv->setShortcut(QKeySequence(QStringLiteral("Ctrl+E")));
    QAction* pdf = addTo(tr("Exporter en &PDF…"), &MainWindow::savePdf);
    QAction* png = addTo(tr("Exporter en P&NG…"), &MainWindow::savePng);
    menu.addSeparator();
    QAction* paper = addTo(tr("&Imprimer…"), &MainWindow::printPage);
    paper->setShortcut(QKeySequence::Print);
    needReport_ = {csv, pdf, png, paper};
    menu.addSeparator();
    QAction* quit = addTo(tr("&Quitter"), &MainWindow::close);
    quit->setShortcut(QKeySequence(QStringLiteral("Ctrl+Q")));
    ReportPage& closing = *pages_.at(static_cast<std::size_t>(Page::Closing));
    closing.addButton(pdf);
    closing.addButton(paper);
    if (setup_.isBook) {
        return;
    }
    auto* files = new MenuFiles(setup_.folder, setup_.locale,
        setup_.csvFormat.value_or(CsvFormat::of(setup_.locale)), this);
    connect(files, &MenuFiles::imported, this, &MainWindow::readPage);
    files->addTo(*menuBar()->addMenu(tr("&Menu")));
}

void MainWindow::buildViewMenu()
{
    QMenu& menu = *menuBar()->addMenu(tr("&Affichage"));
    for (int at = 0; at < tabs_->count(); ++at) {
        QAction* action = menu.addAction(tabs_->tabText(at));
        action->setShortcut(QKeySequence(QStringLiteral("Ctrl+%1").arg(at + 1)));
        connect(action, &QAction::triggered, this, [this, at] { tabs_->setCurrentIndex(at); });
    }
    menu.addSeparator();
    QAction* reload = menu.addAction(tr("&Recharger"));
    reload->setShortcut(QKeySequence(Qt::Key_F5));
    connect(reload, &QAction::triggered, this, &MainWindow::readPage);
    QAction* search = menu.addAction(tr("Re&chercher"));
    search->setShortcut(QKeySequence::Find);
    connect(search, &QAction::triggered, this, [this] { page().startSearch(); });
}

void MainWindow::addProgress(QBoxLayout& line)
{
    progress_ = new QProgressBar(this);
    progress_->setObjectName(QStringLiteral("progress"));
    progress_->setAccessibleName(tr("Avancement de la lecture"));
    progress_->setTextVisible(false);
    constexpr int width = 140;
    progress_->setFixedWidth(width);
    stop_ = new QToolButton(this);
    stop_->setObjectName(QStringLiteral("stop"));
    stop_->setText(tr("Arrêter"));
    stop_->setShortcut(QKeySequence(Qt::Key_Escape));
    connect(stop_, &QToolButton::clicked, this, &MainWindow::stopReading);
    line.addWidget(progress_);
    line.addWidget(stop_);
    line.addSpacing(line.spacing());
    progress_->hide();
    stop_->hide();
}
