// SPDX-License-Identifier: MIT
#include "launcher/Process.h"

#include "base/Descriptor.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <utility>

#include <fcntl.h>
#include <sys/mman.h>
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

std::string readAll(int file)
{
    std::string all;
    std::array<char, 4096> block{};
    ssize_t got = 0;
    while ((got = read(file, block.data(), block.size())) != 0) {
        if (got > 0) {
            all.append(block.data(), static_cast<std::size_t>(got));
        } else if (errno != EINTR) {
            break;
        }
    }
    return all;
}
} // namespace

Answer filter(const std::vector<std::string>& command, const std::string& input, void (*prepare)())
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
    std::string answer = readAll(result.get());
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
