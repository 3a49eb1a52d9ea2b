// SPDX-License-Identifier: MIT
#include "store/Consumption.h"

#include "store/Rows.h"

namespace {
/// \a head, the two dates as a "between" test, and \a tail, run as one statement.
DbRows load(const char* head, const QString& from, const QString& to, const char* tail)
{
    return Rows::load(QLatin1String(head) + Rows::quoted(from) + QLatin1String(" and ")
        + Rows::quoted(to) + QLatin1String(tail));
}
} // namespace

std::vector<ConsumedPart> Consumption::details(const QString& from, const QString& to)
{
    return Rows::values(
        load("select distinct compte, t.article, composition, dose, unite, "
             "compte * dose as calc, unite  "
             "from (select distinct count(article) as compte, article from Historique "
             "where date_heure between ",
            from, to,
            " group by article, prix) as t, "
            "(select c.article, composition, dose , unite from (select * from DoseStock) as b, "
            "(select * from ArticleStock) as c where b.id = c.id) as d  "
            "where t.article = d.article order by t.article"),
        [](const Rows::Row& row) {
            return ConsumedPart{Rows::text(row, 0), Rows::text(row, 1), Rows::text(row, 2),
                Rows::text(row, 3), Rows::text(row, 4), Rows::text(row, 5), Rows::text(row, 6)};
        });
}

std::vector<ConsumedTotal> Consumption::totals(const QString& from, const QString& to)
{
    return Rows::values(
        load("select a.composition, a.calcul, a.unite , "
             "case a.unite when 'oz' then cast(a.calcul as real)/16 "
             "when 'fl. oz' then cast(a.calcul as real)/32 end calculconv, "
             "case a.unite when 'oz' then 'pound' when 'fl. oz' then 'quart' end calculunite "
             "from (select distinct c.composition,sum(c.calc) as calcul, c.unite "
             "from (select distinct compte, t.article, composition, dose, unite, "
             "compte * dose as calc, unite   "
             "from (select distinct count(article) as compte, article from Historique "
             "where date_heure between ",
            from, to,
            " group by article, prix) as t, "
            "(select c.article, composition, dose , unite from (select * from DoseStock) as b, "
            "(select * from ArticleStock) as c where b.id = c.id) as d "
            "where t.article = d.article order by t.article) as c group by c.composition) as a"),
        [](const Rows::Row& row) {
            return ConsumedTotal{Rows::text(row, 0), Rows::text(row, 1), Rows::text(row, 2),
                Rows::text(row, 3), Rows::text(row, 4)};
        });
}
