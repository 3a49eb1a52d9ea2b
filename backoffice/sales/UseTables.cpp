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

void UseTables::addStockArticle(const QVariantList& row)
{
    run(TillStatements::addStockArticle(), row);
}

void UseTables::addDose(const QVariantList& row) { run(TillStatements::addDose(), row); }

void UseTables::addCounts(const CountFigures& counts, QDate first)
{
    database_.transaction();
    QSqlQuery query(database_);
    require(query.prepare(TillStatements::addCount()), query);
    parts_.push_back({QDate(), 0});
    QDate day = first;
    for (const CountFigures::Count& count : counts.result()) {
        if (count.day.isValid() && count.day > day) {
            day = count.day;
        }
        const Part part{day, 0};
        if (!(parts_.back() == part)) {
            parts_.push_back(part);
        }
        query.bindValue(0, part.number());
        query.bindValue(1, count.article);
        query.bindValue(2, count.price);
        query.bindValue(3, count.lines);
        require(query.exec(), query);
    }
    run(TillStatements::addAllDays(), {});
    database_.commit();
}

void UseTables::addLines(const std::vector<Lines>& lines)
{
    database_.transaction();
    QSqlQuery query(database_);
    require(query.prepare(TillStatements::addCount()), query);
    for (const Lines& sold : lines) {
        const Part part{sold.day, sold.till};
        if (parts_.empty() || !(parts_.back() == part)) {
            parts_.push_back(part);
        }
        query.bindValue(0, part.number());
        query.bindValue(1, sold.article);
        query.bindValue(2, 0);
        query.bindValue(3, sold.lines);
        require(query.exec(), query);
    }
    database_.commit();
}

std::vector<Use> UseTables::uses(const Reading& reading)
{
    std::vector<Use> uses;
    QSqlQuery query(database_);
    query.setForwardOnly(true);
    require(query.prepare(Consumption::totalsStatement(TillStatements::countedSales())), query);
    for (const Part& part : parts_) {
        query.bindValue(0, part.number());
        query.bindValue(1, part.number());
        require(query.exec(), query);
        while (query.next()) {
            uses.push_back({part.day, query.value(0).toString(), query.value(1).toDouble(),
                query.value(2).toString(), query.value(3).toDouble(), query.value(4).toString(),
                part.till});
        }
        reading.advance(1);
    }
    return uses;
}
