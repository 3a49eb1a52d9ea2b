// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QFont>
#include <QPalette>

/// The colours and the font that figures are drawn with. The colours are those of Okabe and Ito,
/// which the colour-blind tell apart; neighbours differ in lightness, so that they do on a printer
/// without colours too.
struct Ink
{
    QFont font;
    QColor text;
    /// What matters less: axes, captions.
    QColor faint;
    /// Lines behind the figures.
    QColor grid;
    QColor background;

    /// As a window with \a palette and \a font shows its texts.
    static Ink onScreen(const QPalette& palette, const QFont& font);
    /// Black on white, in the platform's font, \a size units high.
    static Ink onPaper(int size);

    bool isDark() const;
    /// The bars number \a series, from 0.
    QColor bars(std::size_t series) const;
    /// The edge of such a bar.
    QColor edge(std::size_t series) const;
    /// What the bars are compared with.
    QColor line() const { return text; }

    /// A field of a heat map: of one hue, darker where \a share (0 to 1) is larger.
    static QColor heat(double share);
    /// What can be read on \a field.
    static QColor textOn(const QColor& field);
};
