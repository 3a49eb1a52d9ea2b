// SPDX-License-Identifier: MIT
#include "launcher/Chore.h"

#include "launcher/Process.h"
#include "launcher/Timer.h"

#include <csignal>

#include <sys/prctl.h>
#include <sys/wait.h>

Chore::Chore()
    : clock_(Timer::make())
{ }

bool Chore::start(const std::function<int()>& work, double seconds)
{
    const pid_t launcher = getpid();
    process_ = fork();
    if (process_ == 0) {
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        // The launcher may have ended before it was asked for.
        _exit(getppid() == launcher ? work() : EXIT_FAILURE);
    }
    isKilled_ = false;
    isGivenUp_ = false;
    limit(seconds);
    return isUnderWay();
}

void Chore::limit(double seconds) { Timer::set(clock_, seconds); }

void Chore::lookAtClock()
{
    constexpr double dying = 2;
    if (!Timer::hasRung(clock_) || !isUnderWay()) {
        return;
    }
    if (isKilled_) {
        isGivenUp_ = true;
        return;
    }
    isKilled_ = true;
    kill(process_, SIGKILL);
    limit(dying);
}

std::optional<int> Chore::ended()
{
    int state = 0;
    if (!isUnderWay() || waitpid(process_, &state, WNOHANG) != process_) {
        return std::nullopt;
    }
    process_ = -1;
    return Process::exitStatus(state);
}
