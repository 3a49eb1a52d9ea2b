// SPDX-License-Identifier: MIT
#pragma once

#include "backoffice/sales/SalesSlice.h"
#include "backoffice/sales/SalesSource.h"

#include <QSet>
#include <QVariant>

#include <map>

/// The day that \a text, the beginning of a moment, is of; not valid for none.
QDate dayOf(const QString& text);

/// The hour that \a text has behind its day, -1 for none.
int hourOf(const QString& text);

/// \a name as SQLite compares names: without the case of A to Z.
QString folded(QString name);

/// What is read of the history: the rows of a statement, added up. Behind the statement's own
/// columns follows the number of lines.

/// Takings by hour.
class HourFigures
{
public:
    static constexpr int columns = 2;
    static QString statement();
    void add(const QSqlQuery& row);
    /// Appends \a later, which was read of a later time.
    void add(const HourFigures& later);
    /// \a first is the day before which nothing was read.
    std::vector<HourSales> result(QDate first) const;

private:
    void add(const HourSales& sales);

    /// In the order of time; -1 is no hour, an invalid day is none.
    std::vector<HourSales> hours_;
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

/// Numbers of lines by day, article and price, in the order of time; a key may come twice.
class CountFigures
{
public:
    struct Count
    {
        /// Not valid for a text that the till has not written.
        QDate day;
        QString article;
        QVariant price;
        qint64 lines = 0;
    };

    static constexpr int columns = 3;
    static QString statement();
    void add(const QSqlQuery& row);
    void add(const CountFigures& later);
    const std::vector<Count>& result() const { return counts_; }

private:
    std::vector<Count> counts_;
    /// The articles' names, so that counts share them.
    QSet<QString> names_;
};
