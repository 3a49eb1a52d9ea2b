// SPDX-License-Identifier: MIT
#include "launcher/Log.h"

#include "launcher/Clock.h"
#include "launcher/SafeFile.h"

#include <cerrno>
#include <cstdio>

#include <fcntl.h>

Log::Log(int folder, std::size_t largest)
    : folder_(folder)
    , largest_(largest)
{ }

void Log::write(std::string_view line)
{
    std::string stamped = stamp(now()) + ' ';
    stamped.append(line);
    stamped += '\n';
    if (!file_ && !open()) {
        return;
    }
    if (size_ + stamped.size() > largest_) {
        rotate();
    }
    if (file_ && ::write(file_.get(), stamped.data(), stamped.size()) > 0) {
        size_ += stamped.size();
    }
}

bool Log::open()
{
    SafeFile::Status found{};
    file_ = SafeFile::openRegular(folder_, names[0], O_WRONLY | O_CREAT | O_APPEND);
    if (!file_ || fstat(file_.get(), &found) != 0) {
        file_.reset();
        return false;
    }
    size_ = static_cast<std::size_t>(found.st_size);
    return true;
}

void Log::rotate()
{
    const bool isMoved = renameat(folder_, names[1], folder_, names[2]) == 0 || errno == ENOENT;
    if (!isMoved || renameat(folder_, names[0], folder_, names[1]) != 0) {
        // A log that cannot be put aside begins again rather than fill the disk.
        if (ftruncate(file_.get(), 0) == 0) {
            size_ = 0;
        }
        return;
    }
    file_.reset();
    open();
}

Lines::Lines(Sink sink)
    : sink_(std::move(sink))
{ }

void Lines::append(std::string_view bytes)
{
    constexpr std::size_t longest = 4096;
    for (const char byte : bytes) {
        if (byte != '\n') {
            begun_ += byte;
        }
        if (byte == '\n' || begun_.size() == longest) {
            sink_(begun_);
            begun_.clear();
        }
    }
}

void Lines::flush()
{
    if (!begun_.empty()) {
        sink_(begun_);
        begun_.clear();
    }
}
