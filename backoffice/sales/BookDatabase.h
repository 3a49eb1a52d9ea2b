// SPDX-License-Identifier: MIT
#pragma once

#include "backoffice/sales/SalesSource.h"

#include <QCoreApplication>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QVariant>

/// A connection to the database of the central book, to be read only. All functions throw
/// SalesError.
class BookDatabase
{
    Q_DECLARE_TR_FUNCTIONS(BookDatabase)

public:
    using Row = std::function<void(const QSqlQuery&)>;

    /// Connects to \a uri, as PostgreSQL's programs write it, and looks whether a book is there
    /// that this program can read.
    explicit BookDatabase(const QString& uri);
    ~BookDatabase();
    BookDatabase(const BookDatabase&) = delete;
    BookDatabase& operator=(const BookDatabase&) = delete;
    BookDatabase(BookDatabase&&) = delete;
    BookDatabase& operator=(BookDatabase&&) = delete;

    /// Hands each row of \a sql, with \a values for its "?", to \a row. Throws ReadingStopped, too.
    void read(const QString& sql, const QVariantList& values, const Row& row,
        const Reading& reading = {});

    /// While the returned object lives, all is read as it was when the first row was.
    std::shared_ptr<void> hold();

    /// Refuses what is no URI of a database, or one with a password in it.
    static void requireUri(const QString& uri);

private:
    void connect(const QString& uri);
    void run(const QString& sql);
    void requireSchema();
    static SalesError notConnected(const QSqlError& error);
    static SalesError failed(const QSqlError& error);

    QString connection_;
    QSqlDatabase database_;
};
