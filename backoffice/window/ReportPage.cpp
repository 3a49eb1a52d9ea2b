// SPDX-License-Identifier: MIT
#include "backoffice/window/ReportPage.h"

#include "backoffice/output/ChartView.h"
#include "backoffice/output/HeatMapView.h"
#include "backoffice/window/FigureStrip.h"
#include "backoffice/window/PaperView.h"
#include "backoffice/window/TablePane.h"

#include <QAction>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QSplitter>
#include <QStackedWidget>
#include <QTabBar>
#include <QTabWidget>
#include <QToolButton>

#include <algorithm>
#include <memory>

namespace {
bool isAbout(const ReportOrder& one, const ReportOrder& other)
{
    return one.page == other.page && one.range == other.range && one.taxRate == other.taxRate
        && one.ranking == other.ranking && one.today == other.today && one.tills == other.tills;
}
} // namespace

ReportPage::ReportPage(Page page, const QLocale& locale, QWidget* parent)
    : QWidget(parent)
    , page_(page)
    , locale_(locale)
    , stack_(new QStackedWidget(this))
{
    auto* around = new QVBoxLayout(this);
    around->addWidget(stack_);
    around->setContentsMargins(0, 0, 0, 0);
    stack_->addWidget(buildSentence());
    stack_->addWidget(buildReport());
}

QWidget* ReportPage::buildSentence()
{
    auto* panel = new QWidget(stack_);
    auto* column = new QVBoxLayout(panel);
    sentence_ = new QLabel(panel);
    sentence_->setObjectName(QStringLiteral("sentence"));
    sentence_->setTextFormat(Qt::PlainText);
    sentence_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    sentence_->setWordWrap(true);
    sentence_->setAlignment(Qt::AlignCenter);
    reload_ = new QPushButton(tr("&Recharger"), panel);
    reload_->setObjectName(QStringLiteral("reload"));
    reload_->hide();
    connect(reload_, &QPushButton::clicked, this, &ReportPage::reloadAsked);
    column->addStretch(2);
    column->addWidget(sentence_);
    column->addWidget(reload_, 0, Qt::AlignHCenter);
    column->addStretch(3);
    return panel;
}

QWidget* ReportPage::buildReport()
{
    auto* panel = new QWidget(stack_);
    auto* column = new QVBoxLayout(panel);
    auto* head = new QHBoxLayout;
    auto* words = new QVBoxLayout;
    words->setSpacing(0);
    title_ = new QLabel(panel);
    title_->setObjectName(QStringLiteral("title"));
    title_->setTextFormat(Qt::PlainText);
    QFont large = title_->font();
    constexpr double larger = 1.5;
    large.setPointSizeF(large.pointSizeF() * larger);
    large.setBold(true);
    title_->setFont(large);
    subtitle_ = new QLabel(panel);
    subtitle_->setObjectName(QStringLiteral("subtitle"));
    subtitle_->setTextFormat(Qt::PlainText);
    subtitle_->setWordWrap(true);
    words->addWidget(title_);
    words->addWidget(subtitle_);
    head->addLayout(words, 1);
    buttons_ = new QHBoxLayout;
    head->addLayout(buttons_);
    column->addLayout(head);
    if (page_ == Page::Closing) {
        paper_ = new PaperView(locale_, panel);
        column->addWidget(paper_, 1);
        return panel;
    }
    figures_ = new FigureStrip(locale_, panel);
    column->addWidget(figures_);
    splitter_ = new QSplitter(panel);
    splitter_->setChildrenCollapsible(false);
    charts_ = new QScrollArea(splitter_);
    charts_->setFrameShape(QFrame::NoFrame);
    charts_->setFocusPolicy(Qt::NoFocus);
    charts_->setWidgetResizable(true);
    charts_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    constexpr int narrowest = 320;
    charts_->setMinimumWidth(narrowest);
    auto* inside = new QWidget;
    chartColumn_ = new QVBoxLayout(inside);
    chartColumn_->setContentsMargins(0, 0, 0, 0);
    charts_->setWidget(inside);
    splitter_->addWidget(charts_);
    splitter_->addWidget(buildTables());
    splitter_->setStretchFactor(0, 1);
    splitter_->setStretchFactor(1, 1);
    connect(splitter_, &QSplitter::splitterMoved, this, [this] { isUsersShare_ = true; });
    column->addWidget(splitter_, 1);
    notes_ = new QLabel(panel);
    notes_->setObjectName(QStringLiteral("notes"));
    notes_->setTextFormat(Qt::PlainText);
    notes_->setWordWrap(true);
    column->addWidget(notes_);
    return panel;
}

