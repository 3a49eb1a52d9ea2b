// SPDX-License-Identifier: MIT
#include "backoffice/sales/BookSource.h"

#include "backoffice/sales/BookDays.h"
#include "backoffice/sales/BookStatements.h"
#include "backoffice/sales/BookUses.h"
#include "backoffice/sales/TillFigures.h"

#include <QSet>
#include <QStringList>

#include <algorithm>
#include <map>

BookSource::BookSource(const QString& uri)
    : database_(uri)
{
    readTills();
}

/// Tills of one name are told apart by a number.
void BookSource::readTills()
{
    std::vector<Till> found;
    QSet<QString> names;
    database_.read(BookStatements::tills(), {}, [&](const QSqlQuery& row) {
        const QString own = row.value(1).toString();
        QString name = own;
        for (int number = 2; names.contains(name); ++number) {
            name = own + QStringLiteral(" (%1)").arg(number);
        }
        names.insert(name);
        found.push_back({row.value(0).toInt(), name, row.value(2).toDouble()});
    });
    if (found.empty()) {
        throw SalesError(tr("Aucune caisse n'a encore envoyé de ventes au livre central."));
    }
    tills_ = std::move(found);
}

std::vector<BookSource::Till> BookSource::chosen() const
{
    std::vector<Till> found;
    std::copy_if(tills_.begin(), tills_.end(), std::back_inserter(found), [&](const Till& till) {
        return chosen_.empty()
            || std::find(chosen_.begin(), chosen_.end(), till.id) != chosen_.end();
    });
    return found;
}

std::vector<QString> BookSource::allTills() const
{
    std::vector<QString> names;
    names.reserve(tills_.size());
    for (const Till& till : tills_) {
        names.push_back(till.name);
    }
    return names;
}

std::vector<QString> BookSource::tills() const
{
    std::vector<QString> names;
    for (const Till& till : chosen()) {
        names.push_back(till.name);
    }
    return names;
}

void BookSource::choose(const std::vector<QString>& names)
{
    std::vector<int> keys;
    for (const QString& name : names) {
        const auto till = std::find_if(
            tills_.begin(), tills_.end(), [&](const Till& one) { return one.name == name; });
        if (till == tills_.end()) {
            const std::vector<QString> all = allTills();
            throw SalesError(
                tr("Le livre central n'a pas de caisse « %1 ». Il a : %2.")
                    .arg(name, QStringList(all.begin(), all.end()).join(QStringLiteral(", "))));
        }
        keys.push_back(till->id);
    }
    if (keys != chosen_) {
        chosen_ = std::move(keys);
        seen_.reset();
    }
}

std::vector<int> BookSource::chosenKeys() const
{
    std::vector<int> keys;
    for (const Till& till : chosen()) {
        keys.push_back(till.id);
    }
    return keys;
}

/// The keys of the chosen tills, as the statements take them.
QString BookSource::keys() const { return BookStatements::array(chosenKeys()); }

/// The place of a till among those that are read.
int BookSource::place(const QVariant& key) const
{
    int place = 0;
    for (const Till& till : tills_) {
        if (till.id == key.toInt()) {
            break;
        }
        const bool isRead = chosen_.empty()
            || std::find(chosen_.begin(), chosen_.end(), till.id) != chosen_.end();
        place += isRead ? 1 : 0;
    }
    return place;
}

std::shared_ptr<void> BookSource::hold() { return database_.hold(); }

std::vector<HourSales> BookSource::hours(const DayRange& range, const Reading& reading)
{
    const BookDays days(range);
    std::vector<HourSales> hours;
    database_.read(
        BookStatements::hours(), {days.first, days.behind, keys()},
        [&](const QSqlQuery& row) {
            hours.push_back({row.value(0).toDate(), row.value(1).toInt(), row.value(2).toLongLong(),
                row.value(3).toLongLong(), 0});
        },
        reading);
    return hours;
}

