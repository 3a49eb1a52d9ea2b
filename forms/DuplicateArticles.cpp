// SPDX-License-Identifier: MIT
#include "forms/DuplicateArticles.h"

#include "common/Tools.h"
#include "db/Db.h"

#include <algorithm>

namespace {
/// Counts the surplus rows to which \a condition applies as well.
std::optional<int> countWhere(const QString& condition)
{
    const QString sql
        = QLatin1String("select sum(z.art) as som from (select count(d.article) as art, d.article "
                        "from (select b.article,b.id from (select article,max(id) from Article "
                        "group by article having count(article) > 1) as t, Article as b where "
                        "t.article = b.article")
        + condition
        + QLatin1String(") as d where d.id not in (select max(id) as id from Article group by "
                        "article having count(article) > 1) group by article) as z");
    const DbRows rows = Db::DbLoad(sql.toUtf8().constData());
    const std::string& sum = rows.at(0).at(0);
    return sum.empty() ? std::nullopt : std::optional<int>(std::stoi(sum));
}
} // namespace

std::optional<int> DuplicateArticles::count()
{
    return countWhere(QString());
}

std::optional<int> DuplicateArticles::countLike(const QString& term)
{
    return countWhere(QLatin1String(" and b.article like '%")
        + Tools::StringDblRating(term.toStdString()) + QLatin1String("%'"));
}

std::vector<int> DuplicateArticles::ids()
{
    const DbRows rows = Db::DbLoad(
        "select d.id, d.article from (select b.article,b.id from (select article,max(id) from "
        "Article group by article having count(article) > 1) as t, Article as b where t.article = "
        "b.article) as d where d.id not in (select max(id) as id from Article group by article "
        "having count(article) > 1)");
    std::vector<int> ids;
    ids.reserve(rows.size());
    for (const auto& row : rows) {
        ids.push_back(std::stoi(row.at(0)));
    }
    return ids;
}

bool DuplicateArticles::contain(const std::string& id)
{
    const std::vector<int> surplus = ids();
    return std::any_of(
        surplus.begin(), surplus.end(), [&id](int other) { return other == std::stoi(id); });
}
