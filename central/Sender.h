// SPDX-License-Identifier: MIT
#pragma once

#include "central/Book.h"
#include "central/TillLines.h"

/// Carries what is new on a till into the book. Whatever was sent already may be sent again: the
/// book takes each line once.
class Sender
{
public:
    /// How much of the till is looked at.
    enum class Depth
    {
        /// What is behind the last line that was sent; all of it where that line is not there.
        New,
        /// The whole history, too: months that have changed are sent again.
        All
    };

    /// Lines for one transaction of the book; a batch has one portion of the till's more at most.
    static constexpr std::size_t batchLines = 5000;

    Sender(Book& book, TillLines& till)
        : book_(book)
        , till_(till)
    { }

    /// Some sales that tell the till from any other. Throws as sendLines().
    std::vector<Line> firstSales();
    /// Sends lines. Throws BookError, SalesError, ReadingStopped, and Refusal when the till's
    /// database changes too much meanwhile.
    void sendLines(Depth depth);
    /// Sends the menu and the recipes. Throws the same.
    void sendMenu();

private:
    bool attempt(Depth depth);
    bool sendBehind(Book::Progress& progress);
    bool sendChanged(Book::Progress& progress, const Anchor& last);
    void sendMonth(const std::string& month, const Anchor& last, Book::Progress& progress);
    void requireThere(const Anchor& last);
    void add(const Batch& batch, Book::Progress& progress);

    Book& book_;
    TillLines& till_;
};
