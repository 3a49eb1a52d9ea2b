// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// How a character is printed. Sizes in dots of 1/203 inch.
struct PageStyle
{
    bool bold = false;
    /// Thickness of the underline, 0 to 2 dots.
    int underline = 0;
    bool wide = false;
    bool high = false;
    bool fontB = false;

    int cellWidth() const { return (fontB ? 9 : 12) * (wide ? 2 : 1); }
    int cellHeight() const { return (fontB ? 17 : 24) * (high ? 2 : 1); }
    bool operator==(const PageStyle&) const = default;
};

/// One character; \a x counts from the line's left, before the line is aligned.
struct PageGlyph
{
    char32_t character;
    PageStyle style;
    int x;
};

/// One bit image: rows of dots from top to bottom, true is black.
struct PageBand
{
    int x;
    std::vector<std::vector<bool>> rows;

    int width() const { return rows.empty() ? 0 : static_cast<int>(rows.front().size()); }
    int height() const { return static_cast<int>(rows.size()); }
};

/// One printed line, or the paper's cut.
struct PageLine
{
    enum class Alignment
    {
        Left,
        Centre,
        Right
    };

    bool cut = false;
    Alignment alignment = Alignment::Left;
    std::vector<PageGlyph> glyphs;
    std::vector<PageBand> bands;
    /// Dots from the left to the printing position that the line ended at.
    int width = 0;
    /// Dots of what is printed, and of how far the paper moves.
    int height = 0;
    int feed = 0;

    /// Dots between the printing area's left and the line.
    int leftOffset() const;

    /// The text with its styles: "[centre][wide high]Chez Paul", "[bold]12 rue X",
    /// "a [bold underlined]b[plain] c", "[image 8x24]", "[cut]". Tabs are blanks. UTF-8.
    std::string styled() const;
};

/// What a TM-T20II with 80 mm paper, code page 858 and its switches as delivered prints for a job.
/// Source: ESC/POS command reference, TM-T20II. Commands that this page does not know, and data
/// that would not come out, are complained about.
class EscPosPage
{
public:
    /// The printing area's width: 48 columns of font A.
    static constexpr int areaWidth = 576;

    explicit EscPosPage(std::string_view job);

    const std::vector<PageLine>& lines() const { return lines_; }

    /// Every line as PageLine::styled() gives it.
    std::vector<std::string> styledLines() const;

    /// What is wrong with the job, each with its place in it: "at 12: 1b 99 is no command".
    const std::vector<std::string>& complaints() const { return complaints_; }

    /// Commands that are taken and have no effect: "at 0: 1d 40 does nothing".
    const std::vector<std::string>& remarks() const { return remarks_; }

private:
    void character(unsigned char byte);
    void command(unsigned char introducer);
    bool escape(unsigned char function);
    bool groupSeparator(unsigned char function);
    bool select(int& value, const std::vector<int>& choices);
    void printMode(unsigned bits);
    void align();
    void bitImage();
    void cut();
    void tab();
    void put(char32_t character);
    void endLine();
    void initialize();

    bool has(std::size_t count);
    unsigned char next();
    std::string here() const;
    void complain(const std::string& what);

    std::string_view job_;
    std::size_t at_ = 0;
    std::size_t commandAt_ = 0;
    PageStyle style_;
    int spacing_ = 0;
    int alignment_ = 0;
    PageLine line_;
    std::vector<PageLine> lines_;
    std::vector<std::string> complaints_;
    std::vector<std::string> remarks_;
};

/// \a character as UTF-8.
std::string utf8Of(char32_t character);
