// SPDX-License-Identifier: MIT
#pragma once

#include "backoffice/output/Ink.h"
#include "backoffice/output/PaperPages.h"

#include <QRectF>

/// Puts a report's parts below one another, on a new sheet where one is full.
class PaperComposer
{
public:
    /// Fills \a pages, whose sheets are as if \a scale times smaller.
    PaperComposer(PaperPages& pages, const QLocale& locale, double scale);

    void compose(const Report& report);

    double width() const { return width_; }
    const Ink& ink() const { return ink_; }
    const QLocale& locale() const { return locale_; }

    /// The place of the next part, \a height high, on a new sheet if it has to be.
    QRectF take(double height);
    /// Whether \a height has room on the sheet.
    bool hasRoom(double height) const { return y_ + height <= bottom_; }
    /// Leaves \a height free, but not at the top of a sheet.
    void skip(double height);
    void newSheet();
    void add(PaperPages::Piece piece) { pages_.pages_.back().push_back(std::move(piece)); }

    /// Adds \a text in as many lines as it needs.
    void addText(const QString& text, const QFont& font, const QColor& colour);
    QFont font(double size, bool isBold = false) const;

private:
    void addHead(const Report& report);
    void addFigures(const std::vector<KeyFigure>& figures);
    void addChart(const BarChart& chart);
    void addHeatMap(const HeatMap& map);

    PaperPages& pages_;
    QLocale locale_;
    Ink ink_;
    double left_;
    double top_;
    double width_;
    double bottom_;
    double y_;
};
