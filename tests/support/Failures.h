// SPDX-License-Identifier: MIT
#pragma once

#include <csignal>

#include <sys/resource.h>
#include <sys/types.h>
#include <unistd.h>

/// Gives up root's rights while it lives, so that file permissions count.
class OrdinaryUser
{
public:
    OrdinaryUser();
    ~OrdinaryUser();
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;
    OrdinaryUser(OrdinaryUser&&) = delete;
    OrdinaryUser& operator=(OrdinaryUser&&) = delete;

private:
    uid_t before_;
};

/// No file can grow beyond a size in bytes while it lives, like on a full file system.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t bytes);
    ~FileSizeLimit();
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;
    FileSizeLimit(FileSizeLimit&&) = delete;
    FileSizeLimit& operator=(FileSizeLimit&&) = delete;

private:
    void (*signal_)(int);
    rlimit before_{};
};

/// Another process that runs \a sql on the working directory's database and keeps it for a while,
/// a backup say.
class OtherProcess
{
public:
    OtherProcess(const char* sql, useconds_t holdMicroseconds);
    ~OtherProcess();
    OtherProcess(const OtherProcess&) = delete;
    OtherProcess& operator=(const OtherProcess&) = delete;
    OtherProcess(OtherProcess&&) = delete;
    OtherProcess& operator=(OtherProcess&&) = delete;

private:
    pid_t pid_;
};
