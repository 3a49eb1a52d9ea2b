// SPDX-License-Identifier: MIT
#pragma once

#include "backoffice/output/ChartDrawing.h"

#include <QChartView>

/// A chart on the screen, with its values under the mouse.
class ChartView : public QChartView
{
    Q_OBJECT

public:
    explicit ChartView(const QLocale& locale, QWidget* parent = nullptr);

    /// Shows \a chart in place of the one before.
    void setBars(const BarChart& chart);

protected:
    void mouseMoveEvent(QMouseEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void draw();

    QLocale locale_;
    BarChart bars_;
    /// The view's scene owns it.
    ChartDrawing* drawing_ = nullptr;
};
