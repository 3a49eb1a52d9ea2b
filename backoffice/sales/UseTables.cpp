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
        run(QLatin1String(table));
    }
    prepare(addStockArticle_, TillStatements::addStockArticle());
    prepare(addDose_, TillStatements::addDose());
    prepare(addCount_, TillStatements::addCount());
}

UseTables::~UseTables()
{
    for (QSqlQuery* query : {&addStockArticle_, &addDose_, &addCount_}) {
        *query = QSqlQuery();
    }
    database_ = QSqlDatabase();
    QSqlDatabase::removeDatabase(connection_);
}

void UseTables::run(const QString& sql)
{
    QSqlQuery query(database_);
    require(query.exec(sql), query);
}

void UseTables::prepare(QSqlQuery& query, const QString& sql)
{
    query = QSqlQuery(database_);
    require(query.prepare(sql), query);
}

void UseTables::add(QSqlQuery& to, const QVariantList& row)
{
    for (int place = 0; place < row.size(); ++place) {
        to.bindValue(place, row.at(place));
    }
    require(to.exec(), to);
}

void UseTables::addStockArticle(const QVariantList& row) { add(addStockArticle_, row); }

void UseTables::addDose(const QVariantList& row) { add(addDose_, row); }

void UseTables::addCounts(const CountFigures& counts, QDate first)
{
    database_.transaction();
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
        add(addCount_, {part.number(), count.article, count.price, count.lines});
    }
    run(TillStatements::addAllDays());
    database_.commit();
}

void UseTables::addLines(const std::vector<Lines>& lines)
{
    database_.transaction();
    for (const Lines& sold : lines) {
        const Part part{sold.day, sold.till};
        if (parts_.empty() || !(parts_.back() == part)) {
            parts_.push_back(part);
        }
        add(addCount_, {part.number(), sold.article, 0, sold.lines});
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
