// SPDX-License-Identifier: MIT
#include "central/Limit.h"

#include <fcntl.h>
#include <sys/socket.h>

Limit::Limit(std::chrono::seconds patience)
    : patience_(patience)
    , watcher_([this] { watch(); })
{ }

Limit::~Limit()
{
    {
        const std::lock_guard lock(mutex_);
        isEnding_ = true;
    }
    changed_.notify_all();
    watcher_.join();
}

void Limit::begin(int socket)
{
    {
        const std::lock_guard lock(mutex_);
        // A number of its own: the client's may be another file's by the time it is cut.
        socket_ = Descriptor(fcntl(socket, F_DUPFD_CLOEXEC, 0));
        due_ = std::chrono::steady_clock::now() + patience_;
    }
    changed_.notify_all();
}

void Limit::end()
{
    const std::lock_guard lock(mutex_);
    socket_.reset();
}

void Limit::watch()
{
    std::unique_lock lock(mutex_);
    while (!isEnding_) {
        if (!socket_) {
            changed_.wait(lock);
        } else if (changed_.wait_until(lock, due_) == std::cv_status::timeout && socket_
            && std::chrono::steady_clock::now() >= due_) {
            shutdown(socket_.get(), SHUT_RDWR);
            socket_.reset();
        }
    }
}
