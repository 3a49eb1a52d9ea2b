// SPDX-License-Identifier: MIT
#pragma once

#include "backoffice/sales/SalesSource.h"
#include "backoffice/sales/TillPace.h"

#include <QCoreApplication>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QVariant>

#include <map>

/// The till's database, to be read only. It is opened when it is first needed, and again when
/// another file has taken its place. All functions throw SalesError.
class TillDatabase
{
    Q_DECLARE_TR_FUNCTIONS(TillDatabase)

public:
    /// The file was replaced while it was read: what was read so far is of another database.
    class Replaced : public std::exception
    { };

    /// What changes with the content.
    struct State
    {
        /// Another number for each file that was opened.
        int file = 0;
        qint64 version = 0;

        bool operator==(const State& other) const
        {
            return file == other.file && version == other.version;
        }
    };

    using Row = std::function<void(const QSqlQuery&)>;

    /// The database in the data folder \a folder.
    TillDatabase(const QString& folder, Timing timing);
    ~TillDatabase();
    TillDatabase(const TillDatabase&) = delete;
    TillDatabase& operator=(const TillDatabase&) = delete;
    TillDatabase(TillDatabase&&) = delete;
    TillDatabase& operator=(TillDatabase&&) = delete;

    /// Opens or reopens the database where needed, and says what state it is in.
    State state(const Reading& reading);

    /// Hands each row of \a sql, with \a values for its "?", to \a row. While the till writes, it
    /// waits a while. To be preceded by state(). Throws Replaced and ReadingStopped, too.
    void read(
        const QString& sql, const QVariantList& values, const Row& row, const Reading& reading);

    /// Whether the till writes, or has written in the last few seconds.
    bool isTillAtWork() const;

private:
    /// Which file it is; 0 and 0 for none.
    struct Identity
    {
        quint64 device = 0;
        quint64 inode = 0;

        bool operator==(const Identity& other) const
        {
            return device == other.device && inode == other.inode;
        }
    };

    Identity identity() const;
    void requireFile() const;
    void requireNoWal() const;
    void open(const Reading& reading);
    void close();
    void requireOwn(const Reading& reading);
    qint64 number(const QString& pragma, const Reading& reading);
    int attempt(const QString& sql, const QVariantList& values, const Row& row);
    int failed(const QSqlQuery& query);
    [[noreturn]] void fail(int code) const;

    QString folder_;
    QString path_;
    Timing timing_;
    QString connection_;
    QSqlDatabase database_;
    std::map<QString, QSqlQuery> queries_;
    QString lastError_;
    Identity opened_;
    int file_ = 0;
    qint64 schema_ = 0;
};
