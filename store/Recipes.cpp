// SPDX-License-Identifier: MIT
#include "store/Recipes.h"

#include "store/Rows.h"

namespace {
std::vector<RecipeLine> read(DbRows rows)
{
    return Rows::values(std::move(rows), [](const Rows::Row& row) {
        return RecipeLine{Rows::text(row, 0), Rows::text(row, 1), Rows::text(row, 2),
            Rows::text(row, 3), Rows::text(row, 4)};
    });
}
} // namespace

std::vector<RecipeLine> Recipes::of(const QString& article)
{
    return read(Rows::load(QLatin1String("select * from DoseStock where id = ") + article
        + QLatin1String(" order by composition asc")));
}

std::vector<RecipeLine> Recipes::all()
{
    return read(Db::DbLoad("select * from DoseStock order by idlig asc"));
}

void Recipes::add(
    const QString& article, const QString& composition, const QString& dose, const QString& unit)
{
    Rows::load(adding(article, composition, dose, unit));
}

QString Recipes::adding(
    const QString& article, const QString& composition, const QString& dose, const QString& unit)
{
    return QLatin1String("insert into DoseStock (id, composition, dose, unite) values (") + article
        + QLatin1String(", ") + Rows::quoted(composition) + QLatin1String(", ") + dose
        + QLatin1String(", ") + Rows::quoted(unit) + QLatin1Char(')');
}

QString Recipes::dosing(const QString& line, const QString& dose, const QString& unit)
{
    return QLatin1String("update DoseStock set dose = ") + dose + QLatin1String(", unite = ")
        + Rows::quoted(unit) + QLatin1String(" where idlig = ") + line;
}

void Recipes::remove(const QString& line)
{
    Rows::load(QLatin1String("delete from DoseStock where idlig = ") + line);
}

void Recipes::move(const QString& line, const QString& article)
{
    Rows::load(QLatin1String("update DoseStock set id = ") + article
        + QLatin1String(" where idlig = ") + line);
}
