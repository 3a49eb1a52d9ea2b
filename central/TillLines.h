// SPDX-License-Identifier: MIT
#pragma once

#include "backoffice/sales/TillDatabase.h"
#include "central/Line.h"

#include <optional>
#include <string>
#include <vector>

/// An article of the menu.
struct MenuEntry
{
    std::int64_t id = 0;
    std::string article;
    /// Ten-thousandths.
    std::int64_t price = 0;
};

/// An article as the stock knows it, which recipes belong to.
struct StockEntry
{
    std::int64_t id = 0;
    std::string article;
};

/// A line of a recipe.
struct DoseEntry
{
    std::int64_t line = 0;
    std::int64_t stockId = 0;
    std::string composition;
    double dose = 0;
    std::string unit;
};

/// What a till sells, at one time.
struct Menu
{
    std::vector<MenuEntry> articles;
    std::vector<StockEntry> stock;
    std::vector<DoseEntry> doses;
    /// Per cent.
    double taxRate = 0;

    /// A text that another menu does not have, short enough to be kept.
    std::string fingerprint() const;
};

/// Reads a till's history and menu in portions that leave the till time to sell. All functions
/// throw SalesError, ReadingStopped and TillDatabase::Replaced.
class TillLines
{
public:
    TillLines(const QString& folder, const Reading& reading, const Timing& timing);

    /// What state the database is in. To be called before what follows, and again to see whether
    /// another file has taken the place of the one that was read.
    TillDatabase::State state() { return database_.state(reading_); }

    /// The last row, whatever its moment.
    Anchor last();

    /// Whether the row of \a anchor says what it did.
    bool has(const Anchor& anchor);

    /// Lines behind \a anchor, in the order of rows, with their ordinals; none at the end of the
    /// history. Nothing when the row of \a anchor does not say what it did: then what is below may
    /// have changed, too. Lines of a moment that earlier rows have as well come with those.
    std::optional<std::vector<Line>> behind(const Anchor& anchor);

    /// The digests of the months up to the row \a last.
    Months months(std::int64_t last);

    /// The first sales of each month, the oldest first: a line of each, as far as pages can show
    /// it. A copy that lacks the newest sales, or that was purged since, has them as well.
    std::vector<Line> firstSales();

    /// Hands all lines of \a month up to the row \a last to \a take, portion by portion, with their
    /// ordinals.
    using Take = std::function<void(std::vector<Line>)>;
    void ofMonth(const std::string& month, std::int64_t last, const Take& take);

    /// The menu and its recipes.
    Menu menu();

private:
    std::vector<Line> lines(const QString& where, const QVariantList& values);
    bool isSaidBefore(const std::string& moment, std::int64_t row);
    std::vector<Line> ofMoment(const std::string& moment, std::int64_t last);
    void withoutMonth(std::int64_t last, const Take& take);
    void portion(TillPace& pace, const std::function<qint64()>& read);

    Reading reading_;
    TillDatabase database_;
    /// What a row takes is another time for each kind of work.
    TillPace linePace_;
    TillPace digestPace_;
    TillPace oddPace_;
};
