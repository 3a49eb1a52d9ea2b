// SPDX-License-Identifier: MIT
#include "backoffice/output/PaperPages.h"

#include "backoffice/output/ChartDrawing.h"
#include "backoffice/output/HeatMapDrawing.h"
#include "backoffice/output/PaperComposer.h"
#include "backoffice/output/PaperTable.h"
#include "backoffice/reports/Format.h"

#include <QCoreApplication>
#include <QFontMetricsF>
#include <QGraphicsScene>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {
/// 15 mm.
constexpr double margin = 850;
constexpr double footHeight = 300;
constexpr double space = 240;
/// Charts are laid out in units of 1/96 inch.
constexpr double twipsInAChartUnit = 15;
constexpr int chartTextSize = 11;
/// Below this share a text could not be read.
constexpr double smallestScale = 0.4;
} // namespace

PaperPages::PaperPages(const Report& report, const QLocale& locale)
    : title_(report.title)
{
    constexpr double less = 0.95;
    do {
        pages_.clear();
        PaperComposer(*this, locale, scale_).compose(report);
        if (!report.isOnePage || count() == 1) {
            return;
        }
        scale_ *= less;
    } while (scale_ > smallestScale);
}

void PaperPages::draw(QPainter& painter, int page) const
{
    painter.save();
    painter.scale(scale_, scale_);
    for (const Piece& piece : pages_.at(static_cast<std::size_t>(page))) {
        painter.save();
        piece(painter);
        painter.restore();
    }
    painter.restore();
    drawFoot(painter, page);
}

void PaperPages::drawFoot(QPainter& painter, int page) const
{
    constexpr int textSize = 160;
    const Ink ink = Ink::onPaper(textSize);
    const QRectF place(
        margin, size().height() - margin - footHeight, size().width() - 2 * margin, footHeight);
    painter.save();
    painter.setFont(ink.font);
    painter.setPen(ink.faint);
    painter.drawText(place, Qt::AlignLeft | Qt::AlignBottom,
        QCoreApplication::translate("PaperFile", "Vendel – Gestion"));
    painter.drawText(place, Qt::AlignRight | Qt::AlignBottom,
        QStringLiteral("%1/%2").arg(page + 1).arg(count()));
    painter.restore();
}

PaperComposer::PaperComposer(PaperPages& pages, const QLocale& locale, double scale)
    : pages_(pages)
    , locale_(locale)
    , ink_(Ink::onPaper(1))
    , left_(margin / scale)
    , top_(margin / scale)
    , width_((PaperPages::size().width() - 2 * margin) / scale)
    , bottom_((PaperPages::size().height() - margin - footHeight) / scale - space)
    , y_(top_)
{
    newSheet();
}

void PaperComposer::compose(const Report& report)
{
    addHead(report);
    addFigures(report.figures);
    for (const BarChart& chart : report.charts) {
        addChart(chart);
    }
    if (report.heatMap) {
        addHeatMap(*report.heatMap);
    }
    for (const Table& table : report.tables) {
        skip(space);
        addTable(*this, table);
    }
    skip(space);
    for (const QString& note : report.notes) {
        constexpr double textSize = 160;
        addText(note, font(textSize), ink_.faint);
    }
}

QRectF PaperComposer::take(double height)
{
    if (!hasRoom(height) && y_ > top_) {
        newSheet();
    }
    const QRectF place(left_, y_, width_, height);
    y_ += height;
    return place;
}

void PaperComposer::skip(double height)
{
    if (y_ > top_) {
        y_ += height;
    }
}

void PaperComposer::newSheet()
{
    pages_.pages_.emplace_back();
    y_ = top_;
}

QFont PaperComposer::font(double size, bool isBold) const
{
    QFont font = ink_.font;
    font.setPixelSize(static_cast<int>(size));
    font.setBold(isBold);
    return font;
}

