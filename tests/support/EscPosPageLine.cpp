// SPDX-License-Identifier: MIT
#include "tests/support/EscPosPage.h"

namespace {
constexpr int columnDots = 12;

std::string wordsFor(const PageStyle& style)
{
    std::string tag;
    const auto add = [&tag](bool on, const char* word) {
        if (on) {
            tag += tag.empty() ? "" : " ";
            tag += word;
        }
    };
    add(style.fontB, "small");
    add(style.bold, "bold");
    add(style.underline == 1, "thinly underlined");
    add(style.underline == 2, "underlined");
    add(style.wide, "wide");
    add(style.high, "high");
    return tag.empty() ? "plain" : tag;
}
} // namespace

int PageLine::leftOffset() const
{
    const int room = EscPosPage::areaWidth - width;
    switch (alignment) {
    case Alignment::Centre:
        return room / 2;
    case Alignment::Right:
        return room;
    default:
        return 0;
    }
}

std::string PageLine::styled() const
{
    if (cut) {
        return "[cut]";
    }
    std::string text;
    if (width > 0 && alignment != Alignment::Left) {
        text += alignment == Alignment::Centre ? "[centre]" : "[right]";
    }
    for (const auto& band : bands) {
        text.append("[image ").append(std::to_string(band.width())).append("x");
        text.append(std::to_string(band.height())).append("]");
    }
    PageStyle style;
    int x = 0;
    for (const auto& glyph : glyphs) {
        if (bands.empty()) {
            text.append(static_cast<std::size_t>((glyph.x - x) / columnDots), ' ');
        }
        if (!(glyph.style == style)) {
            style = glyph.style;
            text.append("[").append(wordsFor(style)).append("]");
        }
        text += utf8Of(glyph.character);
        x = glyph.x + style.cellWidth();
    }
    return text;
}

std::string utf8Of(char32_t character)
{
    const auto code = static_cast<unsigned>(character);
    const auto tail
        = [code](unsigned shift) { return static_cast<char>(0x80U | (code >> shift & 0x3FU)); };
    if (code < 0x80U) {
        return {static_cast<char>(code)};
    }
    if (code < 0x800U) {
        return {static_cast<char>(0xC0U | code >> 6U), tail(0)};
    }
    return {static_cast<char>(0xE0U | code >> 12U), tail(6), tail(0)};
}
