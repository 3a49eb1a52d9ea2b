// SPDX-License-Identifier: MIT
#include "tests/support/EscPosPagePicture.h"

#include <QFont>
#include <QFontMetrics>
#include <QPainter>

namespace {
constexpr int paperWidth = 640;
constexpr int margin = (paperWidth - EscPosPage::areaWidth) / 2;
constexpr int dotsPerMetre = 7992;
constexpr int edgeFeed = 24;

void draw(QPainter& painter, const PageGlyph& glyph, int left, int bottom)
{
    const int height = glyph.style.fontB ? 17 : 24;
    QFont font(QString("DejaVu Sans Mono"));
    font.setStyleHint(QFont::TypeWriter);
    font.setStyleStrategy(QFont::NoAntialias);
    font.setPixelSize(height * 5 / 6);
    painter.save();
    painter.translate(left, bottom - glyph.style.cellHeight());
    painter.scale(glyph.style.wide ? 2 : 1, glyph.style.high ? 2 : 1);
    painter.setFont(font);
    const QString text = QString::fromStdString(utf8Of(glyph.character));
    const int baseline = height - QFontMetrics(font).descent();
    painter.drawText(0, baseline, text);
    if (glyph.style.bold) {
        painter.drawText(1, baseline, text);
    }
    painter.restore();
    // The characters' size does not change its thickness.
    const int underline = glyph.style.underline;
    painter.fillRect(left, bottom - underline, glyph.style.cellWidth(), underline, Qt::black);
}

void draw(QPainter& painter, const PageBand& band, int left, int bottom)
{
    const int top = bottom - band.height();
    for (int y = 0; y < band.height(); ++y) {
        const auto& row = band.rows[static_cast<std::size_t>(y)];
        for (int x = 0; x < band.width(); ++x) {
            if (row[static_cast<std::size_t>(x)]) {
                painter.fillRect(left + x, top + y, 1, 1, Qt::black);
            }
        }
    }
}

void drawCut(QPainter& painter, int y)
{
    painter.setPen(QPen(Qt::darkGray, 1, Qt::DashLine));
    painter.drawLine(0, y, paperWidth, y);
    painter.setPen(Qt::black);
}
} // namespace

QImage pictureOf(const EscPosPage& page)
{
    int height = 2 * edgeFeed;
    for (const auto& line : page.lines()) {
        height += line.feed;
    }
    QImage picture(paperWidth, height, QImage::Format_RGB32);
    picture.setDotsPerMeterX(dotsPerMetre);
    picture.setDotsPerMeterY(dotsPerMetre);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.setPen(Qt::black);
    int top = edgeFeed;
    for (const auto& line : page.lines()) {
        const int left = margin + line.leftOffset();
        for (const auto& glyph : line.glyphs) {
            draw(painter, glyph, left + glyph.x, top + line.height);
        }
        for (const auto& band : line.bands) {
            draw(painter, band, left + band.x, top + line.height);
        }
        top += line.feed;
        if (line.cut) {
            drawCut(painter, top);
        }
    }
    return picture;
}