void PaperComposer::addText(const QString& text, const QFont& font, const QColor& colour)
{
    constexpr int flags = Qt::AlignLeft | Qt::TextWordWrap;
    const QRectF needed = QFontMetricsF(font).boundingRect(QRectF(0, 0, width_, 1), flags, text);
    constexpr double below = 60;
    const QRectF place = take(needed.height() + below);
    add([=](QPainter& painter) {
        painter.setFont(font);
        painter.setPen(colour);
        painter.drawText(place, flags | Qt::TextDontClip, text);
    });
}

void PaperComposer::addHead(const Report& report)
{
    constexpr double titleSize = 400;
    constexpr double subtitleSize = 210;
    addText(report.title, font(titleSize, true), ink_.text);
    if (!report.subtitle.isEmpty()) {
        addText(report.subtitle, font(subtitleSize), ink_.faint);
    }
    skip(space);
}

void PaperComposer::addFigures(const std::vector<KeyFigure>& figures)
{
    constexpr std::size_t inARow = 4;
    constexpr double captionHeight = 240;
    constexpr double valueHeight = 380;
    constexpr double height = 2 * captionHeight + valueHeight;
    constexpr double captionSize = 160;
    constexpr double valueSize = 270;
    const QFont small = font(captionSize);
    const QFont large = font(valueSize, true);
    const double width = width_ / double{inARow};
    QRectF row;
    for (std::size_t at = 0; at < figures.size(); ++at) {
        if (at % inARow == 0) {
            skip(at > 0 ? space / 2 : 0);
            row = take(height);
        }
        const KeyFigure& figure = figures.at(at);
        const QString value = format(figure.value, figure.kind, locale_);
        const QRectF place(
            row.left() + width * static_cast<double>(at % inARow), row.top(), width, height);
        add([small, large, figure, value, place, width](QPainter& painter) {
            const auto line = [&](double top, double lineHeight, const QString& text,
                                  QFont textFont, const QColor& colour) {
                const double room = width - space / 2;
                const double needed = QFontMetricsF(textFont).horizontalAdvance(text);
                if (needed > room) {
                    textFont.setPixelSize(static_cast<int>(textFont.pixelSize() * room / needed));
                }
                painter.setFont(textFont);
                painter.setPen(colour);
                painter.drawText(QRectF(place.left(), place.top() + top, width, lineHeight),
                    static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter) | Qt::TextDontClip, text);
            };
            const Ink ink = Ink::onPaper(1);
            line(0, captionHeight, figure.title, small, ink.faint);
            line(captionHeight, valueHeight, value, large, ink.text);
            line(captionHeight + valueHeight, captionHeight, figure.remark, small, ink.faint);
        });
    }
    skip(space);
}

void PaperComposer::addChart(const BarChart& chart)
{
    const Ink ink = Ink::onPaper(chartTextSize);
    const double width = width_ / twipsInAChartUnit;
    const double wanted = ChartDrawing(chart, locale_, ink).heightFor(width);
    const double height = std::min(wanted * twipsInAChartUnit, bottom_ - top_);
    const QRectF place = take(height);
    add([chart, ink, place, width, locale = locale_](QPainter& painter) {
        // The scene owns the drawing.
        QGraphicsScene scene;
        auto* drawing = new ChartDrawing(chart, locale, ink);
        scene.addItem(drawing);
        drawing->resize(width, place.height() / twipsInAChartUnit);
        painter.setRenderHint(QPainter::Antialiasing);
        scene.render(&painter, place, drawing->geometry());
    });
    skip(space);
}

void PaperComposer::addHeatMap(const HeatMap& map)
{
    const Ink ink = Ink::onPaper(chartTextSize);
    const double width = width_ / twipsInAChartUnit;
    const double height = HeatMapDrawing::heightFor(width, map, ink.font);
    const QRectF place = take(height * twipsInAChartUnit);
    add([map, ink, place, width, height, locale = locale_](QPainter& painter) {
        painter.translate(place.topLeft());
        painter.scale(twipsInAChartUnit, twipsInAChartUnit);
        HeatMapDrawing(map, locale, ink, QRectF(0, 0, width, height)).draw(painter);
    });
    skip(space);
}
