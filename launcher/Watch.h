// SPDX-License-Identifier: MIT
#pragma once

#include "launcher/Chore.h"
#include "launcher/Log.h"
#include "launcher/Sentences.h"

#include <csignal>
#include <memory>
#include <optional>
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
        /// What a copy may take while the till runs, here or in the second place.
        double copy = 1800;
        /// What each of the two may take when the till is closed.
        double lastCopy = 120;
        /// What sending sales to the central book may take while the till runs, and when it is
        /// closed.
        double sending = 1800;
        double lastSending = 60;
    };

    /// For the till \a program; \a central is the command that sends its sales, which need not be
    /// there. \a isCopyFailureSaid: whether the shopkeeper knows already that
    /// copies fail.
    Watch(DataFolder& folder, const Speech& speech, std::string program, std::string central,
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
        Hour,
        Closing
    };

    bool startTill();
    void forkTill();
    [[noreturn]] void becomeTill(int output, int errors) const;
    void waitForSomething();
    void readSignals();
    void askToEnd();
    void tillEnded(int state);
    /// What goes wrong with the copies.
    struct Trouble
    {
        /// It is noted once, until it has gone.
        bool isKnown = false;
        /// What is still to be said in a box, when nobody serves customers any more.
        std::optional<Words> unread;
    };

    void startCopy(Occasion occasion);
    void startCarrying();
    void startSending();
    /// What follows a copy.
    void spread();
    void copyEnded(int status);
    void carryingEnded(int status);
    void sendingEnded(int status);
    void note(Trouble& trouble, const Words& words);
    void sayTrouble() const;
    void makeLastCopy();
    void await(Chore& chore, double seconds);

    DataFolder& folder_;
    const Speech& speech_;
    std::string program_;
    std::string central_;
    Times times_;
    Log log_;
    sigset_t before_{};
    Descriptor signals_;
    Descriptor hours_;
    Descriptor deadline_;
    Chore copying_;
    Chore carrying_;
    Chore sending_;
    Trouble copyTrouble_;
    Trouble carryTrouble_;
    Trouble sendTrouble_;
    std::unique_ptr<TillOutput> output_;
    std::unique_ptr<TillOutput> errors_;
    pid_t till_ = -1;
    bool isEnding_ = false;
    bool isClosing_ = false;
    double lastCrash_;
    int status_ = 0;
    /// Why the till is not started again.
    std::optional<Words> lastWords_;
};
