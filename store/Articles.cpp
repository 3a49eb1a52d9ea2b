// SPDX-License-Identifier: MIT
#include "store/Articles.h"

#include "common/Tools.h"
#include "store/Rows.h"

namespace {
std::vector<Article> read(DbRows rows)
{
    return Rows::values(std::move(rows), [](const Rows::Row& row) {
        return Article{Rows::text(row, 0), Rows::text(row, 1), Rows::text(row, 2)};
    });
}

/// Counts the surplus rows to which \a condition applies as well.
std::optional<int> countWhere(const QString& condition)
{
    const DbRows rows
        = Rows::load(QLatin1String("select sum(z.art) as som "
                                   "from (select count(d.article) as art, d.article "
                                   "from (select b.article,b.id "
                                   "from (select article,max(id) from Article "
                                   "group by article having count(article) > 1) as t, Article as b "
                                   "where t.article = b.article")
            + condition
            + QLatin1String(") as d where d.id not in (select max(id) as id from Article "
                            "group by article having count(article) > 1) "
                            "group by article) as z"));
    const std::string& sum = rows.at(0).at(0);
    return sum.empty() ? std::nullopt : std::optional<int>(std::stoi(sum));
}
} // namespace

std::vector<Article> Articles::all()
{
    return read(Db::DbLoad("select * from Article order by Article asc"));
}

std::vector<Article> Articles::like(const QString& term)
{
    return read(Rows::load(QLatin1String("select * from Article where article like ")
        + Rows::quoted(QLatin1Char('%') + term + QLatin1Char('%'))
        + QLatin1String(" order by article asc")));
}

void Articles::add(const QString& name, const QString& price) { Rows::load(adding(name, price)); }

QString Articles::adding(const QString& name, const QString& price)
{
    return QLatin1String("insert into Article (article, prix) values (") + Rows::quoted(name)
        + QLatin1String(", ") + price + QLatin1Char(')');
}

QString Articles::pricing(const QString& id, const QString& price)
{
    return QLatin1String("update Article set prix = ") + price + QLatin1String(" where id = ") + id;
}

void Articles::change(const QString& id, const QString& name, const QString& price)
{
    Rows::load(QLatin1String("update Article set article = ") + Rows::quoted(name)
        + QLatin1String(", prix = ") + price + QLatin1String(" where id = ") + id);
}

void Articles::remove(const QString& id)
{
    Rows::load(QLatin1String("delete from Article where id = ") + id);
}

std::optional<int> Articles::countDuplicates() { return countWhere(QString()); }

std::optional<int> Articles::countDuplicatesLike(const QString& term)
{
    return countWhere(QLatin1String(" and b.article like '%")
        + Tools::StringDblRating(term.toStdString()) + QLatin1String("%'"));
}

std::vector<int> Articles::duplicateIds()
{
    return Rows::values(Db::DbLoad("select d.id, d.article "
                                   "from (select b.article,b.id "
                                   "from (select article,max(id) from Article "
                                   "group by article having count(article) > 1) as t, Article as b "
                                   "where t.article = b.article) as d "
                                   "where d.id not in (select max(id) as id from Article "
                                   "group by article having count(article) > 1)"),
        [](const Rows::Row& row) { return std::stoi(row.at(0)); });
}
