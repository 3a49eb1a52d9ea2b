// SPDX-License-Identifier: MIT
#pragma once

#include "backoffice/sales/TillFigures.h"

#include <QSqlDatabase>

/// A database in memory, in which the till's own statement computes what the recipes used.
class UseTables
{
public:
    UseTables();
    ~UseTables();
    UseTables(const UseTables&) = delete;
    UseTables& operator=(const UseTables&) = delete;
    UseTables(UseTables&&) = delete;
    UseTables& operator=(UseTables&&) = delete;

    /// A row of the till's table ArticleStock, of DoseStock.
    void addStockArticle(const QSqlQuery& row);
    void addDose(const QSqlQuery& row);
    /// The sales; \a first is the day before which nothing was read.
    void addCounts(const CountFigures& counts, QDate first);

    /// First of all sales, then of each day.
    std::vector<Use> uses(const Reading& reading);

private:
    void run(const QString& sql, const QVariantList& values);
    QString connection_;
    QSqlDatabase database_;
    std::vector<QDate> days_;
};
