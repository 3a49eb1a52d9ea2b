// SPDX-License-Identifier: MIT
#pragma once

#include "backoffice/reports/Report.h"

#include <QWidget>

#include <optional>

class ChartView;
class FigureStrip;
class HeatMapView;
class PaperView;
class QAction;
class QComboBox;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QScrollArea;
class QSplitter;
class QStackedWidget;
class QTabWidget;
class QVBoxLayout;
class TablePane;

/// One report in the window, or why there is none.
class ReportPage : public QWidget
{
    Q_OBJECT

public:
    ReportPage(Page page, const QLocale& locale, QWidget* parent = nullptr);

    Page page() const { return page_; }
    ReportOrder::Ranking ranking() const;

    /// Whether what is shown answers \a order.
    bool answers(const ReportOrder& order) const;
    /// What is shown, null when it is a sentence.
    const Report* report() const;

    void showReport(const Report& report, const ReportOrder& order);
    /// Shows \a sentence in place of the report; \a isStopped offers to read again.
    void showSentence(const QString& sentence, bool isStopped);
    /// Puts the cursor into the search field, where there is one.
    void startSearch();
    /// Adds a button for \a action above the sheets; the closing has any.
    void addButton(QAction* action);

signals:
    /// What makes an article the best was chosen.
    void rankingChosen();
    void reloadAsked();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QWidget* buildSentence();
    QWidget* buildReport();
    QWidget* buildTables();
    /// Gives the tables the width that they need, and leaves the charts theirs.
    void shareWidth();
    void showHead(const Report& report);
    void showCharts(const Report& report);
    void showTables(const Report& report);

    Page page_;
    QLocale locale_;
    std::optional<Report> report_;
    std::optional<ReportOrder> order_;

    /// Whether the user has shared the width between charts and tables.
    bool isUsersShare_ = false;

    QStackedWidget* stack_;
    QLabel* sentence_ = nullptr;
    QPushButton* reload_ = nullptr;
    QLabel* title_ = nullptr;
    QLabel* subtitle_ = nullptr;
    QHBoxLayout* buttons_ = nullptr;
    FigureStrip* figures_ = nullptr;
    QSplitter* splitter_ = nullptr;
    QVBoxLayout* chartColumn_ = nullptr;
    QScrollArea* charts_ = nullptr;
    std::vector<ChartView*> chartViews_;
    HeatMapView* heatMap_ = nullptr;
    QComboBox* ranking_ = nullptr;
    QLineEdit* search_ = nullptr;
    QTabWidget* tables_ = nullptr;
    std::vector<TablePane*> panes_;
    PaperView* paper_ = nullptr;
    QLabel* notes_ = nullptr;
};
