// SPDX-License-Identifier: MIT
#pragma once

#include "launcher/Log.h"

#include <csignal>
#include <memory>
#include <string>

#include <sys/types.h>

class DataFolder;
class Speech;
class TillOutput;

/// Stays with the till while it runs: starts it again when it crashes, keeps what it says, and
/// makes copies of its database.
class Watch
{
public:
    /// How long things take, in seconds.
    struct Times
    {
        /// A second crash within this time is the last.
        double crashWindow = 60;
        /// From one look at the database to the next.
        double betweenCopies = 3600;
        /// What a till that is asked to end has for it.
        double ending = 5;
        /// What the last copy may take.
        double lastCopy = 120;
    };

    /// For the till \a program. \a isCopyFailureSaid: whether the shopkeeper knows already that
    /// copies fail.
    Watch(const DataFolder& folder, const Speech& speech, std::string program,
        bool isCopyFailureSaid, Times times);
    Watch(const Watch&) = delete;
    Watch& operator=(const Watch&) = delete;
    Watch(Watch&&) = delete;
    Watch& operator=(Watch&&) = delete;
    ~Watch();

    /// Runs the till until it has ended, and makes the last copy. Returns the till's exit status;
    /// throws Refusal for a till that crashed twice, std::system_error for one that cannot be
    /// started.
    int run();

private:
    enum class Occasion
    {
        Opening,
        Hour,
        Closing
    };

    void startTill();
    [[noreturn]] void becomeTill(int output, int errors) const;
    void waitForSomething();
    void readSignals();
    void askToEnd();
    void tillEnded(int state);
    void startCopy(Occasion occasion);
    void copyEnded(int state);
    void makeLastCopy();

    const DataFolder& folder_;
    const Speech& speech_;
    std::string program_;
    bool isCopyFailureSaid_;
    Times times_;
    Log log_;
    sigset_t before_{};
    Descriptor signals_;
    Descriptor hours_;
    Descriptor deadline_;
    std::unique_ptr<TillOutput> output_;
    std::unique_ptr<TillOutput> errors_;
    pid_t till_ = -1;
    pid_t copying_ = -1;
    bool isEnding_ = false;
    bool isClosing_ = false;
    double lastCrash_;
    int status_ = 0;
    /// The signal of the crash after which the till is not started again.
    int lastSignal_ = 0;
};
