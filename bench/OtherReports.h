// SPDX-License-Identifier: MIT
#pragma once

#include "backoffice/sales/TillSource.h"
#include "bench/SalesOfYears.h"
#include "bench/Support.h"

#include <QProcess>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <thread>

#include <sqlite3.h>
#include <unistd.h>

using Clock = std::chrono::steady_clock;

inline double secondsSince(Clock::time_point begin)
{
    return std::chrono::duration<double>(Clock::now() - begin).count();
}

/// How long the till's database was held by one statement at most.
class LongestStatement
{
public:
    LongestStatement()
    {
        // SQLite calls its extensions with the arguments of watch().
        sqlite3_auto_extension(reinterpret_cast<void (*)()>(watch));
    }

    static double seconds() { return longest; }

private:
    static int watch(sqlite3* connection, const char**, const struct sqlite3_api_routines*)
    {
        return sqlite3_trace_v2(
            connection, SQLITE_TRACE_STMT | SQLITE_TRACE_PROFILE, note, connection);
    }
    static int note(unsigned event, void* connection, void*, void*)
    {
        const char* const file = sqlite3_db_filename(static_cast<sqlite3*>(connection), "main");
        const bool isTills = file != nullptr && *file != '\0';
        if (isTills && event == SQLITE_TRACE_STMT) {
            begin = Clock::now();
        } else if (isTills) {
            longest = std::max(longest, secondsSince(begin));
        }
        return 0;
    }

    static inline Clock::time_point begin;
    static inline double longest = 0;
};

/// Another process that reads reports of \a bar one after the other.
class OtherProcess
{
public:
    explicit OtherProcess(const SalesOfYears& bar)
    {
        process_.start(
            QCoreApplication::applicationFilePath(), {QStringLiteral("--reports"), bar.path()});
        check(process_.waitForStarted(), "a second process");
        check(process_.waitForReadyRead(), "a report");
    }
    ~OtherProcess() { end(); }
    OtherProcess(const OtherProcess&) = delete;
    OtherProcess& operator=(const OtherProcess&) = delete;
    OtherProcess(OtherProcess&&) = delete;
    OtherProcess& operator=(OtherProcess&&) = delete;

    /// Lets it read for \a milliseconds, and returns the seconds of its longest statement.
    double longestStatement(int milliseconds)
    {
        process_.waitForFinished(milliseconds);
        end();
        return process_.readAll().trimmed().toDouble();
    }

private:
    void end()
    {
        process_.closeWriteChannel();
        process_.waitForFinished();
    }

    QProcess process_;
};

/// What the other process does until its standard input ends.
inline int readReports(const QString& folder)
{
    const LongestStatement statement;
    std::atomic<bool> isStopped = false;
    std::thread parent([&] {
        char byte = 0;
        while (read(STDIN_FILENO, &byte, 1) > 0) { }
        isStopped = true;
    });
    check(write(STDOUT_FILENO, "\n", 1) == 1, "the word that reading begins");
    const DayRange allDays{QDate(2021, 1, 1), QDate(2023, 12, 31)};
    const Reading reading{{}, &isStopped};
    try {
        for (;;) {
            TillSource source(folder);
            source.hours(allDays, reading);
            source.articles(allDays, reading);
            source.uses(allDays, reading);
        }
    } catch (const ReadingStopped&) {
        parent.join();
        std::printf("%f\n", LongestStatement::seconds());
    }
    return 0;
}
