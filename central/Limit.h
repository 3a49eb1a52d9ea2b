// SPDX-License-Identifier: MIT
#pragma once

#include "base/Descriptor.h"

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>

/// Cuts a connection whose server has stopped answering: the client library would wait for ever
/// where the network says nothing.
class Limit
{
public:
    /// For each piece of work.
    explicit Limit(std::chrono::seconds patience);
    Limit(const Limit&) = delete;
    Limit& operator=(const Limit&) = delete;
    Limit(Limit&&) = delete;
    Limit& operator=(Limit&&) = delete;
    ~Limit();

    /// From here to end() the connection of the socket \a socket must not be silent for long.
    void begin(int socket);
    void end();

private:
    void watch();

    std::chrono::seconds patience_;
    std::mutex mutex_;
    std::condition_variable changed_;
    Descriptor socket_;
    std::chrono::steady_clock::time_point due_;
    bool isEnding_ = false;
    std::thread watcher_;
};
