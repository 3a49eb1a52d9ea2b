// SPDX-License-Identifier: MIT
#include "central/Ending.h"

#include <pthread.h>

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
    int number = 0;
    while (sigwait(&signals_, &number) == 0 && !isOver_) {
        if (number == SIGUSR2) {
            continue;
        }
        {
            const std::lock_guard lock(mutex_);
            isAsked_ = true;
        }
        asked_.notify_all();
    }
}
