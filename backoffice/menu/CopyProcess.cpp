// SPDX-License-Identifier: MIT
#include "backoffice/menu/CopyProcess.h"

#include "launcher/Clock.h"
#include "launcher/Copies.h"
#include "launcher/Database.h"

#include <QProcess>

#include <cerrno>
#include <csignal>
#include <cstring>
#include <iostream>
#include <system_error>

#include <fcntl.h>
#include <sys/prctl.h>

namespace {
using CopyProcess::Outcome;

constexpr const char* order = "--copie-avant-import";

Outcome ofDatabase(const DatabaseError& error)
{
    switch (error.code()) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return Outcome::Busy;
    case SQLITE_FULL:
        return Outcome::DiskFull;
    case SQLITE_READONLY:
    case SQLITE_PERM:
    case SQLITE_CANTOPEN:
        return Outcome::NotWritable;
    default:
        return error.isAboutContent() ? Outcome::Unusable : Outcome::Failed;
    }
}

Outcome ofSystem(int number)
{
    switch (number) {
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        return Outcome::DiskFull;
    case EACCES:
    case EPERM:
    case EROFS:
        return Outcome::NotWritable;
    default:
        return Outcome::Failed;
    }
}

/// Makes the copy in the data folder \a path and prints its name.
Outcome work(const char* path)
{
    try {
        const Descriptor folder = SafeFile::openFolder(AT_FDCWD, path);
        if (fchdir(folder.get()) != 0) {
            return ofSystem(errno);
        }
        std::cout << Copies(folder.get()).make(now(), Backup::Pace::Gentle) << std::endl;
        return Outcome::Done;
    } catch (const DatabaseError& error) {
        return ofDatabase(error);
    } catch (const std::system_error& error) {
        return ofSystem(error.code().value());
    } catch (const std::exception&) {
        return Outcome::Failed;
    }
}
} // namespace

std::optional<int> CopyProcess::asked(int argc, char** argv)
{
    constexpr int arguments = 3;
    if (argc != arguments || std::strcmp(argv[1], order) != 0) {
        return std::nullopt;
    }
    prctl(PR_SET_PDEATHSIG, SIGTERM);
    // A file that may not become so large is an error like a full disk.
    std::signal(SIGXFSZ, SIG_IGN);
    return static_cast<int>(work(argv[2]));
}

CopyProcess::Result CopyProcess::make(
    const QString& program, const QString& folder, const std::atomic<bool>& isStopped)
{
    constexpr int lookMs = 50;
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(program, {QLatin1String(order), folder});
    do {
        if (isStopped) {
            process.kill();
            process.waitForFinished();
            return {Outcome::Stopped, {}};
        }
    } while (!process.waitForFinished(lookMs) && process.state() != QProcess::NotRunning);
    const bool hasExited = process.error() != QProcess::FailedToStart
        && process.exitStatus() == QProcess::NormalExit;
    const int status = process.exitCode();
    if (!hasExited || status < 0 || status > static_cast<int>(Outcome::Unusable)) {
        return {};
    }
    const QString name = QString::fromUtf8(process.readAllStandardOutput()).trimmed();
    return {static_cast<Outcome>(status), name};
}
