// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <functional>

/// The clocks that reading goes by, so that a test can have its own.
struct Timing
{
    /// A steady clock, in microseconds.
    std::function<qint64()> elapsed;
    /// The machine's time, in milliseconds since 1970.
    std::function<qint64()> now;
    /// Waits for some microseconds.
    std::function<void(qint64)> sleep;

    static Timing ofTheMachine();
};

/// How much is read at a time. SQLite keeps the till from writing while a statement reads, so none
/// takes long, and while the till is at work most of the time is left to it.
class TillPace
{
public:
    /// Rows are never read in larger portions, however fast the first ones were.
    static constexpr qint64 mostRows = 20000;

    explicit TillPace(Timing timing);

    /// How many rows the next portion may have.
    qint64 rows() const { return rows_; }

    /// Runs \a portion, which reads up to rows(), and learns from the time it takes. While
    /// \a isTillAtWork it waits afterwards.
    void run(bool isTillAtWork, const std::function<void()>& portion);

    /// Runs \a portion, which has a size of its own. While \a isTillAtWork it waits afterwards.
    void runAsIs(bool isTillAtWork, const std::function<void()>& portion);

private:
    qint64 timed(qint64 pauses, const std::function<void()>& portion);

    Timing timing_;
    qint64 rows_;
};
