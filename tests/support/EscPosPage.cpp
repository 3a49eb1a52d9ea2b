// SPDX-License-Identifier: MIT
#include "tests/support/EscPosPage.h"

#include <algorithm>
#include <cstdio>
#include <utility>

namespace {
constexpr unsigned char esc = 0x1B;
constexpr unsigned char gs = 0x1D;
constexpr int tabDots = 8 * 12;
/// 3.75 mm.
constexpr int defaultSpacing = 30;
constexpr int maxBitImageColumns = 2047;

/// The characters 0x80 to 0xFF of code page 858.
constexpr char32_t upperHalf[]
    = U"ÇüéâäàåçêëèïîìÄÅÉæÆôöòûùÿÖÜø£Ø×ƒáíóúñÑªº¿®¬½¼¡«»░▒▓│┤ÁÂÀ©╣║╗╝¢¥┐"
      U"└┴┬├─┼ãÃ╚╔╩╦╠═╬¤ðÐÊËÈ€ÍÎÏ┘┌█▄¦Ì▀ÓßÔÒõÕµþÞÚÛÙýÝ¯´\u00AD±‗¾¶§÷¸°¨·¹³²■\u00A0";

std::string hex(unsigned char byte)
{
    char text[3];
    std::snprintf(text, sizeof text, "%02x", byte);
    return text;
}
} // namespace

EscPosPage::EscPosPage(std::string_view job)
    : job_(job)
{
    initialize();
    while (at_ < job_.size()) {
        commandAt_ = at_;
        character(next());
    }
    commandAt_ = at_;
    if (!line_.glyphs.empty() || !line_.bands.empty()) {
        complain("the last line is not ended and stays in the printer");
    }
}

std::vector<std::string> EscPosPage::styledLines() const
{
    std::vector<std::string> styled;
    std::transform(lines_.begin(), lines_.end(), std::back_inserter(styled),
        [](const PageLine& line) { return line.styled(); });
    return styled;
}

void EscPosPage::character(unsigned char byte)
{
    switch (byte) {
    case '\n':
        endLine();
        return;
    case '\r':
        // Without automatic line feed, as delivered, it does nothing.
        return;
    case '\t':
        tab();
        return;
    case esc:
    case gs:
        command(byte);
        return;
    default:
        break;
    }
    static constexpr unsigned char upper = 0x80;
    if (byte < ' ' || byte == 0x7F) {
        complain(hex(byte) + " is no character");
    } else {
        put(byte < upper ? byte : upperHalf[byte - upper]);
    }
}

void EscPosPage::command(unsigned char introducer)
{
    if (!has(1)) {
        return;
    }
    const unsigned char function = next();
    if (!(introducer == esc ? escape(function) : groupSeparator(function))) {
        complain(here() + " is no command");
    }
}

bool EscPosPage::escape(unsigned char function)
{
    if (function == '2') {
        spacing_ = defaultSpacing;
        return true;
    }
    if (function == '@') {
        initialize();
        return true;
    }
    static constexpr std::string_view oneParameter = "!-3EMat*";
    if (oneParameter.find(static_cast<char>(function)) == std::string_view::npos) {
        return false;
    }
    if (function == 'a') {
        align();
        return true;
    }
    if (function == '*') {
        bitImage();
        return true;
    }
    if (!has(1)) {
        return true;
    }
    int font = style_.fontB ? 1 : 0;
    int codePage = 0;
    switch (function) {
    case '!':
        printMode(next());
        return true;
    case '-':
        return select(style_.underline, {0, 1, 2});
    case '3':
        spacing_ = next();
        return true;
    case 'E':
        style_.bold = (next() & 1U) != 0;
        return true;
    case 'M': {
        const bool known = select(font, {0, 1});
        style_.fontB = font == 1;
        return known;
    }
    default:
        return select(codePage, {19});
    }
}

bool EscPosPage::groupSeparator(unsigned char function)
{
    if (function == '@') {
        remarks_.push_back("at " + std::to_string(commandAt_) + ": " + here() + " does nothing");
        return true;
    }
    if (function == 'V') {
        cut();
        return true;
    }
    return false;
}

/// A parameter may be the number or its digit; what is neither leaves the setting as it is.
bool EscPosPage::select(int& value, const std::vector<int>& choices)
{
    const int given = next();
    for (const int choice : choices) {
        if (given == choice || given == choice + '0') {
            value = choice;
            return true;
        }
    }
    return false;
}

