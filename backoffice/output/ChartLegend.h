// SPDX-License-Identifier: MIT
#pragma once

#include "backoffice/output/Ink.h"

#include <QGraphicsWidget>

#include <vector>

class QGraphicsRectItem;
class QGraphicsSimpleTextItem;

/// What the colours of a chart mean, in as many rows as its width asks for.
class ChartLegend
{
public:
    /// The items are of \a parent.
    ChartLegend(QGraphicsItem& parent, const Ink& ink);

    void add(const QString& name, const QBrush& colour, const QColor& edge);

    /// Whether all names have room in one row of \a width.
    bool isOneRow(double width) const;
    /// The height of the rows that \a width asks for.
    double heightFor(double width) const;
    /// Shows the names in \a place, or hides them when it is empty. Names that are wider are cut
    /// short.
    void show(const QRectF& place);

    /// What is shown, for tests.
    QStringList names() const;

private:
    struct Entry
    {
        QString name;
        QGraphicsRectItem* colour;
        QGraphicsSimpleTextItem* text;
    };
    /// Where each entry is in rows of \a width.
    std::vector<QPointF> places(double width) const;
    double widthOf(const Entry& entry) const;

    QGraphicsItem& parent_;
    Ink ink_;
    double line_;
    std::vector<Entry> entries_;
};
