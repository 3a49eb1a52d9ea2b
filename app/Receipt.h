// SPDX-License-Identifier: MIT
#pragma once

#include "db/Db.h"

#include <QDateTime>
#include <QString>

#include <optional>
#include <vector>

/// All that a receipt is made of.
struct Sale
{
    /// Count, article, price, count times price.
    DbRows items;
    DbRows sums;
    /// VAT in per cent.
    DbRows taxRates;
    /// The texts that frame the receipt; nothing where there is none.
    std::optional<QString> header;
    std::optional<QString> footer;
    QDateTime time;
};

/// One line of a receipt, without a line end; tabs stand at every eighth column.
struct ReceiptLine
{
    enum class Style
    {
        Plain,
        /// Centred and bold.
        Header,
        /// Centred.
        Footer,
        /// Centred, twice as high and wide.
        Title,
        /// Bold, twice as wide.
        GrandTotal
    };

    Style style;
    QString text;
};

using Receipt = std::vector<ReceiptLine>;

/// Reads the ticket in progress, the tax rate and the two files.
Sale readSale(const QDateTime& time);

/// Composes the receipt of \a sale. Throws std::out_of_range when a row that must exist is missing.
Receipt composeReceipt(const Sale& sale);

/// A header or footer line centred in the receipt's 47 columns (bytes); a line of more than 48
/// bytes disappears.
std::string centredLine(const QString& text);
