// SPDX-License-Identifier: MIT
#include "backoffice/sales/UseTables.h"

#include "backoffice/sales/TillStatements.h"
#include "store/Consumption.h"

#include <QSqlError>
#include <QSqlQuery>
#include <QUuid>

#include <algorithm>

namespace {
void require(bool isDone, const QSqlQuery& query)
{
    if (!isDone) {
        throw SalesError(query.lastError().text());
    }
}
} // namespace

UseTables::UseTables()
    : connection_(QStringLiteral("uses ") + QUuid::createUuid().toString())
    , database_(QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connection_))
{
    database_.setDatabaseName(QStringLiteral(":memory:"));
    database_.open();
    for (const char* table : TillStatements::useTables) {
        run(QLatin1String(table), {});
    }
}

UseTables::~UseTables()
{
    database_ = QSqlDatabase();
    QSqlDatabase::removeDatabase(connection_);
}

void UseTables::run(const QString& sql, const QVariantList& values)
{
    QSqlQuery query(database_);
    require(query.prepare(sql), query);
    for (const QVariant& value : values) {
        query.addBindValue(value);
    }
    require(query.exec(), query);
}

void UseTables::addStockArticle(const QSqlQuery& row)
{
    run(TillStatements::addStockArticle(), {row.value(0), row.value(1)});
}

void UseTables::addDose(const QSqlQuery& row)
{
    run(TillStatements::addDose(),
        {row.value(0), row.value(1), row.value(2), row.value(3), row.value(4)});
}

void UseTables::addCounts(const CountFigures& counts, QDate first)
{
    database_.transaction();
    QSqlQuery query(database_);
    require(query.prepare(TillStatements::addCount()), query);
    QDate day = first;
    for (const CountFigures::Count& count : counts.result()) {
        if (count.day.isValid() && count.day > day) {
            day = count.day;
        }
        if (days_.empty() || days_.back() != day) {
            days_.push_back(day);
        }
        query.bindValue(0, day.toJulianDay());
        query.bindValue(1, count.article);
        query.bindValue(2, count.price);
        query.bindValue(3, count.lines);
        require(query.exec(), query);
    }
    run(TillStatements::addAllDays(), {});
    database_.commit();
}

std::vector<Use> UseTables::uses(const Reading& reading)
{
    std::vector<Use> uses;
    QSqlQuery query(database_);
    query.setForwardOnly(true);
    require(query.prepare(Consumption::totalsStatement(TillStatements::countedSales())), query);
    const auto add = [&](QDate day) {
        const qint64 number = day.isValid() ? day.toJulianDay() : 0;
        query.bindValue(0, number);
        query.bindValue(1, number);
        require(query.exec(), query);
        while (query.next()) {
            uses.push_back({day, query.value(0).toString(), query.value(1).toDouble(),
                query.value(2).toString(), query.value(3).toDouble(), query.value(4).toString(),
                0});
        }
        reading.advance(1);
    };
    add(QDate());
    std::for_each(days_.begin(), days_.end(), add);
    return uses;
}