/// Bits 1 and 2 mean nothing; each of the others sets or clears its style.
void EscPosPage::printMode(unsigned bits)
{
    style_.fontB = (bits & 0x01U) != 0;
    style_.bold = (bits & 0x08U) != 0;
    style_.high = (bits & 0x10U) != 0;
    style_.wide = (bits & 0x20U) != 0;
    style_.underline = (bits & 0x80U) != 0 ? 1 : 0;
}

void EscPosPage::align()
{
    if (!has(1)) {
        return;
    }
    int alignment = alignment_;
    if (!select(alignment, {0, 1, 2})) {
        complain(here() + " is no command");
    } else if (line_.width > 0) {
        complain(here() + " inside a line does nothing");
    } else {
        alignment_ = alignment;
    }
}

void EscPosPage::bitImage()
{
    if (!has(3)) {
        return;
    }
    const int mode = next();
    const int low = next();
    const int columns = low + 256 * next();
    const bool tall = mode == 32 || mode == 33;
    if (!tall && mode != 0 && mode != 1) {
        complain(here() + " is no command");
        return;
    }
    if (columns == 0 || columns > maxBitImageColumns) {
        complain(here() + ": a bit image has 1 to 2047 columns");
    }
    const int bytes = tall ? 3 : 1;
    if (!has(static_cast<std::size_t>(columns) * static_cast<std::size_t>(bytes))) {
        return;
    }
    const int across = mode == 1 || mode == 33 ? 1 : 2;
    const int down = tall ? 1 : 3;
    PageBand band{line_.width, {}};
    const auto wide = static_cast<std::size_t>(std::min(columns * across, areaWidth - line_.width));
    band.rows.assign(24, std::vector<bool>(wide));
    for (int x = 0; x < columns; ++x) {
        unsigned dots = 0;
        for (int i = 0; i < bytes; ++i) {
            dots = dots << 8U | next();
        }
        for (int y = 0; y < 24; ++y) {
            const int bit = bytes * 8 - 1 - y / down;
            for (int dot = x * across; dot < (x + 1) * across; ++dot) {
                if (static_cast<std::size_t>(dot) < wide) {
                    band.rows[static_cast<std::size_t>(y)][static_cast<std::size_t>(dot)]
                        = (dots >> static_cast<unsigned>(bit) & 1U) != 0;
                }
            }
        }
    }
    line_.width += band.width();
    line_.height = std::max(line_.height, band.height());
    line_.bands.push_back(std::move(band));
}

void EscPosPage::cut()
{
    if (!has(1)) {
        return;
    }
    static constexpr unsigned char feedAndCut = 65;
    static constexpr unsigned char feedAndCutPartially = 66;
    const unsigned char mode = next();
    int feed = 0;
    if (mode == feedAndCut || mode == feedAndCutPartially) {
        if (!has(1)) {
            return;
        }
        feed = next();
    } else if (mode != 0 && mode != 1 && mode != '0' && mode != '1') {
        complain(here() + " is no command");
        return;
    }
    if (line_.width > 0) {
        complain(here() + " inside a line does nothing");
        return;
    }
    PageLine line;
    line.cut = true;
    line.feed = feed;
    lines_.push_back(std::move(line));
}

void EscPosPage::tab()
{
    if (line_.width == areaWidth) {
        endLine();
    }
    line_.width = std::min(areaWidth, (line_.width / tabDots + 1) * tabDots);
}

void EscPosPage::put(char32_t character)
{
    if (line_.width + style_.cellWidth() > areaWidth) {
        endLine();
    }
    line_.glyphs.push_back({character, style_, line_.width});
    line_.width += style_.cellWidth();
    line_.height = std::max(line_.height, style_.cellHeight());
}

void EscPosPage::endLine()
{
    line_.alignment = static_cast<PageLine::Alignment>(alignment_);
    line_.feed = std::max(spacing_, line_.height);
    lines_.push_back(std::exchange(line_, {}));
}

void EscPosPage::initialize()
{
    style_ = {};
    spacing_ = defaultSpacing;
    alignment_ = 0;
    line_ = {};
}

bool EscPosPage::has(std::size_t count)
{
    if (job_.size() - at_ >= count) {
        return true;
    }
    complain(here() + " is cut off");
    at_ = job_.size();
    return false;
}

unsigned char EscPosPage::next() { return static_cast<unsigned char>(job_[at_++]); }

/// The command's bytes that are read so far.
std::string EscPosPage::here() const
{
    std::string text;
    for (std::size_t i = commandAt_; i < at_; ++i) {
        text += text.empty() ? "" : " ";
        text += hex(static_cast<unsigned char>(job_[i]));
    }
    return text;
}

void EscPosPage::complain(const std::string& what)
{
    complaints_.push_back("at " + std::to_string(commandAt_) + ": " + what);
}
