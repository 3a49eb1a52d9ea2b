// SPDX-License-Identifier: MIT
#pragma once

#include "backoffice/sales/DayRange.h"
#include "base/Handle.h"

#include <QDateTime>
#include <QString>
#include <QTemporaryDir>

#include <cstddef>
#include <string>

#include <sqlite3.h>

/// A shop in a temporary directory that has sold 913 times a day until now: a million sales are
/// three years. 40 articles at one or two prices, three compositions in each recipe.
class BackofficeShop
{
public:
    explicit BackofficeShop(int sales);

    /// Makes the last sale one of an hour ago, so that the till is not at work.
    void rest() const;
    /// Makes the directory the working directory.
    void enter() const;
    QString path() const { return folder_.path(); }
    int sales() const { return sales_; }
    /// All days with a sale, today the last.
    DayRange days() const;

private:
    QTemporaryDir folder_;
    int sales_;
    QDateTime first_;
};

/// How long a file's database was held by one statement of this process at most, of those that are
/// connected to while the object lives.
class LongestStatement
{
public:
    LongestStatement();
    ~LongestStatement();
    LongestStatement(const LongestStatement&) = delete;
    LongestStatement& operator=(const LongestStatement&) = delete;
    LongestStatement(LongestStatement&&) = delete;
    LongestStatement& operator=(LongestStatement&&) = delete;

    static double seconds();
};

/// The least that the figures of a page cost: one statement each, on a connection to the shop of
/// the working directory. All return the number of rows.
class BareSales
{
public:
    BareSales();

    std::size_t hours(const DayRange& days);
    std::size_t articles(const DayRange& days);
    /// The till's own statement for all days and each of them.
    std::size_t uses(const DayRange& days);
    /// Of the last day.
    std::size_t closing(const DayRange& days);

private:
    std::size_t run(const std::string& sql, const DayRange& days);

    Handle<sqlite3, sqlite3_close> connection_;
    Handle<sqlite3_stmt, sqlite3_finalize> statement_;
    std::string sql_;
};
