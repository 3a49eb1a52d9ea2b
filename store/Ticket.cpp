// SPDX-License-Identifier: MIT
#include "store/Ticket.h"

#include "common/Tools.h"
#include "store/Rows.h"

std::vector<TicketLine> Ticket::lines()
{
    return Rows::values(Db::DbLoad("select * from Ticket"), [](const Rows::Row& row) {
        return TicketLine{
            Rows::text(row, 0), Rows::text(row, 1), Rows::text(row, 2), Rows::text(row, 3)};
    });
}

std::vector<TicketGroup> Ticket::groups()
{
    return Rows::values(
        Db::DbLoad("select cpte, article, prix, cpte*prix as calcul from (select count(article) as "
                   "cpte, article, prix from Ticket group by article, prix) as t"),
        [](const Rows::Row& row) {
            return TicketGroup{
                Rows::text(row, 0), Rows::text(row, 1), Rows::text(row, 2), Rows::text(row, 3)};
        });
}

QString Ticket::sum() { return Rows::text(Db::DbLoad("select sum(prix) from Ticket").at(0), 0); }

void Ticket::addArticle(const QString& id)
{
    const DbRows articles = Rows::load(QLatin1String("select * from Article where id = ") + id
        + QLatin1String(" order by Article asc"));
    for (const Rows::Row& article : articles) {
        Rows::load(QLatin1String("insert into Ticket (id, article, prix) values (")
            + Rows::text(article, 0) + QLatin1String(", '") + Tools::StringDblRating(article.at(1))
            + QLatin1String("', ") + Rows::text(article, 2) + QLatin1String(")"));
    }
}

void Ticket::addAmount(const QString& amount)
{
    Rows::load(QLatin1String("insert into Ticket(id, article, prix) values (0, '----', ") + amount
        + QLatin1String(")"));
}

void Ticket::remove(const QString& line)
{
    Rows::load(QLatin1String("delete from Ticket where idlig = ") + line);
}

void Ticket::clear() { Db::DbLoad("delete from Ticket"); }
