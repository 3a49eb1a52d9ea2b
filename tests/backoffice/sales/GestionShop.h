// SPDX-License-Identifier: MIT
#pragma once

#include "backoffice/sales/TillSource.h"
#include "tests/support/Shop.h"

#include <QStringList>

#include <memory>

/// A shop whose figures are worked out by hand.
struct GestionShop : Shop
{
    using Shop::Shop;

    /// Sells \a article once.
    void sell(const char* moment, const char* article, const char* price) const
    {
        sql(QString("insert into Historique values (1, '%1', %2, '%3')")
                .arg(article, price, moment)
                .toUtf8()
                .constData());
    }
};

inline DayRange days(const char* first, const char* last)
{
    return {QDate::fromString(first, Qt::ISODate), QDate::fromString(last, Qt::ISODate)};
}

/// The machine's clocks, on a day on which the till has not worked for long.
inline Timing afterClosing()
{
    Timing timing = Timing::ofTheMachine();
    timing.now = [] { return qint64{4102444800000}; };
    return timing;
}

/// The same for a machine that always needs as long as the pace wants: portions stay as small as
/// the first one. Nothing waits, and each look at the clock takes 5 ms.
inline Timing smallPortions()
{
    const auto elapsed = std::make_shared<qint64>(0);
    constexpr qint64 step = 5000;
    return {[elapsed] { return *elapsed += step; }, [] { return qint64{4102444800000}; },
        [elapsed](qint64 time) { *elapsed += time; }};
}

/// "2026-11-20 9h 2 35000".
inline QStringList shown(const std::vector<HourSales>& hours)
{
    QStringList lines;
    for (const HourSales& hour : hours) {
        lines << QString("%1 %2h %3 %4")
                     .arg(hour.day.toString(Qt::ISODate))
                     .arg(hour.hour)
                     .arg(hour.lines)
                     .arg(hour.takings);
    }
    return lines;
}

/// "Café 2 35000".
inline QStringList shown(const std::vector<ArticleSales>& articles)
{
    QStringList lines;
    for (const ArticleSales& article : articles) {
        lines << QString("%1 %2 %3").arg(article.article).arg(article.lines).arg(article.takings);
    }
    return lines;
}

/// "2026-11-20 Lait 7.5 cl", "* Lait 16 oz = 1 pound".
inline QStringList shown(const std::vector<Use>& uses)
{
    QStringList lines;
    for (const Use& use : uses) {
        const QString day = use.day.isValid() ? use.day.toString(Qt::ISODate) : QString("*");
        const QString converted = use.convertedUnit.isEmpty()
            ? QString()
            : QString(" = %1 %2").arg(use.converted).arg(use.convertedUnit);
        lines << QString("%1 %2 %3 %4%5")
                     .arg(day, use.composition)
                     .arg(use.amount)
                     .arg(use.unit, converted);
    }
    return lines;
}
