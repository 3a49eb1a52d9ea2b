// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <string>

/// Small helpers for values, text and dates; each logs what goes wrong and returns a harmless
/// value.
class Tools
{
public:
    /// Longest article name in characters, and the width of the receipt's article column in bytes.
    static constexpr int NbrChar = 15;

    /// Whether \a text is a number by Qt's C-locale rules ("." as decimal separator).
    static bool isNum(QString text);

    /// UTF-8 \a text with every single quote doubled, ready to be put between quotes in SQL.
    static QString StringDblRating(std::string text);

    /// \a text padded with \a fill on the right to \a width bytes; a longer text is not cut.
    static std::string Padding(std::string text, int width, char fill);

    /// \a text between (width - length) / 2 \a fill characters on each side, all counted in bytes;
    /// empty when the text is two or more bytes longer than \a width.
    static std::string PaddingCenter(std::string text, int width, char fill);

    /// Moves dates between the order that is typed and the order that SQLite compares.
    class ConvDate
    {
    public:
        /// "MM/dd/yyyy" as "yyyy-MM-dd", 23 characters with their time of day kept; any other
        /// length gives the empty text. Characters are moved, never checked.
        static QString ToUs(QString text);

        /// The reverse of ToUs.
        static QString ToUs_mdy(QString text);
    };
};
