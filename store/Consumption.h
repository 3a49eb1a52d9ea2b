// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <vector>

/// What the sales of one article at one price consumed of one composition.
struct ConsumedPart
{
    /// Number of sales.
    QString sales;
    QString article;
    QString composition;
    /// For one sale.
    QString dose;
    QString doseUnit;
    /// Sales times dose.
    QString amount;
    QString amountUnit;
};

/// What all sales consumed of one composition.
struct ConsumedTotal
{
    QString composition;
    QString amount;
    QString unit;
    /// The amount in the larger unit, and that unit; both empty where there is no larger one.
    QString converted;
    QString convertedUnit;
};

/// What the sales between two dates consumed by the recipes of the stock. Dates are text as
/// date_heure holds it, with or without a time of day; a second date without one excludes its day.
namespace Consumption {
/// In the order of the articles' names.
std::vector<ConsumedPart> details(const QString& from, const QString& to);

/// One for each composition.
std::vector<ConsumedTotal> totals(const QString& from, const QString& to);

/// The statement of totals for sales that \a counted, a statement without its brackets, counts: a
/// row with "compte" and "article" for each article and price, alike rows once.
QString totalsStatement(const QString& counted);
} // namespace Consumption
