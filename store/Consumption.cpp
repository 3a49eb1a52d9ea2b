// SPDX-License-Identifier: MIT
#include "store/Consumption.h"

#include "store/Rows.h"

namespace {
/// The sales between the two dates, counted as the statements below want it.
QString countedBetween(const QString& from, const QString& to)
{
    return QLatin1String("select distinct count(article) as compte, article from Historique "
                         "where date_heure between ")
        + Rows::quoted(from) + QLatin1String(" and ") + Rows::quoted(to)
        + QLatin1String(" group by article, prix");
}
} // namespace

std::vector<ConsumedPart> Consumption::details(const QString& from, const QString& to)
{
    return Rows::values(
        Rows::load(QLatin1String("select distinct compte, t.article, composition, dose, unite, "
                                 "compte * dose as calc, unite  from (")
            + countedBetween(from, to)
            + QLatin1String(
                ") as t, "
                "(select c.article, composition, dose , unite from (select * from DoseStock) as b, "
                "(select * from ArticleStock) as c where b.id = c.id) as d  "
                "where t.article = d.article order by t.article")),
        [](const Rows::Row& row) {
            return ConsumedPart{Rows::text(row, 0), Rows::text(row, 1), Rows::text(row, 2),
                Rows::text(row, 3), Rows::text(row, 4), Rows::text(row, 5), Rows::text(row, 6)};
        });
}

QString Consumption::totalsStatement(const QString& counted)
{
    return QLatin1String("select a.composition, a.calcul, a.unite , "
                         "case a.unite when 'oz' then cast(a.calcul as real)/16 "
                         "when 'fl. oz' then cast(a.calcul as real)/32 end calculconv, "
                         "case a.unite when 'oz' then 'pound' when 'fl. oz' then 'quart' end "
                         "calculunite "
                         "from (select distinct c.composition,sum(c.calc) as calcul, c.unite "
                         "from (select distinct compte, t.article, composition, dose, unite, "
                         "compte * dose as calc, unite   from (")
        + counted
        + QLatin1String(
            ") as t, "
            "(select c.article, composition, dose , unite from (select * from DoseStock) as b, "
            "(select * from ArticleStock) as c where b.id = c.id) as d "
            "where t.article = d.article order by t.article) as c group by c.composition) as a");
}

std::vector<ConsumedTotal> Consumption::totals(const QString& from, const QString& to)
{
    return Rows::values(
        Rows::load(totalsStatement(countedBetween(from, to))), [](const Rows::Row& row) {
            return ConsumedTotal{Rows::text(row, 0), Rows::text(row, 1), Rows::text(row, 2),
                Rows::text(row, 3), Rows::text(row, 4)};
        });
}
