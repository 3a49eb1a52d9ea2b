// SPDX-License-Identifier: MIT
#include "forms/ArticleTable.h"

#include "common/Tools.h"

namespace {
DbRows load(const QString& sql)
{
    return Db::DbLoad(sql.toUtf8().constData());
}

QString quoted(const QString& text)
{
    return QLatin1Char('\'') + Tools::StringDblRating(text.toStdString()) + QLatin1Char('\'');
}
} // namespace

DbRows ArticleTable::rows()
{
    return Db::DbLoad("select * from Article order by Article asc");
}

DbRows ArticleTable::rowsLike(const QString& term)
{
    return load(QLatin1String("select * from Article where article like ")
        + quoted(QLatin1Char('%') + term + QLatin1Char('%'))
        + QLatin1String(" order by article asc"));
}

void ArticleTable::add(const QString& article, const QString& price)
{
    load(QLatin1String("insert into Article (article, prix) values (") + quoted(article)
        + QLatin1String(", ") + price + QLatin1Char(')'));
}

void ArticleTable::change(const QString& id, const QString& article, const QString& price)
{
    load(QLatin1String("update Article set article = ") + quoted(article)
        + QLatin1String(", prix = ") + price + QLatin1String(" where id = ") + id);
}

void ArticleTable::remove(const QString& id)
{
    load(QLatin1String("delete from Article where id = ") + id);
}
