// SPDX-License-Identifier: MIT
#include "backoffice/output/ChartView.h"

#include "backoffice/output/Tips.h"

#include <QMouseEvent>

#include <memory>

ChartView::ChartView(const QLocale& locale, QWidget* parent)
    : QChartView(parent)
    , locale_(locale)
{
    setRenderHint(QPainter::Antialiasing);
    setMouseTracking(true);
    setFocusPolicy(Qt::NoFocus);
    setFrameShape(QFrame::StyledPanel);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void ChartView::setBars(const BarChart& chart)
{
    bars_ = chart;
    setAccessibleName(chart.title);
    draw();
}

void ChartView::draw()
{
    const std::unique_ptr<QChart> before(chart());
    drawing_ = new ChartDrawing(bars_, locale_, Ink::onScreen(palette(), font()));
    setChart(drawing_);
    setBackgroundBrush(palette().base());
    constexpr int leastLines = 11;
    const int names = bars_.bars.size() > 2 ? static_cast<int>(bars_.bars.size()) : 0;
    setMinimumHeight(bars_.isHorizontal ? qRound(drawing_->heightFor(0))
                                        : fontMetrics().height() * (leastLines + names));
}

void ChartView::mouseMoveEvent(QMouseEvent* event)
{
    QChartView::mouseMoveEvent(event);
    if (drawing_ == nullptr) {
        return;
    }
    const QPointF point = drawing_->mapFromScene(mapToScene(event->pos()));
    showTip(*viewport(), event->pos(), drawing_->tip(point));
}

void ChartView::changeEvent(QEvent* event)
{
    QChartView::changeEvent(event);
    const bool isLook
        = event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange;
    if (isLook && drawing_ != nullptr) {
        draw();
    }
}
