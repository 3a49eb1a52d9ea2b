// SPDX-License-Identifier: MIT
#pragma once

#include "backoffice/sales/TillFigures.h"

#include <QSqlDatabase>
#include <QSqlQuery>

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
    void addStockArticle(const QVariantList& row);
    void addDose(const QVariantList& row);
    /// The sales; \a first is the day before which nothing was read.
    void addCounts(const CountFigures& counts, QDate first);

    /// Lines of a till that are counted already as the till counts them.
    struct Lines
    {
        /// Not valid for all days.
        QDate day;
        int till = 0;
        QString article;
        qint64 lines = 0;
    };
    /// Those of a day stand together, and those of a till's all days.
    void addLines(const std::vector<Lines>& lines);

    /// First of all sales, then of each day; of counted lines, in the order of adding.
    std::vector<Use> uses(const Reading& reading);

private:
    /// What is computed by itself.
    struct Part
    {
        QDate day;
        int till = 0;

        bool operator==(const Part& other) const { return day == other.day && till == other.till; }
        /// Its number in the tables.
        qint64 number() const { return day.isValid() ? day.toJulianDay() : -qint64{till}; }
    };

    void run(const QString& sql);
    void prepare(QSqlQuery& query, const QString& sql);
    static void add(QSqlQuery& to, const QVariantList& row);

    QString connection_;
    QSqlDatabase database_;
    QSqlQuery addStockArticle_;
    QSqlQuery addDose_;
    QSqlQuery addCount_;
    std::vector<Part> parts_;
};
