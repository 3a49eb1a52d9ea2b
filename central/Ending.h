// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <csignal>
#include <mutex>
#include <thread>

/// Notes a signal to end (SIGTERM, SIGINT, SIGHUP), so that what is under way ends in order. What
/// still goes on some seconds later, because a server or the network hangs, is cut off: the program
/// exits. To be made before any other thread.
class Ending
{
public:
    Ending();
    Ending(const Ending&) = delete;
    Ending& operator=(const Ending&) = delete;
    Ending(Ending&&) = delete;
    Ending& operator=(Ending&&) = delete;
    ~Ending();

    /// Whether the program is asked to end, for what looks at it now and then.
    const std::atomic<bool>* isAsked() const { return &isAsked_; }
    /// Waits for \a time, or until the program is asked to end. False when it is.
    bool wait(std::chrono::milliseconds time);

private:
    void watch();

    sigset_t signals_{};
    sigset_t before_{};
    std::atomic<bool> isAsked_ = false;
    std::atomic<bool> isOver_ = false;
    std::mutex mutex_;
    std::condition_variable asked_;
    std::thread watcher_;
};
