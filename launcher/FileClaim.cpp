// SPDX-License-Identifier: MIT
#include "launcher/FileClaim.h"

#include "launcher/Clock.h"
#include "launcher/Database.h"
#include "launcher/SafeFile.h"

#include <chrono>
#include <thread>

#include <sys/file.h>

FileClaim::FileClaim(int folder, Purpose purpose, double seconds)
    : folder_(SafeFile::openFolder(folder, "."))
{
    constexpr std::chrono::milliseconds pause(20);
    const int kind = purpose == Purpose::Look ? LOCK_SH : LOCK_EX;
    const double end = steadySeconds() + seconds;
    while (flock(folder_.get(), kind | LOCK_NB) != 0) {
        if (steadySeconds() > end) {
            throw DatabaseError(SQLITE_BUSY);
        }
        std::this_thread::sleep_for(pause);
    }
}
