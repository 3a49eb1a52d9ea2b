// SPDX-License-Identifier: MIT
#include "bench/BackofficeShop.h"

#include "bench/Support.h"
#include "db/Db.h"
#include "store/Consumption.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <chrono>

#include <benchmark/benchmark.h>

namespace {
using Clock = std::chrono::steady_clock;

constexpr qint64 msOfASale = 94608;

constexpr auto hoursSql
    = "select substr(date_heure, 1, 13), count(*), sum(cast(round(prix * 10000) as integer)) "
      "from Historique where date_heure between ? and ? group by 1";
constexpr auto articlesSql = "select article, count(*), sum(cast(round(prix * 10000) as integer)) "
                             "from Historique where date_heure between ? and ? group by 1";

Clock::time_point statementBegin;
double longestSeconds = 0;

int note(unsigned event, void* connection, void*, void*)
{
    const char* const file = sqlite3_db_filename(static_cast<sqlite3*>(connection), "main");
    const bool isTills = file != nullptr && *file != '\0';
    if (isTills && event == SQLITE_TRACE_STMT) {
        statementBegin = Clock::now();
    } else if (isTills) {
        const std::chrono::duration<double> taken = Clock::now() - statementBegin;
        longestSeconds = std::max(longestSeconds, taken.count());
    }
    return 0;
}

int watch(sqlite3* connection, const char**, const struct sqlite3_api_routines*)
{
    return sqlite3_trace_v2(connection, SQLITE_TRACE_STMT | SQLITE_TRACE_PROFILE, note, connection);
}

/// SQLite calls its extensions with the arguments of watch().
void (*watcher())() { return reinterpret_cast<void (*)()>(watch); }
} // namespace

LongestStatement::LongestStatement()
{
    longestSeconds = 0;
    sqlite3_auto_extension(watcher());
}

LongestStatement::~LongestStatement() { sqlite3_cancel_auto_extension(watcher()); }

double LongestStatement::seconds() { return longestSeconds; }

BackofficeShop::BackofficeShop(int sales)
    : sales_(sales)
    , first_(QDateTime::currentDateTime().addMSecs(-msOfASale * (sales - 1)))
{
    enter();
    Db::DbCreate();
    const QString insertion = QStringLiteral(
        "insert into Historique with recursive sale(n) as (select 0 union all select n + 1 "
        "from sale where n < %1 - 1) select n * 17 % 40, 'Boisson ' || (n * 17 % 40), 2 + (n "
        "% 7 = 0), strftime('%Y-%m-%d %H:%M:%f', '%2', (n * 94.608) || ' seconds') from sale");
    Db::DbLoad(insertion.arg(sales)
                   .arg(first_.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss.zzz")))
                   .toUtf8()
                   .constData());
    Db::DbLoad("insert into Article select distinct id, article, 2 from Historique");
    Db::DbLoad("insert into ArticleStock select id, article from Article");
    Db::DbLoad("insert into DoseStock (id, composition, dose, unite) select id, 'Composition ' "
               "|| ((id * 3 + part) % 25), 1.5 + part, case part when 0 then 'oz' else 'cl' end "
               "from ArticleStock, (select 0 as part union select 1 union select 2)");
    rest();
}

void BackofficeShop::rest() const
{
    constexpr int hour = 3600;
    QFile file(folder_.filePath(QStringLiteral("Vendel.db")));
    check(file.open(QIODevice::ReadWrite)
            && file.setFileTime(
                QDateTime::currentDateTime().addSecs(-hour), QFileDevice::FileModificationTime),
        "the time of the last sale");
}

void BackofficeShop::enter() const
{
    check(QDir::setCurrent(folder_.path()), "temporary directory");
}

DayRange BackofficeShop::days() const { return {first_.date(), QDate::currentDate()}; }

BareSales::BareSales()
{
    sqlite3* handle = nullptr;
    check(
        sqlite3_open_v2("Vendel.db", &handle, SQLITE_OPEN_READONLY, nullptr) == SQLITE_OK, "open");
    connection_.reset(handle);
    check(
        sqlite3_exec(handle, "select * from sqlite_master", nullptr, nullptr, nullptr) == SQLITE_OK,
        "tables");
}

/// \a sql from the first to the last of \a days.
std::size_t BareSales::run(const std::string& sql, const DayRange& days)
{
    if (sql != sql_) {
        sqlite3_stmt* handle = nullptr;
        check(sqlite3_prepare_v2(connection_.get(), sql.c_str(), -1, &handle, nullptr) == SQLITE_OK,
            sqlite3_errmsg(connection_.get()));
        statement_.reset(handle);
        sql_ = sql;
    }
    const std::string first = days.first.toString(Qt::ISODate).toStdString();
    const std::string last = days.last.toString(Qt::ISODate).toStdString() + " 23:59:59.999";
    sqlite3_bind_text(statement_.get(), 1, first.c_str(), -1, SQLITE_TRANSIENT);
    sqlite3_bind_text(statement_.get(), 2, last.c_str(), -1, SQLITE_TRANSIENT);
    std::size_t rows = 0;
    while (sqlite3_step(statement_.get()) == SQLITE_ROW) {
        for (int column = 0; column < sqlite3_column_count(statement_.get()); ++column) {
            benchmark::DoNotOptimize(sqlite3_column_text(statement_.get(), column));
        }
        ++rows;
    }
    sqlite3_reset(statement_.get());
    check(rows > 0, "sales");
    return rows;
}

std::size_t BareSales::hours(const DayRange& days) { return run(hoursSql, days); }

std::size_t BareSales::articles(const DayRange& days) { return run(articlesSql, days); }

std::size_t BareSales::uses(const DayRange& days)
{
    static const std::string sql = Consumption::totalsStatement(
        QStringLiteral("select distinct count(article) as compte, article from Historique "
                       "where date_heure between ? and ? group by article, prix"))
                                       .toStdString();
    std::size_t rows = run(sql, days);
    for (QDate day = days.first; day <= days.last; day = day.addDays(1)) {
        rows += run(sql, {day, day});
    }
    return rows;
}

std::size_t BareSales::closing(const DayRange& days)
{
    const DayRange day{days.last, days.last};
    return run(hoursSql, day) + run(articlesSql, day);
}
