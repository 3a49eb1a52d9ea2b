// SPDX-License-Identifier: MIT
#include "launcher/Guide.h"

#include "base/Descriptor.h"
#include "launcher/Process.h"
#include "launcher/Refusal.h"
#include "launcher/Speech.h"

#include <cerrno>
#include <csignal>
#include <ctime>
#include <iostream>

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {
/// How long a desktop without a browser has to say so. A browser may stay for the whole day.
constexpr timespec patience{2, 0};

/// Becomes the desktop's browser, which outlives the terminal and writes nothing on it.
[[noreturn]] void becomeBrowser(const std::string& file)
{
    constexpr int notRun = 127;
    setsid();
    std::signal(SIGPIPE, SIG_DFL);
    const Descriptor nowhere(open("/dev/null", O_RDWR | O_CLOEXEC));
    for (const int standard : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        dup2(nowhere.get(), standard);
    }
    execlp("xdg-open", "xdg-open", file.c_str(), nullptr);
    _exit(notRun);
}

bool isShown(const std::string& file)
{
    sigset_t end{};
    sigemptyset(&end);
    sigaddset(&end, SIGCHLD);
    sigprocmask(SIG_BLOCK, &end, nullptr);
    const pid_t browser = fork();
    if (browser < 0) {
        return false;
    }
    if (browser == 0) {
        sigprocmask(SIG_UNBLOCK, &end, nullptr);
        becomeBrowser(file);
    }
    while (sigtimedwait(&end, nullptr, &patience) < 0 && errno == EINTR) { }
    int state = 0;
    return waitpid(browser, &state, WNOHANG) != browser || Process::exitStatus(state) == 0;
}
} // namespace

void Guide::open(const std::string& file, const Speech& speech)
{
    if (access(file.c_str(), R_OK) != 0) {
        throw Refusal({Sentences::guideMissing, {file}});
    }
    if (!Speech::hasDisplay() || !isShown(file)) {
        std::cout << file << std::endl;
        speech.warn({Sentences::guideNotShown, {file}});
    }
}
