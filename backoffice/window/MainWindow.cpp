// SPDX-License-Identifier: MIT
#include "backoffice/window/MainWindow.h"

#include "backoffice/window/PeriodBar.h"
#include "backoffice/window/ReportPage.h"
#include "backoffice/window/TillChoice.h"

#include <QAction>
#include <QCloseEvent>
#include <QDoubleSpinBox>
#include <QProgressBar>
#include <QScreen>
#include <QSettings>
#include <QSignalBlocker>
#include <QTabWidget>
#include <QToolButton>

#include <algorithm>
#include <chrono>

namespace {
/// What is read in less is not worth a progress bar.
constexpr std::chrono::milliseconds patience(200);
} // namespace

MainWindow::MainWindow(WindowSetup setup)
    : setup_(std::move(setup))
    , reader_(setup_.open, setup_.make)
{
    setWindowTitle(tr("Vendel – Gestion"));
    setLocale(setup_.locale);
    lastDay_ = setup_.today();
    buildTop();
    buildPages();
    buildFileMenu();
    buildViewMenu();
    restorePlace();

    patience_.setSingleShot(true);
    patience_.setInterval(patience);
    connect(&patience_, &QTimer::timeout, this, &MainWindow::showProgress);
    constexpr std::chrono::seconds betweenLooks(1);
    calendar_.setInterval(betweenLooks);
    connect(&calendar_, &QTimer::timeout, this, &MainWindow::followTheDay);
    calendar_.start();

    connect(&reader_, &ReportReader::finished, this, &MainWindow::showReport);
    connect(&reader_, &ReportReader::failed, this, &MainWindow::showFailure);
    connect(&reader_, &ReportReader::taxRateRead, this, &MainWindow::takeTaxRate);
    if (tills_ != nullptr) {
        connect(&reader_, &ReportReader::tillsRead, tills_, &TillChoice::offer);
    }
    connect(&reader_, &ReportReader::changed, this, &MainWindow::readPage);
    connect(&reader_, &ReportReader::progressed, this, [this](double done) {
        constexpr int whole = 1000;
        progress_->setRange(0, whole);
        progress_->setValue(static_cast<int>(done * whole));
    });
    readPage();
}

ReportPage& MainWindow::page() const
{
    return *pages_.at(static_cast<std::size_t>(std::max(0, tabs_->currentIndex())));
}

ReportOrder MainWindow::order() const
{
    ReportOrder order;
    order.page = page().page();
    order.range = period_->range();
    if (tills_ != nullptr) {
        order.tills = tills_->tills();
    }
    if (order.page == Page::Closing) {
        // Of a month that is not over, the last day to close is today.
        order.range.last = std::min(order.range.last, setup_.today());
        order.range.first = std::min(order.range.first, order.range.last);
    }
    if (hasOwnRate_) {
        order.taxRate = taxRate_->value();
    }
    order.ranking = page().ranking();
    order.today = setup_.today();
    order.locale = setup_.locale;
    return order;
}

void MainWindow::readPage()
{
    progress_->setRange(0, 0);
    patience_.start();
    asked_ = order();
    allowFiles();
    reader_.read(asked_);
}

void MainWindow::showProgress()
{
    progress_->show();
    stop_->show();
    // What is out of date gives way; what is only read again stays.
    if (!page().answers(asked_)) {
        page().showSentence(tr("Lecture des ventes…"), false);
    }
    allowFiles();
}

void MainWindow::endProgress()
{
    patience_.stop();
    progress_->hide();
    stop_->hide();
    allowFiles();
}

void MainWindow::allowFiles()
{
    const bool isThere = page().answers(asked_);
    for (QAction* action : needReport_) {
        action->setEnabled(isThere);
    }
}

void MainWindow::showReport(const Report& report)
{
    page().showReport(report, asked_);
    endProgress();
}

void MainWindow::showFailure(const QString& sentence)
{
    page().showSentence(sentence, false);
    endProgress();
}

void MainWindow::stopReading()
{
    reader_.stop();
    page().showSentence(tr("La lecture a été arrêtée."), true);
    endProgress();
}

void MainWindow::takeTaxRate(double rate)
{
    configuredRate_ = rate;
    if (!hasOwnRate_) {
        const QSignalBlocker isQuiet(taxRate_);
        taxRate_->setValue(rate);
    }
}

void MainWindow::followTheDay()
{
    const QDate today = setup_.today();
    if (today != lastDay_) {
        lastDay_ = today;
        period_->followTheDay();
        readPage();
    }
}

void MainWindow::restorePlace()
{
    const QSettings settings(QStringLiteral("Vendel"), QStringLiteral("Gestion"));
    constexpr QSize usual(1180, 700);
    // What a window manager draws around a window.
    constexpr QSize frame(10, 40);
    resize(usual.boundedTo(screen()->availableSize() - frame));
    restoreGeometry(settings.value(QStringLiteral("window")).toByteArray());
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    QSettings settings(QStringLiteral("Vendel"), QStringLiteral("Gestion"));
    settings.setValue(QStringLiteral("window"), saveGeometry());
    reader_.stop();
    QMainWindow::closeEvent(event);
}
