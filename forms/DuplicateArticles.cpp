// SPDX-License-Identifier: MIT
#include "forms/DuplicateArticles.h"

#include "db/Db.h"

std::optional<int> DuplicateArticles::count()
{
    const DbRows rows = Db::DbLoad(
        "select sum(z.art) as som from (select count(d.article) as art, d.article from (select "
        "b.article,b.id from (select article,max(id) from Article group by article having "
        "count(article) > 1) as t, Article as b where t.article = b.article) as d where d.id not "
        "in (select max(id) as id from Article group by article having count(article) > 1) group "
        "by article) as z");
    const std::string& sum = rows.at(0).at(0);
    return sum.empty() ? std::nullopt : std::optional<int>(std::stoi(sum));
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
