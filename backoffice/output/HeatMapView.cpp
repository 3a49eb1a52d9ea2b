// SPDX-License-Identifier: MIT
#include "backoffice/output/HeatMapView.h"

#include "backoffice/output/Tips.h"

#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

HeatMapView::HeatMapView(const QLocale& locale, QWidget* parent)
    : QFrame(parent)
    , locale_(locale)
{
    setFrameShape(QFrame::StyledPanel);
    setMouseTracking(true);
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void HeatMapView::setMap(const HeatMap& map)
{
    map_ = map;
    setAccessibleName(map.title);
    constexpr int leastInLines = 2;
    constexpr int around = 9;
    setMinimumHeight(
        fontMetrics().height() * (leastInLines * static_cast<int>(map.rows.size()) + around));
    update();
}

HeatMapDrawing HeatMapView::drawing() const
{
    const int edge = fontMetrics().height();
    const QRectF room = contentsRect().adjusted(edge, edge, -edge, -edge);
    // Fields that are much higher than wide are hard to compare.
    const double highest = HeatMapDrawing::heightFor(room.width(), map_, font()) * 1.5;
    const QRectF place(room.left(), room.top(), room.width(), std::min(room.height(), highest));
    return {map_, locale_, Ink::onScreen(palette(), font()), place};
}

void HeatMapView::paintEvent(QPaintEvent* event)
{
    QFrame::paintEvent(event);
    QPainter painter(this);
    drawing().draw(painter);
}

void HeatMapView::mouseMoveEvent(QMouseEvent* event)
{
    QFrame::mouseMoveEvent(event);
    showTip(*this, event->pos(), drawing().tip(event->pos()));
}
