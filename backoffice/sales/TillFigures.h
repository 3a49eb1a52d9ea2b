// SPDX-License-Identifier: MIT
#pragma once

#include "backoffice/sales/SalesSlice.h"
#include "backoffice/sales/SalesSource.h"

#include <QVariant>

#include <map>

/// The day that \a text, the beginning of a moment, is of; \a before, the day of the text before
/// it, when it names none.
QDate dayOf(const QString& text, QDate before);

/// \a name as SQLite compares names: without the case of A to Z.
QString folded(QString name);

/// What is read of the history: the rows of a statement, added up. Behind the statement's own
/// columns follow the number of lines and the sum of TillStatements::trace().

/// Takings by the first 13 characters of a moment: "2026-11-22 09".
class HourFigures
{
public:
    static constexpr int columns = 2;
    static QString statement();
    void add(const QSqlQuery& row);
    void add(const HourFigures& other);
    /// \a first is the day before which nothing was read.
    std::vector<HourSales> result(QDate first) const;

private:
    struct Sum
    {
        qint64 lines = 0;
        Amount takings = 0;
    };
    std::map<QString, Sum> sums_;
};

/// Takings by article.
class ArticleFigures
{
public:
    static constexpr int columns = 2;
    static QString statement();
    void add(const QSqlQuery& row);
    void add(const ArticleFigures& other);
    std::vector<ArticleSales> result() const;

private:
    void add(const ArticleSales& sales);
    /// By the name in small letters.
    std::map<QString, ArticleSales> sums_;
};

/// Numbers of lines by day, article and price, in the order of the days; a key may come twice.
class CountFigures
{
public:
    struct Count
    {
        QString day;
        QString article;
        QVariant price;
        qint64 lines = 0;
    };

    static constexpr int columns = 3;
    static QString statement();
    void add(const QSqlQuery& row);
    void add(const CountFigures& other);
    const std::vector<Count>& result() const { return counts_; }

private:
    std::vector<Count> counts_;
};
