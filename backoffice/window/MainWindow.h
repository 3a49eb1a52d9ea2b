// SPDX-License-Identifier: MIT
#pragma once

#include "backoffice/output/CsvFile.h"
#include "backoffice/window/ReportReader.h"

#include <QLocale>
#include <QMainWindow>
#include <QTimer>

#include <array>

class PeriodBar;
class QBoxLayout;
class QDoubleSpinBox;
class QLabel;
class QProgressBar;
class QTabWidget;
class QToolButton;
class ReportPage;
class TillChoice;

/// What a window of the back office needs to know.
struct WindowSetup
{
    /// The sales; called in a thread beside the window's. Throws SalesError.
    ReportReader::Open open;
    /// makeReport().
    ReportReader::Make make;
    QLocale locale;
    std::function<QDate()> today;
    /// The till's data folder, into which a menu is imported.
    QString folder;
    /// What the system's spreadsheets expect, if that is not what the locale says.
    std::optional<CsvFormat> csvFormat = std::nullopt;
    /// Whether the sales are those of a book of several tills, which has no menu to be written.
    bool isBook = false;
    /// The tills of the book that are shown first; none for all.
    std::vector<QString> tills = {};
};

/// The window of the back office: a page for each kind of report, one period for all.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(WindowSetup setup);

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    // In MainWindowParts.cpp.
    void buildFileMenu();
    void buildViewMenu();
    void buildTop();
    void buildPages();
    void addProgress(QBoxLayout& line);
    void restorePlace();

    ReportPage& page() const;
    ReportOrder order() const;
    void readPage();
    void showReport(const Report& report);
    void showFailure(const QString& sentence);
    void stopReading();
    void takeTaxRate(double rate);
    void showProgress();
    void endProgress();
    void allowFiles();
    void followTheDay();

    // In MainWindowFiles.cpp.
    void saveCsv();
    void savePdf();
    void savePng();
    void printPage();
    /// Asks for a file's name and writes what \a contents makes.
    void save(const QString& suffix, const QString& filter,
        const std::function<QByteArray(const Report&)>& contents);

    WindowSetup setup_;
    PeriodBar* period_ = nullptr;
    /// None where there is one till.
    TillChoice* tills_ = nullptr;
    QDoubleSpinBox* taxRate_ = nullptr;
    QTabWidget* tabs_ = nullptr;
    std::array<ReportPage*, 5> pages_{};
    QProgressBar* progress_ = nullptr;
    QToolButton* stop_ = nullptr;
    std::vector<QAction*> needReport_;
    /// What is being read, or was read last.
    ReportOrder asked_;
    double configuredRate_ = 0;
    bool hasOwnRate_ = false;
    QDate lastDay_;
    /// Shows the progress of what takes long.
    QTimer patience_;
    QTimer calendar_;
    /// Last, so that nothing is reported to what is already gone.
    ReportReader reader_;
};
