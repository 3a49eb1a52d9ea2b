// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <array>

/// Every statement that the back office runs on the till's database. "%1" is where a portion of the
/// history begins and ends.
namespace TillStatements {
/// What keeps a database from acting on its own.
inline constexpr std::array settings{
    "pragma trusted_schema = off", "pragma cell_size_check = on", "pragma mmap_size = 0"};

/// What the database consists of.
inline QString objects()
{
    return QStringLiteral("select type, name, tbl_name, sql from sqlite_master");
}

/// Changes with every change that another program makes.
inline QString dataVersion() { return QStringLiteral("pragma data_version"); }

inline QString schemaVersion() { return QStringLiteral("pragma schema_version"); }

/// The line that was recorded last, whatever the clock said.
inline QString lastRecorded()
{
    return QStringLiteral("select rowid, date_heure from Historique order by rowid desc limit 1");
}

/// The moment of a line.
inline QString momentOf()
{
    return QStringLiteral("select date_heure from Historique where rowid = ?");
}

/// How many lines behind a row are from a moment to before another.
inline QString laterLines()
{
    return QStringLiteral("select count(*) from Historique where rowid > ? and "
                          "+date_heure >= ? and +date_heure < ?");
}

/// The moment behind a number of lines between two moments.
inline QString momentBehind()
{
    return QStringLiteral("select date_heure from Historique where date_heure >= ? and "
                          "date_heure < ? order by date_heure limit 1 offset ?");
}

/// The first moment between two moments, both excluded.
inline QString nextMoment()
{
    return QStringLiteral(
        "select min(date_heure) from Historique where date_heure > ? and date_heure < ?");
}

/// Of one moment, the line that follows a row at a distance.
inline QString rowBehind()
{
    return QStringLiteral("select rowid from Historique where date_heure = ? and rowid > ? "
                          "order by rowid limit 1 offset ?");
}

/// Lines from a moment to before another.
inline QString betweenMoments() { return QStringLiteral("date_heure >= ? and date_heure < ?"); }

/// Lines of one moment, from behind a row through another.
inline QString betweenRows()
{
    return QStringLiteral("date_heure = ? and rowid > ? and rowid <= ?");
}

inline QString lines() { return QStringLiteral("select count(*) from Historique where %1"); }

/// Hour, takings; as in all statements below, the number of lines is last.
inline QString hours()
{
    return QStringLiteral("select substr(date_heure, 1, 13), "
                          "sum(cast(round(prix * 10000) as integer)), "
                          "count(*) "
                          "from Historique where %1 group by 1");
}

/// Article, takings.
inline QString articles()
{
    return QStringLiteral("select article collate binary, "
                          "sum(cast(round(prix * 10000) as integer)), "
                          "count(*) "
                          "from Historique where %1 group by 1");
}

/// Day, article, price.
inline QString counts()
{
    return QStringLiteral("select substr(date_heure, 1, 10), article collate binary, prix, "
                          "count(*) "
                          "from Historique where %1 group by 1, 2, 3");
}

/// The first rows behind a key.
inline QString menu()
{
    return QStringLiteral("select id, article, cast(round(prix * 10000) as integer) from Article "
                          "where id > ? order by id limit 1000");
}
inline QString stockArticles()
{
    return QStringLiteral(
        "select id, article from ArticleStock where id > ? order by id limit 1000");
}
inline QString doses()
{
    return QStringLiteral("select idlig, id, composition, dose, unite from DoseStock "
                          "where idlig > ? order by idlig limit 1000");
}

inline QString taxRate()
{
    return QStringLiteral("select valeur from Config where param like 'TVA' order by id limit 1");
}

/// What the till's statement of the consumption looks at, in memory: the stock as it is, and the
/// sales counted by day; the day 0 is all days.
inline constexpr std::array useTables{"create table ArticleStock (id integer primary key not null, "
                                      "article text collate nocase not null)",
    "create table DoseStock (idlig integer primary key not null, id integer not null, "
    "composition text collate nocase not null, dose numeric not null, unite text not null)",
    "create table Ventes (jour integer not null, article text collate nocase not null, "
    "prix numeric not null, compte integer not null, "
    "primary key (jour, article, prix)) without rowid"};

inline QString addStockArticle()
{
    return QStringLiteral("insert into ArticleStock values (?, ?)");
}

inline QString addDose() { return QStringLiteral("insert into DoseStock values (?, ?, ?, ?, ?)"); }

inline QString addCount()
{
    return QStringLiteral("insert into Ventes values (?, ?, ?, ?) on conflict "
                          "do update set compte = compte + excluded.compte");
}

inline QString addAllDays()
{
    return QStringLiteral("insert into Ventes select 0, article, prix, sum(compte) from Ventes "
                          "group by article, prix");
}

/// The sales of a day, given twice, counted as on the till. With "between", as on the till, SQLite
/// expects many rows and looks each up by an index.
inline QString countedSales()
{
    return QStringLiteral("select distinct compte, article from Ventes where jour between ? and ?");
}
} // namespace TillStatements
