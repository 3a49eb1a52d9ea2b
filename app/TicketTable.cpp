// SPDX-License-Identifier: MIT
#include "app/TicketTable.h"

#include "common/Tools.h"

namespace {
DbRows load(const QString& sql)
{
    return Db::DbLoad(sql.toUtf8().constData());
}
} // namespace

DbRows TicketTable::rows()
{
    return Db::DbLoad("select * from Ticket");
}

DbRows TicketTable::groups()
{
    return Db::DbLoad("select cpte, article, prix, cpte*prix as calcul from (select count(article) "
                      "as cpte, article, prix from Ticket group by article, prix) as t");
}

DbRows TicketTable::sum()
{
    return Db::DbLoad("select sum(prix) from Ticket");
}

void TicketTable::addArticle(const QString& id)
{
    const DbRows articles = load(QLatin1String("select * from Article where id = ") + id
        + QLatin1String(" order by Article asc"));
    for (const auto& article : articles) {
        load(QLatin1String("insert into Ticket (id, article, prix) values (")
            + QString::fromStdString(article.at(0)) + QLatin1String(", '")
            + Tools::StringDblRating(article.at(1)) + QLatin1String("', ")
            + QString::fromStdString(article.at(2)) + QLatin1String(")"));
    }
}

void TicketTable::addAmount(const QString& amount)
{
    load(QLatin1String("insert into Ticket(id, article, prix) values (0, '----', ") + amount
        + QLatin1String(")"));
}

void TicketTable::remove(const QString& line)
{
    load(QLatin1String("delete from Ticket where idlig = ") + line);
}

void TicketTable::clear()
{
    Db::DbLoad("delete from Ticket");
}
