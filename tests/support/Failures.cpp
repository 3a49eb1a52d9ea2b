// SPDX-License-Identifier: MIT
#include "tests/support/Failures.h"

#include <QtGlobal>

#include <array>

#include <sqlite3.h>
#include <sys/wait.h>

namespace {
constexpr uid_t nobody = 65534;

/// What the other process does; it tells \a ready whether it holds the database.
[[noreturn]] void hold(const char* sql, useconds_t microseconds, int ready)
{
    sqlite3* connection = nullptr;
    sqlite3_open("Vendel.db", &connection);
    const bool held = sqlite3_exec(connection, sql, nullptr, nullptr, nullptr) == SQLITE_OK;
    const char word = held ? 'h' : 'f';
    static_cast<void>(!write(ready, &word, 1));
    usleep(microseconds);
    _exit(0);
}
} // namespace

OrdinaryUser::OrdinaryUser()
    : before_(geteuid())
{
    if (before_ == 0 && seteuid(nobody) != 0) {
        qFatal("cannot become an ordinary user");
    }
}

OrdinaryUser::~OrdinaryUser()
{
    if (seteuid(before_) != 0) {
        qFatal("cannot become root again");
    }
}

FileSizeLimit::FileSizeLimit(rlim_t bytes)
    : signal_(std::signal(SIGXFSZ, SIG_IGN))
{
    getrlimit(RLIMIT_FSIZE, &before_);
    rlimit limit = before_;
    limit.rlim_cur = bytes;
    setrlimit(RLIMIT_FSIZE, &limit);
}

FileSizeLimit::~FileSizeLimit()
{
    setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, signal_);
}

OtherProcess::OtherProcess(const char* sql, useconds_t holdMicroseconds)
{
    std::array<int, 2> ready{};
    if (pipe(ready.data()) != 0) {
        qFatal("no pipe");
    }
    pid_ = fork();
    if (pid_ == 0) {
        hold(sql, holdMicroseconds, ready[1]);
    }
    close(ready[1]);
    char word = 'f';
    static_cast<void>(!read(ready[0], &word, 1));
    close(ready[0]);
    if (word != 'h') {
        qFatal("the other process could not hold the database");
    }
}

OtherProcess::~OtherProcess()
{
    kill(pid_, SIGKILL);
    waitpid(pid_, nullptr, 0);
}
