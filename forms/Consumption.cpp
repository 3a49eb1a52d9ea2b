// SPDX-License-Identifier: MIT
#include "forms/Consumption.h"

#include "common/Tools.h"

namespace {
/// \a head, the two dates as a "between" test, and \a tail, run as one statement.
DbRows load(const char* head, const QString& from, const QString& to, const char* tail)
{
    const QString sql = QLatin1String(head) + QLatin1Char('\'')
        + Tools::StringDblRating(from.toStdString()) + QLatin1String("' and '")
        + Tools::StringDblRating(to.toStdString()) + QLatin1Char('\'') + QLatin1String(tail);
    return Db::DbLoad(sql.toUtf8().constData());
}
} // namespace

DbRows Consumption::details(const QString& from, const QString& to)
{
    return load("select distinct compte, t.article, composition, dose, unite, compte * dose as "
                "calc, unite  from (select distinct count(article) as compte, article from "
                "Historique where date_heure between ",
        from, to,
        " group by article, prix) as t, (select c.article, composition, dose , unite from (select "
        "* from DoseStock) as b, (select * from ArticleStock) as c where b.id = c.id) as d  where "
        "t.article = d.article order by t.article");
}

DbRows Consumption::totals(const QString& from, const QString& to)
{
    return load("select a.composition, a.calcul, a.unite , case a.unite when 'oz' then "
                "cast(a.calcul as real)/16 when 'fl. oz' then cast(a.calcul as real)/32 end "
                "calculconv, case a.unite when 'oz' then 'pound' when 'fl. oz' then 'quart' end "
                "calculunite from (select distinct c.composition,sum(c.calc) as calcul, c.unite "
                "from (select distinct compte, t.article, composition, dose, unite, compte * dose "
                "as calc, unite   from (select distinct count(article) as compte, article from "
                "Historique where date_heure between ",
        from, to,
        " group by article, prix) as t, (select c.article, composition, dose , unite from (select "
        "* from DoseStock) as b, (select * from ArticleStock) as c where b.id = c.id) as d where "
        "t.article = d.article order by t.article) as c group by c.composition) as a");
}
