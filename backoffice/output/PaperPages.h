// SPDX-License-Identifier: MIT
#pragma once

#include "backoffice/reports/Report.h"

#include <QSize>

#include <functional>

class QPainter;

/// A report on sheets of A4, upright. Lengths are in twips: 1440 of them are an inch.
class PaperPages
{
public:
    PaperPages(const Report& report, const QLocale& locale);

    /// Number of sheets, 1 or more.
    int count() const { return static_cast<int>(pages_.size()); }

    /// Draws sheet \a page, from 0. A unit of \a painter is a twip.
    void draw(QPainter& painter, int page) const;

    /// A sheet of A4.
    static constexpr QSize size() { return {11906, 16838}; }

private:
    using Piece = std::function<void(QPainter&)>;
    friend class PaperComposer;

    void drawFoot(QPainter& painter, int page) const;

    std::vector<std::vector<Piece>> pages_;
    QString title_;
    /// Smaller than 1 where a report was made to fit one sheet.
    double scale_ = 1;
};
