// SPDX-License-Identifier: MIT
#pragma once

#include "backoffice/output/ChartLegend.h"
#include "backoffice/output/ChartNames.h"
#include "backoffice/output/Ink.h"
#include "backoffice/reports/Report.h"

#include <QBarCategoryAxis>
#include <QChart>
#include <QLineSeries>
#include <QValueAxis>

class QGraphicsSimpleTextItem;

/// A chart of bars, drawn in the units of its font. Labels under the bars that would touch are left
/// out, at equal distances.
class ChartDrawing : public QChart
{
    Q_OBJECT

public:
    ChartDrawing(BarChart chart, const QLocale& locale, const Ink& ink);

    /// What the mouse at \a point, in the chart's coordinates, is told; empty beside the bars.
    QString tip(QPointF point) const;

    /// The height at which the names of lying bars have room, and other bars look well at
    /// \a width.
    double heightFor(double width) const;

    /// The labels of the categories that are shown, for tests and screen readers.
    QStringList shownLabels() const;

    /// The names of the bars where they have no room in one row, as they are shown in several, for
    /// tests.
    QStringList namesInRows() const { return names_.names(); }

    const BarChart& chart() const { return chart_; }

private:
    void addBars();
    void addLine();
    void addPoints(const QLineSeries& line);
    void addAxes();
    void addLabels();
    void keepRoom();
    double legendHeight() const;
    void placeLegend();
    void placeLabels();
    void placeUnder();
    void placeBeside();
    /// Every which label has room under the bars.
    std::size_t thinning(double step) const;
    /// The place of category \a index along its axis, from 0.
    std::size_t place(std::size_t index) const;

    BarChart chart_;
    QLocale locale_;
    Ink ink_;
    QBarCategoryAxis* categories_ = nullptr;
    QValueAxis* values_ = nullptr;
    std::vector<QGraphicsSimpleTextItem*> labels_;
    ChartLegend names_;
};
