// SPDX-License-Identifier: MIT
#include "backoffice/output/HeatMapDrawing.h"

#include "backoffice/output/Values.h"

#include <QCoreApplication>
#include <QFontMetricsF>
#include <QLinearGradient>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {
/// Of a line's height, around names and fields.
constexpr double gap = 0.5;
/// Lines between the title and the fields (names of the columns) and below them (scale).
constexpr double linesAbove = 2;
constexpr double linesBelow = 2.2;
constexpr int titleFlags = Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap;

QFont titleFont(QFont font)
{
    font.setBold(true);
    return font;
}

double titleHeight(double width, const HeatMap& map, const QFont& font)
{
    constexpr double anyHeight = 1e6;
    const QRectF room(0, 0, width, anyHeight);
    return QFontMetricsF(titleFont(font)).boundingRect(room, titleFlags, map.title).height();
}

struct Sentences
{
    Q_DECLARE_TR_FUNCTIONS(HeatMapDrawing)
};
} // namespace

HeatMapDrawing::HeatMapDrawing(HeatMap map, const QLocale& locale, Ink ink, const QRectF& place)
    : map_(std::move(map))
    , locale_(locale)
    , ink_(std::move(ink))
    , place_(place)
{
    const QFontMetricsF metrics(ink_.font);
    double names = 0;
    for (const QString& name : map_.rows) {
        names = std::max(names, metrics.horizontalAdvance(name));
    }
    const double line = metrics.height();
    plot_ = place_.adjusted(names + line * gap,
        titleHeight(place_.width(), map_, ink_.font) + line * linesAbove, 0, -line * linesBelow);
    if (!map_.values.empty()) {
        most_ = *std::max_element(map_.values.begin(), map_.values.end());
    }
}

double HeatMapDrawing::heightFor(double width, const HeatMap& map, const QFont& font)
{
    constexpr double highest = 2.6;
    const double line = QFontMetricsF(font).height();
    const auto rows = static_cast<double>(map.rows.size());
    const double square = width / static_cast<double>(std::max<std::size_t>(1, map.columns.size()));
    return titleHeight(width, map, font) + line * (linesAbove + linesBelow)
        + rows * std::clamp(square, line * 1.5, line * highest);
}

double HeatMapDrawing::value(std::size_t row, std::size_t column) const
{
    return map_.values.at(row * map_.columns.size() + column);
}

double HeatMapDrawing::share(double value) const { return most_ > 0 ? value / most_ : 0; }

QRectF HeatMapDrawing::field(std::size_t row, std::size_t column) const
{
    const double width = plot_.width() / static_cast<double>(map_.columns.size());
    const double height = plot_.height() / static_cast<double>(map_.rows.size());
    return {plot_.left() + width * static_cast<double>(column),
        plot_.top() + height * static_cast<double>(row), width, height};
}

void HeatMapDrawing::draw(QPainter& painter) const
{
    painter.save();
    painter.setFont(titleFont(ink_.font));
    painter.setPen(ink_.text);
    painter.drawText(place_, titleFlags, map_.title);
    painter.setFont(ink_.font);
    if (map_.rows.empty() || map_.columns.empty()) {
        painter.drawText(place_, Qt::AlignCenter, Sentences::tr("Aucune vente"));
    } else {
        drawNames(painter);
        drawFields(painter);
        drawScale(painter);
    }
    painter.restore();
}

void HeatMapDrawing::drawNames(QPainter& painter) const
{
    const QFontMetricsF metrics(ink_.font);
    const double line = metrics.height();
    painter.setPen(ink_.text);
    for (std::size_t row = 0; row < map_.rows.size(); ++row) {
        const QRectF beside = field(row, 0);
        painter.drawText(QRectF(place_.left(), beside.top(),
                             plot_.left() - place_.left() - line * gap, beside.height()),
            Qt::AlignRight | Qt::AlignVCenter, map_.rows.at(row));
    }
    double widest = 0;
    for (const QString& name : map_.columns) {
        widest = std::max(widest, metrics.horizontalAdvance(name));
    }
    const double step = field(0, 0).width();
    const auto every = static_cast<std::size_t>(
        std::max(1.0, std::ceil((widest + metrics.averageCharWidth()) / step)));
    painter.setPen(ink_.faint);
    for (std::size_t column = 0; column < map_.columns.size(); column += every) {
        const double middle = field(0, column).center().x();
        painter.drawText(
            QRectF(middle - widest, plot_.top() - line * (1 + gap / 2), widest * 2, line),
            Qt::AlignHCenter | Qt::AlignVCenter, map_.columns.at(column));
    }
}

