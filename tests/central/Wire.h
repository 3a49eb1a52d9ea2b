// SPDX-License-Identifier: MIT
#pragma once

#include "base/Descriptor.h"

#include <QTemporaryDir>

#include <atomic>
#include <functional>
#include <string>
#include <thread>

/// A wire between the sender and the server that can be cut at any request: the sender connects to
/// the socket in folder() instead of the server's.
class Wire
{
public:
    /// What happens to a request.
    enum class Fate
    {
        Pass,
        /// It never reaches the server.
        Lost,
        /// The server does it, but the sender does not learn so.
        Unanswered
    };

    /// \a fate says what happens to the request with a number, from 1. \a cut is called, in another
    /// thread, at the first that does not pass; then both ends are closed.
    Wire(std::string server, std::function<Fate(int)> fate, std::function<void()> cut = {});
    Wire(const Wire&) = delete;
    Wire& operator=(const Wire&) = delete;
    Wire(Wire&&) = delete;
    Wire& operator=(Wire&&) = delete;
    ~Wire();

    std::string folder() const { return folder_.path().toStdString(); }
    /// Requests so far.
    int requests() const { return requests_; }
    bool isCut() const { return isCut_; }

private:
    void serve();
    void carry(const Descriptor& client);

    std::string server_;
    std::function<Fate(int)> fate_;
    std::function<void()> cut_;
    QTemporaryDir folder_;
    Descriptor listener_;
    Descriptor end_;
    Descriptor endHere_;
    std::atomic<int> requests_ = 0;
    std::atomic<bool> isCut_ = false;
    std::thread thread_;
};
