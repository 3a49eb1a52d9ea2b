// SPDX-License-Identifier: MIT
#include "forms/Compositions.h"

#include "common/Tools.h"

namespace {
DbRows load(const QString& sql)
{
    return Db::DbLoad(sql.toUtf8().constData());
}

/// \a text as SQL wants it between single quotes.
QString quoted(const QString& text)
{
    return QLatin1Char('\'') + Tools::StringDblRating(text.toStdString()) + QLatin1Char('\'');
}
} // namespace

DbRows Compositions::of(const QString& article)
{
    return load(QLatin1String("select * from DoseStock where id = ") + article
        + QLatin1String(" order by composition asc"));
}

void Compositions::add(
    const QString& article, const QString& composition, const QString& dose, const QString& unit)
{
    load(QLatin1String("insert into DoseStock (id, composition, dose, unite) values (") + article
        + QLatin1String(", ") + quoted(composition) + QLatin1String(", ") + dose
        + QLatin1String(", ") + quoted(unit) + QLatin1Char(')'));
}

void Compositions::remove(const QString& line)
{
    load(QLatin1String("delete from DoseStock where idlig = ") + line);
}

void Compositions::move(const QString& line, const QString& article)
{
    load(QLatin1String("update DoseStock set id = ") + article + QLatin1String(" where idlig = ")
        + line);
}