QWidget* ReportPage::buildTables()
{
    auto* panel = new QWidget(splitter_);
    auto* column = new QVBoxLayout(panel);
    column->setContentsMargins(0, 0, 0, 0);
    auto* line = new QHBoxLayout;
    if (page_ == Page::Articles) {
        ranking_ = new QComboBox(panel);
        ranking_->setObjectName(QStringLiteral("ranking"));
        ranking_->setAccessibleName(tr("Classement"));
        ranking_->addItems({tr("Par recettes"), tr("Par nombre")});
        connect(ranking_, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &ReportPage::rankingChosen);
        line->addWidget(ranking_);
    }
    search_ = new QLineEdit(panel);
    search_->setObjectName(QStringLiteral("search"));
    search_->setPlaceholderText(tr("Rechercher"));
    search_->setAccessibleName(tr("Rechercher dans le tableau"));
    search_->setClearButtonEnabled(true);
    connect(search_, &QLineEdit::textChanged, this, [this](const QString& text) {
        for (TablePane* pane : panes_) {
            pane->search(text);
        }
    });
    line->addWidget(search_, 1);
    column->addLayout(line);
    tables_ = new QTabWidget(panel);
    tables_->setDocumentMode(true);
    tables_->setTabBarAutoHide(true);
    column->addWidget(tables_, 1);
    return panel;
}

ReportOrder::Ranking ReportPage::ranking() const
{
    return ranking_ != nullptr && ranking_->currentIndex() == 1 ? ReportOrder::Ranking::Lines
                                                                : ReportOrder::Ranking::Takings;
}

bool ReportPage::answers(const ReportOrder& order) const
{
    return report() != nullptr && order_ && isAbout(*order_, order);
}

const Report* ReportPage::report() const
{
    return report_ && stack_->currentIndex() == 1 ? &*report_ : nullptr;
}

void ReportPage::showReport(const Report& report, const ReportOrder& order)
{
    report_ = report;
    order_ = order;
    showHead(report);
    if (paper_ != nullptr) {
        paper_->setReport(report);
    } else {
        figures_->setFigures(report.figures);
        showCharts(report);
        showTables(report);
        QStringList notes;
        for (const QString& note : report.notes) {
            notes += note;
        }
        notes_->setText(notes.join(QLatin1Char('\n')));
        notes_->setVisible(!notes.isEmpty());
    }
    stack_->setCurrentIndex(1);
    shareWidth();
}

void ReportPage::showHead(const Report& report)
{
    title_->setText(report.title);
    subtitle_->setText(report.subtitle);
    subtitle_->setVisible(!report.subtitle.isEmpty());
}

void ReportPage::showCharts(const Report& report)
{
    while (chartViews_.size() < report.charts.size()) {
        auto* view = new ChartView(locale_, charts_->widget());
        chartColumn_->addWidget(view, 1);
        chartViews_.push_back(view);
    }
    for (std::size_t at = 0; at < chartViews_.size(); ++at) {
        chartViews_.at(at)->setVisible(at < report.charts.size());
        if (at < report.charts.size()) {
            chartViews_.at(at)->setBars(report.charts.at(at));
        }
    }
    if (report.heatMap && heatMap_ == nullptr) {
        heatMap_ = new HeatMapView(locale_, charts_->widget());
        chartColumn_->addWidget(heatMap_, 1);
    }
    if (heatMap_ != nullptr) {
        heatMap_->setVisible(report.heatMap.has_value());
        heatMap_->setMap(report.heatMap.value_or(HeatMap()));
    }
    charts_->setVisible(!report.charts.empty() || report.heatMap);
}

void ReportPage::showTables(const Report& report)
{
    while (panes_.size() < report.tables.size()) {
        auto* pane = new TablePane(locale_, tables_);
        pane->search(search_->text());
        panes_.push_back(pane);
        tables_->addTab(pane, QString());
    }
    while (panes_.size() > report.tables.size()) {
        const std::unique_ptr<TablePane> surplus(panes_.back());
        panes_.pop_back();
    }
    for (std::size_t at = 0; at < panes_.size(); ++at) {
        panes_.at(at)->setTable(report.tables.at(at));
        tables_->setTabText(static_cast<int>(at), report.tables.at(at).title);
    }
}

void ReportPage::shareWidth()
{
    if (paper_ != nullptr || isUsersShare_ || stack_->currentIndex() != 1) {
        return;
    }
    // Else the splitter has its width only later.
    layout()->activate();
    stack_->currentWidget()->layout()->activate();
    int wanted = tables_->count() > 1 ? tables_->tabBar()->sizeHint().width() : 0;
    for (const TablePane* pane : panes_) {
        wanted = std::max(wanted, pane->fullWidth());
    }
    const int whole = splitter_->width() - splitter_->handleWidth();
    const int tables = std::min(wanted, whole - charts_->minimumWidth());
    splitter_->setSizes({whole - tables, tables});
}

void ReportPage::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    shareWidth();
}

void ReportPage::showSentence(const QString& sentence, bool isStopped)
{
    sentence_->setText(sentence);
    reload_->setVisible(isStopped);
    stack_->setCurrentIndex(0);
    if (isStopped && isVisible()) {
        reload_->setFocus();
    }
}

void ReportPage::startSearch()
{
    if (search_ != nullptr && report() != nullptr) {
        search_->setFocus(Qt::ShortcutFocusReason);
        search_->selectAll();
    }
}

void ReportPage::addButton(QAction* action)
{
    auto* button = new QToolButton(this);
    button->setDefaultAction(action);
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button->setFocusPolicy(Qt::StrongFocus);
    buttons_->addWidget(button);
}
