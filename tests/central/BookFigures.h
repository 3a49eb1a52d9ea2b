// SPDX-License-Identifier: MIT
#pragma once

#include "backoffice/sales/SalesSource.h"
#include "tests/central/BookServer.h"
#include "tests/central/SoldTill.h"

/// What tests of the pages' figures from a book share.
namespace BookFigures {

inline QString uri(const std::string& book)
{
    return QString::fromStdString(BookServer::get().uri(book));
}

inline DayRange days(const char* first, const char* last)
{
    return {QDate::fromString(first, Qt::ISODate), QDate::fromString(last, Qt::ISODate)};
}

inline QStringList shown(const std::vector<HourSales>& sales)
{
    QStringList lines;
    for (const HourSales& part : sales) {
        lines << QString("%1: %2 %3h %4 %5")
                     .arg(part.till)
                     .arg(part.day.toString(Qt::ISODate))
                     .arg(part.hour)
                     .arg(part.lines)
                     .arg(part.takings);
    }
    return lines;
}

inline QStringList shown(const std::vector<ArticleSales>& articles)
{
    QStringList lines;
    for (const ArticleSales& part : articles) {
        lines << QString("%1: %2 %3 %4")
                     .arg(part.till)
                     .arg(part.article)
                     .arg(part.lines)
                     .arg(part.takings);
    }
    return lines;
}

/// With all digits that a number may differ in.
inline QStringList shown(const std::vector<Use>& uses)
{
    constexpr int digits = 15;
    QStringList lines;
    for (const Use& use : uses) {
        lines << QString("%1: %2 %3 %4 %5 = %6 %7")
                     .arg(QString::number(use.till),
                         use.day.isValid() ? use.day.toString(Qt::ISODate) : QString("*"),
                         use.composition, QString::number(use.amount, 'g', digits), use.unit,
                         QString::number(use.converted, 'g', digits), use.convertedUnit);
    }
    return lines;
}

inline QStringList list(const std::vector<QString>& names) { return {names.begin(), names.end()}; }

/// A till that has sold nothing and has no recipe.
inline constexpr const char* emptied = "delete from Historique; delete from Article; delete from "
                                       "ArticleStock; delete from DoseStock; ";

/// A till with recipes, and days on which its window counts in its own way.
inline void fill(const SoldTill& till)
{
    till.sql(QString(emptied)
        + "insert into Article (article, prix) values ('Café', 2), ('Thé', 3), ('Bière', 4);"
          "insert into ArticleStock values (1, 'Café'), (2, 'Thé'), (3, 'Bière'), (6, 'Double'), "
          "(7, 'double');"
          "insert into DoseStock values (1, 1, 'Lait', 2.5, 'cl'), (2, 1, 'Sucre', 0.1, 'g'), "
          "(3, 2, 'lait', 10, 'g'), (4, 2, 'Eau', 20, 'cl'), (5, 3, 'Houblon', 8, 'oz'), "
          "(6, 3, 'Malt', 2.6666666666666665, 'fl. oz'), (9, 6, 'Rhum', 3, 'cl'), "
          "(10, 7, 'Rhum', 3, 'cl'), (12, 99, 'Rien', 1, 'g')");
    for (const char* price : {"2", "2.5"}) {
        for (const char* day : {"2026-01-31", "2026-02-01", "2026-02-28", "2026-03-01"}) {
            for (int count = 0; count < 3; ++count) {
                till.sell(QString(day) + " 10:00:00.000", "Café", price);
            }
        }
    }
    till.sell("2026-02-01 11:00:00.000", "CAFé", "2");
    till.sell("2026-02-02 00:00:00.000", "Thé", "3");
    till.sell("2026-02-02 12:00:00.000", "Thé", "-3");
    till.sell("2026-02-03 12:00:00.000", "Bière", "4");
    till.sell("2026-02-03 12:59:59.999", "BIèRE", "4.5");
    till.sell("2026-02-04 12:00:00.000", "Double", "1");
    till.sell("2026-02-04 12:00:00.000", "DOUBLE", "1.5");
    till.sell("2026-02-04 12:00:00.000", "----", "-0.5");
}

/// Sends what \a till sold to \a book as the till \a name.
inline void send(const SoldTill& till, const std::string& book, const char* name)
{
    TillLines lines(till.path(), {}, SoldTill::hasty());
    Book target(BookServer::get().uri(book), till.path().toStdString(), name);
    Sender sender(target, lines);
    sender.sendLines(Sender::Depth::All);
    sender.sendMenu();
}
} // namespace BookFigures
