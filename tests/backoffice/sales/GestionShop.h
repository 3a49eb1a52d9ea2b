// SPDX-License-Identifier: MIT
#pragma once

#include "backoffice/sales/TillSource.h"
#include "tests/support/Shop.h"

#include <QStringList>

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
