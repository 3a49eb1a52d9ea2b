// SPDX-License-Identifier: MIT
#include "launcher/Process.h"

#include "base/Descriptor.h"
#include "launcher/Clock.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <utility>

#include <fcntl.h>
#include <poll.h>
#include <sys/mman.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace Process {
namespace {
constexpr int notRun = 127;

/// A file without a name that holds \a bytes, to be read from its start.
Descriptor fileOf(const std::string& bytes)
{
    Descriptor file(memfd_create("input", MFD_CLOEXEC));
    if (file
        && pwrite(file.get(), bytes.data(), bytes.size(), 0)
            != static_cast<ssize_t>(bytes.size())) {
        file.reset();
    }
    return file;
}

/// What \a file has at present.
void readInto(std::string& all, int file)
{
    std::array<char, 4096> block{};
    ssize_t got = 0;
    while ((got = read(file, block.data(), block.size())) > 0 || (got < 0 && errno == EINTR)) {
        all.append(block.data(), static_cast<std::size_t>(std::max(got, ssize_t(0))));
    }
}

/// What the process \a child writes to \a file until it ends; it is killed after \a seconds. What
/// it has started itself, and what holds the file open, is not waited for.
std::string readUntilEnd(pid_t child, int file, double seconds)
{
    constexpr double millisecondsOfASecond = 1000;
    constexpr double longestMs = 1e9;
    const Descriptor process(static_cast<int>(syscall(SYS_pidfd_open, child, 0)));
    const double end = steadySeconds() + seconds;
    std::string all;
    fcntl(file, F_SETFL, O_NONBLOCK);
    std::array<pollfd, 2> ready{{{process.get(), POLLIN, 0}, {file, POLLIN, 0}}};
    while (process && ready[0].revents == 0) {
        const double left = std::min((end - steadySeconds()) * millisecondsOfASecond, longestMs);
        const int count = left > 0 ? poll(ready.data(), ready.size(), static_cast<int>(left)) : 0;
        if (count == 0) {
            kill(child, SIGKILL);
            break;
        }
        readInto(all, file);
        if ((ready[1].revents & POLLHUP) != 0) {
            ready[1].fd = -1;
        }
    }
    readInto(all, file);
    return all;
}
} // namespace

Answer filter(const std::vector<std::string>& command, const std::string& input, double seconds,
    void (*prepare)())
{
    const Descriptor source = fileOf(input);
    const Descriptor nowhere(open("/dev/null", O_RDWR | O_CLOEXEC));
    std::array<int, 2> ends{};
    if (!source || !nowhere || pipe2(ends.data(), O_CLOEXEC) != 0) {
        return {notRun, {}};
    }
    const Descriptor result(ends[0]);
    Descriptor written(ends[1]);
    const pid_t child = fork();
    if (child == 0) {
        sigset_t none{};
        sigemptyset(&none);
        sigprocmask(SIG_SETMASK, &none, nullptr);
        std::signal(SIGPIPE, SIG_DFL);
        dup2(source.get(), STDIN_FILENO);
        dup2(written.get(), STDOUT_FILENO);
        dup2(nowhere.get(), STDERR_FILENO);
        prepare();
        become(command);
        _exit(notRun);
    }
    written.reset();
    std::string answer;
    if (child > 0) {
        answer = readUntilEnd(child, result.get(), seconds);
    }
    int state = 0;
    while (child > 0 && waitpid(child, &state, 0) < 0 && errno == EINTR) { }
    return {child > 0 ? exitStatus(state) : notRun, std::move(answer)};
}

void become(const std::vector<std::string>& command)
{
    std::vector<char*> arguments;
    arguments.reserve(command.size() + 1);
    for (const std::string& argument : command) {
        // The kernel copies them.
        arguments.push_back(const_cast<char*>(argument.c_str()));
    }
    arguments.push_back(nullptr);
    execv(arguments.front(), arguments.data());
}

int exitStatus(int state)
{
    constexpr int bySignal = 128;
    return WIFSIGNALED(state) ? bySignal + WTERMSIG(state) : WEXITSTATUS(state);
}
} // namespace Process
