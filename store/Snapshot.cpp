// SPDX-License-Identifier: MIT
#include "store/Snapshot.h"

#include "store/Rows.h"

#include <utility>

namespace {
/// An expression: all rows of the tables as one text.
QString contents(Snapshot::Part part)
{
    const QLatin1String menu("coalesce((select group_concat(quote(id) || quote(article) || "
                             "quote(prix)) from (select * from Article order by id)), '')");
    const QLatin1String recipes(
        " || '/' || coalesce((select group_concat(quote(id)) from (select * from ArticleStock "
        "order by id)), '') || '/' || coalesce((select group_concat(quote(idlig) || ' ' || "
        "quote(id) || quote(composition) || quote(dose) || quote(unite)) from (select * from "
        "DoseStock order by idlig)), '')");
    return part == Snapshot::Part::Menu ? QString(menu) : menu + recipes;
}
} // namespace

std::optional<Snapshot> Snapshot::of(Part part)
{
    const QLatin1String lines(part == Part::Menu ? "" : " + (select count(*) from DoseStock)");
    const DbRows rows = Rows::load(QLatin1String("select (select count(*) from Article)") + lines
        + QLatin1String(", ") + contents(part));
    if (rows.empty()) {
        return std::nullopt;
    }
    const Rows::Row& row = rows.front();
    return Snapshot(part, std::stoull(row.at(0)), Rows::text(row, 1));
}

Snapshot::Snapshot(Part part, std::size_t rows, QString text)
    : part_(part)
    , rows_(rows)
    , text_(std::move(text))
{ }

std::string Snapshot::requireUnchanged() const
{
    // An article has a name: without one, SQLite refuses the row that a change would add.
    const QString statement
        = QLatin1String("insert into Article (article, prix) select null, 0 where ")
        + contents(part_) + QLatin1String(" <> ") + Rows::quoted(text_);
    return statement.toStdString();
}
