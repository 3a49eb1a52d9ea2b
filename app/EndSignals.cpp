// SPDX-License-Identifier: MIT
#include "app/EndSignals.h"

#include <QCoreApplication>

#include <csignal>

#include <sys/signalfd.h>

EndSignals::EndSignals()
{
    sigset_t ends{};
    sigemptyset(&ends);
    for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
        sigaddset(&ends, number);
    }
    signals_ = Descriptor(signalfd(-1, &ends, SFD_CLOEXEC | SFD_NONBLOCK));
    // Without the descriptor the signals end the till as they always did.
    if (signals_) {
        sigprocmask(SIG_BLOCK, &ends, nullptr);
    }
}

void EndSignals::attach()
{
    if (signals_) {
        notifier_.emplace(signals_.get(), QSocketNotifier::Read);
        QObject::connect(&*notifier_, &QSocketNotifier::activated, QCoreApplication::instance(),
            &QCoreApplication::quit);
    }
}
