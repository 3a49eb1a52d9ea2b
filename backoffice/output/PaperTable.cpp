// SPDX-License-Identifier: MIT
#include "backoffice/output/PaperTable.h"

#include "backoffice/output/PaperComposer.h"
#include "backoffice/reports/Format.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <memory>
#include <numeric>

namespace {
constexpr double textSize = 170;
/// Between the texts of two columns, in heights of letters.
constexpr double betweenInLetters = 1.3;
/// A row's height, in heights of its text.
constexpr double rowInLines = 1.25;
constexpr double rule = 12;
/// A table with few columns is not drawn out over the whole sheet.
constexpr double widestSpread = 1.6;

/// A table as it is written: shared by the pieces of all its sheets.
struct Writing
{
    Table table;
    QLocale locale;
    QFont font;
    QFont boldFont;
    Ink ink;
    std::vector<double> widths;
    double rowHeight = 0;

    double between() const { return font.pixelSize() * betweenInLetters; }
    double width() const { return std::accumulate(widths.begin(), widths.end(), 0.0); }

    Qt::Alignment alignment(std::size_t column) const
    {
        const bool isNumber = table.columns.at(column).kind >= CellKind::Count;
        return (isNumber ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter;
    }

    QString cell(std::size_t row, std::size_t column) const
    {
        return format(table.rows.at(row).at(column), table.columns.at(column).kind, locale);
    }

    void drawCells(QPainter& painter, const QRectF& place,
        const std::function<QString(std::size_t)>& text) const
    {
        double x = place.left();
        for (std::size_t column = 0; column < widths.size(); ++column) {
            const QRectF room(x, place.top(), widths.at(column), place.height());
            painter.drawText(room.adjusted(between() / 2, 0, -between() / 2, 0),
                static_cast<int>(alignment(column)) | Qt::TextSingleLine | Qt::TextDontClip,
                text(column));
            x += widths.at(column);
        }
    }

    void drawHeading(QPainter& painter, const QRectF& place) const
    {
        painter.setFont(boldFont);
        painter.setPen(ink.text);
        drawCells(
            painter, place, [this](std::size_t column) { return table.columns.at(column).title; });
        painter.fillRect(QRectF(place.left(), place.bottom() - rule, width(), rule), ink.faint);
    }

    void drawRow(QPainter& painter, const QRectF& place, std::size_t row) const
    {
        painter.setFont(font);
        painter.setPen(ink.text);
        drawCells(painter, place, [&](std::size_t column) { return cell(row, column); });
        painter.fillRect(
            QRectF(place.left(), place.bottom() - rule / 2, width(), rule / 2), ink.grid);
    }
};

/// Gives each column the width of its longest text and a share of what is left.
void setWidths(Writing& writing, double room)
{
    const auto measure = [&] {
        const QFontMetricsF plain(writing.font);
        const QFontMetricsF bold(writing.boldFont);
        writing.widths.clear();
        for (std::size_t column = 0; column < writing.table.columns.size(); ++column) {
            double widest = bold.horizontalAdvance(writing.table.columns.at(column).title);
            for (std::size_t row = 0; row < writing.table.rows.size(); ++row) {
                widest = std::max(widest, plain.horizontalAdvance(writing.cell(row, column)));
            }
            writing.widths.push_back(widest + writing.between());
        }
    };
    measure();
    if (writing.width() > room) {
        const double shrunk = room / writing.width() * 0.98;
        writing.font.setPixelSize(static_cast<int>(writing.font.pixelSize() * shrunk));
        writing.boldFont.setPixelSize(writing.font.pixelSize());
        measure();
    }
    const double extra = std::min(room, writing.width() * widestSpread) - writing.width();
    for (double& width : writing.widths) {
        width += std::max(0.0, extra) / static_cast<double>(writing.widths.size());
    }
    writing.rowHeight = QFontMetricsF(writing.font).height() * rowInLines;
}

void addHeading(PaperComposer& composer, const std::shared_ptr<const Writing>& writing)
{
    const QRectF place = composer.take(writing->rowHeight);
    composer.add([writing, place](QPainter& painter) { writing->drawHeading(painter, place); });
}
} // namespace

void addTable(PaperComposer& composer, const Table& table)
{
    const auto writing = std::make_shared<Writing>(Writing{table, composer.locale(),
        composer.font(textSize), composer.font(textSize, true), composer.ink(), {}, 0});
    setWidths(*writing, composer.width());
    // A title is not left alone at the foot of a sheet.
    constexpr double leastLines = 5;
    if (!composer.hasRoom(writing->rowHeight * leastLines)) {
        composer.newSheet();
    }
    if (!table.title.isEmpty()) {
        constexpr double titleSize = 220;
        composer.addText(table.title, composer.font(titleSize, true), composer.ink().text);
    }
    addHeading(composer, writing);
    for (std::size_t row = 0; row < table.rows.size(); ++row) {
        if (!composer.hasRoom(writing->rowHeight)) {
            composer.newSheet();
            addHeading(composer, writing);
        }
        const QRectF place = composer.take(writing->rowHeight);
        composer.add(
            [writing, place, row](QPainter& painter) { writing->drawRow(painter, place, row); });
    }
}
