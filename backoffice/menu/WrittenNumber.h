// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <vector>

/// A number as people and spreadsheets write it: "1 234,50 €", "$1,234.50", "-2".
struct WrittenNumber
{
    enum class Kind
    {
        Number,
        /// No number at all.
        None,
        /// "1.234" and "1,234": a thousand, or one and a fraction.
        TwoMeanings,
        /// More digits than any price has.
        TooLong
    };

    Kind kind = Kind::None;
    /// As SQL writes it, without zeros that say nothing: "1234.5".
    QString sql;
    /// Digits behind the decimal mark, without such zeros.
    int decimals = 0;

    bool isNumber() const { return kind == Kind::Number; }

    /// Reads \a text. What has two meanings is read by the decimal mark \a mark, if one is known.
    static WrittenNumber of(const QString& text, QChar mark = QChar());

    /// The decimal mark that those of \a texts with only one meaning agree on; null when they have
    /// none, or use both.
    static QChar commonMark(const std::vector<QString>& texts);
};
