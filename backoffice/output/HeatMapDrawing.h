// SPDX-License-Identifier: MIT
#pragma once

#include "backoffice/output/Ink.h"
#include "backoffice/reports/Report.h"

#include <QRectF>
#include <QStringList>

class QPainter;

/// A heat map in a rectangle: the names of its rows and columns, its fields, and below them what
/// their colours mean. All in the units of its font.
class HeatMapDrawing
{
public:
    HeatMapDrawing(HeatMap map, const QLocale& locale, Ink ink, const QRectF& place);

    void draw(QPainter& painter) const;

    /// What the mouse at \a point is told; empty beside the fields.
    QString tip(QPointF point) const;

    /// Where the field of \a row and \a column is drawn.
    QRectF field(std::size_t row, std::size_t column) const;

    /// The height that suits \a width.
    static double heightFor(double width, const HeatMap& map, const QFont& font);

private:
    double value(std::size_t row, std::size_t column) const;
    double share(double value) const;
    void drawNames(QPainter& painter) const;
    void drawFields(QPainter& painter) const;
    void drawScale(QPainter& painter) const;

    HeatMap map_;
    QLocale locale_;
    Ink ink_;
    QRectF place_;
    /// The fields' rectangle.
    QRectF plot_;
    double most_ = 0;
};
