// SPDX-License-Identifier: MIT
#pragma once

#include <QMargins>
#include <QRect>
#include <QSize>

class QBoxLayout;
class QHeaderView;
class QLayout;
class QWidget;

/// Everything in a window smaller by one factor: places, sizes, distances, letters. It is drawn at
/// that size, so it is as sharp as before.
class Shrinking
{
public:
    /// \a factor is between 0 and 1.
    explicit Shrinking(double factor)
        : factor_(factor)
    { }

    /// Shrinks \a window, which is not yet shown, and all that is in it.
    void apply(QWidget& window) const;

private:
    int shrunk(int pixels) const;
    QSize shrunk(const QSize& size) const;
    QRect shrunk(const QRect& area) const;

    void place(QWidget& widget) const;
    void shrinkFonts(QWidget& window) const;
    void shrinkLimits(QWidget& widget) const;
    void shrinkContent(QWidget& widget) const;
    void shrinkSections(QHeaderView& header) const;
    void shrinkDistances(QLayout& layout) const;
    void shrinkSpacers(QBoxLayout& box) const;

    double factor_;
};
