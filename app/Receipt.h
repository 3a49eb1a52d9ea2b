// SPDX-License-Identifier: MIT
#pragma once

#include "store/Ticket.h"

#include <QDateTime>
#include <QString>

#include <optional>
#include <vector>

/// All that a receipt is made of.
struct Sale
{
    std::vector<TicketGroup> items;
    /// The sum of all prices.
    QString sum;
    /// VAT in per cent, normally one.
    std::vector<QString> taxRates;
    /// The texts that frame the receipt; nothing where there is none.
    std::optional<QString> header;
    std::optional<QString> footer;
    QDateTime time;
};

/// One line of a receipt, without a line end; tab stops are at every eighth column.
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

/// Reads the ticket in progress, the tax rate and the two files. Throws std::out_of_range when the
/// database does not answer.
Sale readSale(const QDateTime& time);

/// Composes the receipt of \a sale.
Receipt composeReceipt(const Sale& sale);

/// A header or footer line centred in the receipt's 47 columns (bytes); a line of more than 48
/// bytes disappears.
std::string centredLine(const QString& text);
