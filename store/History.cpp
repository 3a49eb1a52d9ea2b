// SPDX-License-Identifier: MIT
#include "store/History.h"

#include "common/Memo.h"
#include "common/Tools.h"
#include "store/Rows.h"

#include <algorithm>
#include <iterator>

namespace {
/// \a sql with the bounds of \a period for its "%1" and "%2".
DbRows load(const char* sql, const Period& period)
{
    return Rows::load(QString::fromLatin1(sql).arg(period.from(), period.to()));
}

std::string insertion(const TicketLine& line)
{
    const QString sql = QLatin1String("insert into Historique (id, article, prix) values(")
        + line.articleId + QLatin1String(", ") + Rows::quoted(line.article) + QLatin1String(", ")
        + line.price + QLatin1String(")");
    return sql.toStdString();
}
} // namespace

bool History::record(const std::vector<TicketLine>& lines)
{
    std::vector<std::string> insertions;
    insertions.reserve(lines.size());
    std::transform(lines.begin(), lines.end(), std::back_inserter(insertions), insertion);
    return Db::DbTransact(insertions);
}

std::vector<QString> History::days()
{
    return Rows::firstColumn(
        Db::DbLoad("select distinct substr(date_heure,1,10) as date from Historique"));
}

std::vector<SoldLine> History::lines(const Period& period)
{
    Memo shared(&QString::fromStdString);
    return Rows::values(load("select * from Historique where date_heure between '%1' and '%2' "
                             "order by date_heure asc",
                            period),
        [&shared](const Rows::Row& row) {
            return SoldLine{shared(row.at(1)), shared(row.at(2)), Rows::text(row, 3)};
        });
}

std::vector<SoldGroup> History::groups(const Period& period)
{
    return Rows::values(
        load("select distinct compte, article, prix, compte * prix as calcul "
             "from (select distinct count(article) as compte, article, prix from Historique "
             "where date_heure between '%1' and '%2' group by article, prix)",
            period),
        [](const Rows::Row& row) {
            return SoldGroup{
                Rows::text(row, 0), Rows::text(row, 1), Rows::text(row, 2), Rows::text(row, 3)};
        });
}

QString History::total(const Period& period)
{
    return Rows::text(
        load("select sum(prix) from Historique where date_heure between '%1' and '%2'", period)
            .at(0),
        0);
}

void History::purge(const Period& period)
{
    load("delete from Historique where date_heure between '%1' and '%2'", period);
}
