// SPDX-License-Identifier: MIT
#include "backoffice/output/ChartLegend.h"

#include <QBrush>
#include <QFontMetricsF>
#include <QGraphicsRectItem>
#include <QGraphicsSimpleTextItem>
#include <QPen>

#include <algorithm>

namespace {
// In heights of a line.
constexpr double colourSize = 0.6;
constexpr double beforeText = 0.9;
constexpr double between = 0.8;
} // namespace

ChartLegend::ChartLegend(QGraphicsItem& parent, const Ink& ink)
    : parent_(parent)
    , ink_(ink)
    , line_(QFontMetricsF(ink_.font).height())
{ }

void ChartLegend::add(const QString& name, const QBrush& colour, const QColor& edge)
{
    auto* field = new QGraphicsRectItem(0, 0, line_ * colourSize, line_ * colourSize, &parent_);
    field->setBrush(colour);
    field->setPen(edge);
    field->hide();
    auto* text = new QGraphicsSimpleTextItem(&parent_);
    text->setFont(ink_.font);
    text->setBrush(ink_.text);
    text->hide();
    entries_.push_back({name, field, text});
}

double ChartLegend::widthOf(const Entry& entry) const
{
    return line_ * beforeText + QFontMetricsF(ink_.font).horizontalAdvance(entry.name);
}

std::vector<QPointF> ChartLegend::places(double width) const
{
    std::vector<QPointF> places;
    QPointF next;
    for (const Entry& entry : entries_) {
        const double needed = widthOf(entry);
        if (next.x() > 0 && next.x() + needed > width) {
            next = {0, next.y() + line_};
        }
        places.push_back(next);
        next.rx() += needed + line_ * between;
    }
    return places;
}

bool ChartLegend::isOneRow(double width) const
{
    double needed = 0;
    for (const Entry& entry : entries_) {
        needed += widthOf(entry) + line_ * between;
    }
    return needed <= width;
}

double ChartLegend::heightFor(double width) const
{
    return entries_.empty() ? 0 : places(width).back().y() + line_;
}

void ChartLegend::show(const QRectF& place)
{
    const std::vector<QPointF> corners = places(place.width());
    const QFontMetricsF metrics(ink_.font);
    for (std::size_t at = 0; at < entries_.size(); ++at) {
        const Entry& entry = entries_.at(at);
        const QPointF corner = place.topLeft() + corners.at(at);
        entry.text->setText(metrics.elidedText(
            entry.name, Qt::ElideRight, std::max(0.0, place.width() - line_ * beforeText)));
        entry.text->setPos(corner + QPointF(line_ * beforeText, 0));
        entry.colour->setPos(corner + QPointF(0, line_ * (1 - colourSize) / 2));
        entry.text->setVisible(!place.isEmpty());
        entry.colour->setVisible(!place.isEmpty());
    }
}

QStringList ChartLegend::names() const
{
    QStringList names;
    for (const Entry& entry : entries_) {
        if (entry.text->isVisible()) {
            names += entry.text->text();
        }
    }
    return names;
}
