// SPDX-License-Identifier: MIT
#include "central/Ending.h"

#include <algorithm>
#include <cstdlib>
#include <ctime>

#include <pthread.h>
#include <unistd.h>

Ending::Ending()
{
    sigemptyset(&signals_);
    for (const int number : {SIGTERM, SIGINT, SIGHUP, SIGUSR2}) {
        sigaddset(&signals_, number);
    }
    pthread_sigmask(SIG_BLOCK, &signals_, &before_);
    watcher_ = std::thread([this] { watch(); });
}

Ending::~Ending()
{
    isOver_ = true;
    pthread_kill(watcher_.native_handle(), SIGUSR2);
    watcher_.join();
    pthread_sigmask(SIG_SETMASK, &before_, nullptr);
}

bool Ending::wait(std::chrono::milliseconds time)
{
    std::unique_lock lock(mutex_);
    return !asked_.wait_for(lock, time, [this] { return isAsked_.load(); });
}

void Ending::watch()
{
    int number = SIGUSR2;
    while (!isOver_ && number == SIGUSR2) {
        sigwait(&signals_, &number);
    }
    if (isOver_) {
        return;
    }
    {
        const std::lock_guard lock(mutex_);
        isAsked_ = true;
    }
    asked_.notify_all();
    constexpr std::chrono::seconds patience(5);
    const auto due = std::chrono::steady_clock::now() + patience;
    while (!isOver_) {
        const auto left = due - std::chrono::steady_clock::now();
        if (left <= std::chrono::steady_clock::duration::zero()) {
            _exit(EXIT_SUCCESS);
        }
        const timespec time{0, std::min<long>(std::chrono::nanoseconds(left).count(), 999'999'999)};
        sigtimedwait(&signals_, nullptr, &time);
    }
}
