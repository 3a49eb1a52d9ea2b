// SPDX-License-Identifier: MIT
#include "launcher/Aside.h"

#include "launcher/Clock.h"
#include "launcher/SafeFile.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <exception>
#include <string_view>

#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/signalfd.h>
#include <sys/wait.h>

namespace {
constexpr int failed = 1;
constexpr std::size_t longestAnswer = 65536;

/// What the process \a child writes on \a end until it closes it; nothing when \a deadline has
/// passed or \a signals is ready.
std::optional<std::string> readUntil(double deadline, int end, int signals)
{
    constexpr double milliseconds = 1000;
    std::string all;
    while (all.size() <= longestAnswer) {
        std::array<pollfd, 2> ready{{{end, POLLIN, 0}, {signals, POLLIN, 0}}};
        const double left = std::max(0.0, (deadline - steadySeconds()) * milliseconds);
        const int count = poll(ready.data(), ready.size(), static_cast<int>(left));
        if (count == 0 || ready[1].revents != 0 || (count < 0 && errno != EINTR)) {
            return std::nullopt;
        }
        if (count < 0) {
            continue;
        }
        std::array<char, 4096> block{};
        const ssize_t got = read(end, block.data(), block.size());
        if (got <= 0) {
            return got == 0 ? std::optional(all) : std::nullopt;
        }
        all.append(block.data(), static_cast<std::size_t>(got));
    }
    return std::nullopt;
}

/// Waits for the killed or ended \a child, but not for one that a disk does not let go of.
bool hasDoneWell(pid_t child)
{
    constexpr double patience = 2;
    constexpr int pauseMs = 2;
    const double deadline = steadySeconds() + patience;
    int state = 0;
    pid_t ended = 0;
    while ((ended = waitpid(child, &state, WNOHANG)) != child && steadySeconds() < deadline) {
        poll(nullptr, 0, pauseMs);
    }
    return ended == child && WIFEXITED(state) && WEXITSTATUS(state) == 0;
}

[[noreturn]] void answer(int end, const std::function<std::string()>& work)
{
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    try {
        const std::string text = work();
        const bool isWritten
            = write(end, text.data(), text.size()) == static_cast<ssize_t>(text.size());
        _exit(isWritten ? 0 : failed);
    } catch (const std::exception&) {
        _exit(failed);
    }
}
} // namespace

Aside::Aside()
{
    sigset_t watched{};
    sigemptyset(&watched);
    for (const int number : {SIGTERM, SIGINT, SIGHUP, SIGQUIT}) {
        sigaddset(&watched, number);
    }
    sigprocmask(SIG_BLOCK, &watched, &before_);
    signals_ = Descriptor(signalfd(-1, &watched, SFD_CLOEXEC | SFD_NONBLOCK));
    if (!signals_) {
        sigprocmask(SIG_SETMASK, &before_, nullptr);
        SafeFile::fail("signalfd");
    }
}

// A signal that was never read from the descriptor arrives now.
Aside::~Aside() { sigprocmask(SIG_SETMASK, &before_, nullptr); }

std::optional<std::string> Aside::run(
    double seconds, const std::function<std::string()>& work) const
{
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0) {
        return std::nullopt;
    }
    const Descriptor result(ends[0]);
    Descriptor written(ends[1]);
    const double deadline = steadySeconds() + seconds;
    const pid_t child = fork();
    if (child == 0) {
        answer(written.get(), work);
    }
    written.reset();
    if (child < 0) {
        return std::nullopt;
    }
    auto text = readUntil(deadline, result.get(), signals_.get());
    if (!text) {
        kill(child, SIGKILL);
    }
    return hasDoneWell(child) ? text : std::nullopt;
}
