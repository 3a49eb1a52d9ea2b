// SPDX-License-Identifier: MIT
#include "backoffice/sales/BookSource.h"

#include "backoffice/sales/BookStatements.h"

#include <QSet>
#include <QStringList>

#include <algorithm>
#include <map>

namespace {
/// A range as the statements take it: its days before, in and behind its whole months.
struct Days
{
    QDate first;
    QDate months;
    QDate monthsEnd;
    QDate behind;

    explicit Days(const DayRange& range)
        : first(range.first)
        , behind(range.last.addDays(1))
    {
        const QDate sameMonth(first.year(), first.month(), 1);
        months = std::min(first == sameMonth ? first : sameMonth.addMonths(1), behind);
        monthsEnd = std::max(QDate(behind.year(), behind.month(), 1), months);
    }

    QVariantList ofMonths() const { return {months, monthsEnd}; }
    QVariantList besideMonths() const { return {first, months, monthsEnd, behind}; }
};

QString array(const QStringList& values)
{
    return QLatin1Char('{') + values.join(QLatin1Char(',')) + QLatin1Char('}');
}
} // namespace

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

/// The keys of the chosen tills, as PostgreSQL writes an array.
QString BookSource::keys() const
{
    QStringList keys;
    for (const Till& till : chosen()) {
        keys += QString::number(till.id);
    }
    return array(keys);
}

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
    const Days days(range);
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
    const Days days(range);
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
    const Days days(range);
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

/// Tills that have the same recipes are computed together.
std::vector<BookSource::Group> BookSource::groups(const Reading& reading)
{
    std::map<QString, std::size_t> known;
    std::vector<Group> groups;
    database_.read(
        BookStatements::recipes(), {keys()},
        [&](const QSqlQuery& row) {
            const auto [found, isNew] = known.try_emplace(row.value(1).toString(), groups.size());
            if (isNew) {
                groups.emplace_back();
            }
            groups.at(found->second).keys.push_back(row.value(0).toInt());
        },
        reading);
    for (Group& group : groups) {
        const QVariantList till{group.keys.front()};
        database_.read(
            BookStatements::stockArticles(), till,
            [&](const QSqlQuery& row) {
                group.articles.push_back({row.value(0), row.value(1)});
            },
            reading);
        database_.read(
            BookStatements::doses(), till,
            [&](const QSqlQuery& row) {
                group.doses.push_back(
                    {row.value(0), row.value(1), row.value(2), row.value(3), row.value(4)});
            },
            reading);
    }
    return groups;
}

/// Adds to each group what its tills sold in all of \a range.
void BookSource::readPeriod(
    std::vector<Group>& groups, const DayRange& range, const Reading& reading)
{
    std::map<int, Group*> groupOf;
    for (Group& group : groups) {
        for (const int key : group.keys) {
            groupOf[key] = &group;
        }
    }
    const Days days(range);
    database_.read(
        BookStatements::uses(),
        days.ofMonths() + QVariantList{keys()} + days.besideMonths() + QVariantList{keys()},
        [&](const QSqlQuery& row) {
            groupOf.at(row.value(0).toInt())
                ->lines.push_back({QDate(), place(row.value(0)), row.value(1).toString(),
                    row.value(2).toLongLong()});
        },
        reading);
}

/// Adds to each group what its tills together sold on each day, or in each month, of \a range.
void BookSource::readParts(
    std::vector<Group>& groups, const DayRange& range, const Reading& reading)
{
    QStringList members;
    QStringList parts;
    for (std::size_t group = 0; group < groups.size(); ++group) {
        for (const int key : groups.at(group).keys) {
            members += QString::number(key);
            parts += QString::number(group);
        }
    }
    const QVariantList tillsOfGroups{array(members), array(parts)};
    const Days days(range);
    const bool isByMonth = range.grain() == DayRange::Grain::Month;
    const QVariantList values = isByMonth
        ? QVariantList{days.first} + days.besideMonths() + days.ofMonths() + tillsOfGroups
        : tillsOfGroups + QVariantList{days.first, days.behind};
    database_.read(
        isByMonth ? BookStatements::usesByMonth() : BookStatements::usesByDay(), values,
        [&](const QSqlQuery& row) {
            Group& group = groups.at(static_cast<std::size_t>(row.value(0).toInt()));
            group.lines.push_back({row.value(1).toDate(), place(group.keys.front()),
                row.value(2).toString(), row.value(3).toLongLong()});
        },
        reading);
}

std::vector<Use> BookSource::uses(const DayRange& range, const Reading& reading)
{
    std::vector<Group> all = groups(reading);
    readPeriod(all, range, reading);
    readParts(all, range, reading);
    std::vector<Use> uses;
    for (const Group& group : all) {
        UseTables tables;
        for (const QVariantList& row : group.articles) {
            tables.addStockArticle(row);
        }
        for (const QVariantList& row : group.doses) {
            tables.addDose(row);
        }
        tables.addLines(group.lines);
        const std::vector<Use> found = tables.uses(reading);
        uses.insert(uses.end(), found.begin(), found.end());
    }
    // A day that is not valid is before all others.
    std::stable_sort(uses.begin(), uses.end(), [](const Use& one, const Use& other) {
        return std::pair(one.day, one.till) < std::pair(other.day, other.till);
    });
    return uses;
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
