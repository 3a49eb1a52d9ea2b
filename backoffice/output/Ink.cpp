// SPDX-License-Identifier: MIT
#include "backoffice/output/Ink.h"

#include <QGuiApplication>

#include <algorithm>
#include <array>

namespace {
/// \a share of \a to in \a from.
QColor mixed(const QColor& from, const QColor& to, double share)
{
    const auto part = [&](int a, int b) { return a + qRound(share * (b - a)); };
    return {
        part(from.red(), to.red()), part(from.green(), to.green()), part(from.blue(), to.blue())};
}
} // namespace

Ink Ink::onScreen(const QPalette& palette, const QFont& font)
{
    const QColor& text = palette.color(QPalette::Text);
    const QColor& background = palette.color(QPalette::Base);
    return {font, text, mixed(background, text, 0.65), mixed(background, text, 0.15), background};
}

Ink Ink::onPaper(int size)
{
    QFont font = QGuiApplication::font();
    font.setPixelSize(size);
    // The widths of letters are those of the paper, not those of the screen's pixels.
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setStyleStrategy(QFont::ForceOutline);
    return {font, Qt::black, QColor(0x55, 0x55, 0x55), QColor(0xd8, 0xd8, 0xd8), Qt::white};
}

bool Ink::isDark() const { return background.lightness() < text.lightness(); }

QColor Ink::bars(std::size_t series) const
{
    static const std::array onLight{QColor(0x56, 0xb4, 0xe9), QColor(0x00, 0x72, 0xb2),
        QColor(0xf0, 0xe4, 0x42), QColor(0xd5, 0x5e, 0x00), QColor(0xcc, 0x79, 0xa7)};
    static const std::array onDark{QColor(0x00, 0x72, 0xb2), QColor(0x56, 0xb4, 0xe9),
        QColor(0x00, 0x9e, 0x73), QColor(0xf0, 0xe4, 0x42), QColor(0xcc, 0x79, 0xa7)};
    return isDark() ? onDark.at(series % onDark.size()) : onLight.at(series % onLight.size());
}

QColor Ink::edge(std::size_t series) const { return bars(series).darker(150); }

QColor Ink::heat(double share)
{
    const QColor least(0xe3, 0xf0, 0xf9);
    const QColor middle(0x56, 0xa4, 0xd3);
    const QColor most(0x08, 0x30, 0x6b);
    const double part = std::clamp(share, 0.0, 1.0) * 2;
    return part < 1 ? mixed(least, middle, part) : mixed(middle, most, part - 1);
}

QColor Ink::textOn(const QColor& field)
{
    // Black is easier to read than white down to a rather dark grey.
    constexpr int darkest = 109;
    return qGray(field.rgb()) < darkest ? Qt::white : Qt::black;
}