void HeatMapDrawing::drawFields(QPainter& painter) const
{
    const QFontMetricsF metrics(ink_.font);
    QFont small = ink_.font;
    QStringList texts;
    double widest = 0;
    for (const double each : map_.values) {
        texts += each == 0 ? QString() : formatShort(each, map_.kind, locale_);
        widest = std::max(widest, metrics.horizontalAdvance(texts.back()));
    }
    // One size for all fields: the largest that the longest number allows.
    constexpr double smallest = 0.7;
    const QRectF first = field(0, 0);
    const double room = first.width() - metrics.averageCharWidth();
    const double size = widest > 0 ? std::min(1.0, room / widest) : 1;
    const bool hasTexts = size >= smallest && first.height() >= metrics.height();
    if (small.pixelSize() > 0) {
        small.setPixelSize(std::max(1, static_cast<int>(small.pixelSize() * size)));
    } else {
        small.setPointSizeF(small.pointSizeF() * size);
    }
    painter.setFont(small);
    const double edge = std::min(first.width(), first.height()) * 0.03;
    for (std::size_t row = 0; row < map_.rows.size(); ++row) {
        for (std::size_t column = 0; column < map_.columns.size(); ++column) {
            const QRectF place = field(row, column).adjusted(edge, edge, -edge, -edge);
            const double sold = value(row, column);
            const QColor colour = sold > 0 ? Ink::heat(share(sold)) : ink_.grid;
            painter.fillRect(place, colour);
            if (hasTexts && sold != 0) {
                painter.setPen(sold > 0 ? Ink::textOn(colour) : ink_.text);
                painter.drawText(place, Qt::AlignCenter,
                    texts.at(static_cast<int>(row * map_.columns.size() + column)));
            }
        }
    }
    painter.setFont(ink_.font);
}

void HeatMapDrawing::drawScale(QPainter& painter) const
{
    constexpr double widthInLines = 12;
    const QFontMetricsF metrics(ink_.font);
    const double line = metrics.height();
    const QString least = Sentences::tr("moins");
    const QString most = most_ > 0
        ? Sentences::tr("plus (jusqu'à %1)").arg(formatDrawn(most_, map_.kind, locale_))
        : Sentences::tr("plus");
    const double top = place_.bottom() - line * 1.2;
    const double words
        = metrics.horizontalAdvance(least) + metrics.horizontalAdvance(most) + 2 * line * gap;
    // Below the fields, unless the words need the room below the names as well.
    const double left = std::clamp(place_.right() - words - line, place_.left(), plot_.left());
    const double room = place_.right() - left - words;
    const QRectF bar(left + metrics.horizontalAdvance(least) + line * gap, top,
        std::clamp(room, line, std::max(line, std::min(line * widthInLines, plot_.width() / 3))),
        line);
    QLinearGradient colours(bar.topLeft(), bar.topRight());
    for (const double at : {0.0, 0.5, 1.0}) {
        colours.setColorAt(at, Ink::heat(at));
    }
    painter.fillRect(bar, colours);
    painter.setPen(ink_.faint);
    painter.drawText(
        QRectF(left, top, bar.left() - left, line), Qt::AlignLeft | Qt::AlignVCenter, least);
    painter.drawText(QRectF(bar.right() + line * gap, top, place_.right() - bar.right(), line),
        Qt::AlignLeft | Qt::AlignVCenter, most);
}

QString HeatMapDrawing::tip(QPointF point) const
{
    if (!plot_.contains(point) || map_.rows.empty() || map_.columns.empty()) {
        return {};
    }
    const QRectF first = field(0, 0);
    const auto place = [](double along, double step, std::size_t count) {
        return std::min(static_cast<std::size_t>(along / step), count - 1);
    };
    const std::size_t row = place(point.y() - plot_.top(), first.height(), map_.rows.size());
    const std::size_t column = place(point.x() - plot_.left(), first.width(), map_.columns.size());
    return map_.rows.at(row) + QLatin1Char(' ') + map_.columns.at(column) + QLatin1Char('\n')
        + formatDrawn(value(row, column), map_.kind, locale_);
}
