// SPDX-License-Identifier: MIT
#pragma once

#include "db/Db.h"

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

/// A shop of its own for one test: a temporary working directory with a fresh database, left again
/// at the end.
class Shop
{
public:
    enum class Database
    {
        Fresh,
        None
    };

    explicit Shop(Database database = Database::Fresh);
    ~Shop();
    Shop(const Shop&) = delete;
    Shop& operator=(const Shop&) = delete;
    Shop(Shop&&) = delete;
    Shop& operator=(Shop&&) = delete;

    /// Runs \a sql on the shop's database and returns its rows.
    DbRows sql(const char* sql) const;

    /// Runs all statements of \a sql, parted by ";"; ends the test program when one fails.
    void fill(const char* sql) const;

    /// The first cell of sql(), empty when there is no row.
    QString cell(const char* sql) const;

    /// Writes \a bytes into the file \a name of the working directory.
    void write(const QString& name, const QByteArray& bytes) const;

    /// The bytes of the file \a name of the working directory.
    QByteArray read(const QString& name) const;

    /// The shop's directory.
    QString path() const { return folder_.path(); }

private:
    QString before_;
    QTemporaryDir folder_;
};
