// SPDX-License-Identifier: MIT
#pragma once

#include "base/Descriptor.h"
#include "central/Sender.h"

#include <QStringList>
#include <QTemporaryDir>

#include <memory>

/// How the command vendel-central ended, and what it said.
struct Said
{
    int status = -1;
    QString output;
    QString errors;
};

/// A till with a database of its own, and what it sends.
class SoldTill
{
public:
    SoldTill();

    /// Runs \a sql, statements parted by ";", as the till would; ends the test when one fails.
    void sql(const QString& sql) const;
    /// The rows of \a sql, cells joined by "|".
    QStringList rows(const QString& sql) const;
    /// Sells \a article at \a price at \a moment.
    void sell(const QString& moment, const QString& article = "Thé", const QString& price = "2.5",
        int id = 1) const;
    /// What the history holds, as it has to be in the book, sorted.
    QStringList lines() const;
    /// The same of the book \a database, of the till \a till of it.
    static QStringList bookLines(const std::string& database, int till = 1);
    /// What the sums of the book \a database have too much or too little; empty when they are
    /// those of its lines.
    static QStringList wrongSums(const std::string& database);

    /// Sends to \a database in this process.
    std::int64_t send(const std::string& database, Sender::Depth depth = Sender::Depth::All) const;

    /// Runs the command with \a arguments, and "--dossier" unless it prepares.
    Said command(QStringList arguments) const;
    /// Starts the command; the process.
    pid_t start(QStringList arguments) const;
    /// Sends to the URI \a uri with the command; what it said.
    Said sendTo(const std::string& uri) const
    {
        return command({"--envoyer", QString::fromStdString(uri)});
    }

    QString path() const { return folder_.path(); }
    QString file() const { return path() + "/Vendel.db"; }

    /// Clocks without pauses.
    static Timing hasty();
    /// Clocks by which \a till is always at work, so that reading pauses after each portion, and no
    /// portion takes long.
    static Timing pausing(const SoldTill& till);

private:
    QTemporaryDir folder_;
};