std::vector<HourSales> BookSource::tillSales(
    const DayRange& range, TillPart part, const Reading& reading)
{
    const BookDays days(range);
    const QVariantList usual{days.first, days.behind, keys()};
    const auto [sql, values] = [&]() -> std::pair<QString, QVariantList> {
        switch (part) {
        case TillPart::Month:
            return {BookStatements::monthsOfTills(),
                days.ofMonths() + QVariantList{keys(), days.first} + days.besideMonths()
                    + QVariantList{keys()}};
        case TillPart::WeekHour:
            return {
                BookStatements::weekHoursOfTills(), QVariantList{days.first, days.first} + usual};
        case TillPart::Day:
            return {BookStatements::daysOfTills(), usual};
        case TillPart::Hour:
            break;
        }
        return {BookStatements::hoursOfTills(), usual};
    }();
    std::vector<HourSales> sales;
    database_.read(
        sql, values,
        [&](const QSqlQuery& row) {
            sales.push_back({row.value(1).toDate(), row.value(2).toInt(), row.value(3).toLongLong(),
                row.value(4).toLongLong(), place(row.value(0))});
        },
        reading);
    std::stable_sort(sales.begin(), sales.end(),
        [](const HourSales& one, const HourSales& other) { return one.till < other.till; });
    return sales;
}

std::vector<ArticleSales> BookSource::articles(const DayRange& range, const Reading& reading)
{
    const BookDays days(range);
    std::vector<ArticleSales> articles;
    database_.read(
        BookStatements::articles(),
        days.ofMonths() + QVariantList{keys()} + days.besideMonths() + QVariantList{keys()},
        [&](const QSqlQuery& row) {
            articles.push_back({row.value(1).toString(), row.value(2).toLongLong(),
                row.value(3).toLongLong(), place(row.value(0))});
        },
        reading);
    std::stable_sort(
        articles.begin(), articles.end(), [](const ArticleSales& one, const ArticleSales& other) {
            const QString first = folded(one.article);
            const QString second = folded(other.article);
            return first != second ? first < second : one.till < other.till;
        });
    return articles;
}

std::vector<Use> BookSource::uses(const DayRange& range, const Reading& reading)
{
    return BookUses(database_, chosenKeys()).of(range, reading);
}

std::vector<MenuArticle> BookSource::menu()
{
    std::vector<MenuArticle> menu;
    database_.read(BookStatements::menu(), {keys()}, [&](const QSqlQuery& row) {
        menu.push_back({row.value(1).toString(), row.value(2).toLongLong(), place(row.value(0))});
    });
    std::stable_sort(
        menu.begin(), menu.end(), [](const MenuArticle& one, const MenuArticle& other) {
            return folded(one.article) < folded(other.article);
        });
    return menu;
}

/// The one that most of the tills have.
double BookSource::taxRate()
{
    std::map<double, int> counts;
    for (const Till& till : chosen()) {
        ++counts[till.taxRate];
    }
    if (counts.empty()) {
        return 0;
    }
    return std::max_element(counts.begin(), counts.end(), [](const auto& one, const auto& other) {
        return one.second < other.second;
    })->first;
}

std::optional<QString> BookSource::taxRemark(const QLocale& locale)
{
    const double rate = taxRate();
    QStringList others;
    for (const Till& till : chosen()) {
        if (till.taxRate != rate) {
            others += tr("%1 (%2 %)").arg(till.name, locale.toString(till.taxRate));
        }
    }
    if (others.isEmpty()) {
        return std::nullopt;
    }
    return tr("La TVA est calculée à un seul taux, mais des caisses en ont un autre : %1.")
        .arg(others.join(QStringLiteral(", ")));
}

bool BookSource::isChanged()
{
    QString state;
    database_.read(BookStatements::state(), {keys()}, [&](const QSqlQuery& row) {
        state = row.value(0).toString() + QLatin1Char(' ') + row.value(1).toString();
    });
    if (seen_ == state) {
        return false;
    }
    readTills();
    seen_ = state;
    return true;
}
