// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QTemporaryFile>

/// Collects what the process writes on standard output while it lives; a failed test's output is
/// passed on at the end, its report being part of it.
class CapturedOutput
{
public:
    CapturedOutput();
    ~CapturedOutput();
    CapturedOutput(const CapturedOutput&) = delete;
    CapturedOutput& operator=(const CapturedOutput&) = delete;
    CapturedOutput(CapturedOutput&&) = delete;
    CapturedOutput& operator=(CapturedOutput&&) = delete;

    /// All that was written so far, without what Qt Test itself reports.
    QByteArray text();

private:
    QTemporaryFile file_;
    int before_;
};

/// The line that the database writes on standard output when SQLite refuses \a sql for \a reason.
QByteArray databaseReport(const QByteArray& sql, const QByteArray& reason);

/// Collects the Qt log while it lives; the lines do not reach the test's own log.
class CapturedLog
{
public:
    CapturedLog();
    ~CapturedLog();
    CapturedLog(const CapturedLog&) = delete;
    CapturedLog& operator=(const CapturedLog&) = delete;
    CapturedLog(CapturedLog&&) = delete;
    CapturedLog& operator=(CapturedLog&&) = delete;

    /// Messages of each kind in order.
    QStringList criticals() const;
    QStringList warnings() const;
    QStringList debugs() const;

private:
    QtMessageHandler before_;
};
