// SPDX-License-Identifier: MIT
#include "launcher/TillOutput.h"

#include "launcher/SafeFile.h"

#include <array>
#include <cerrno>

#include <fcntl.h>
#include <poll.h>

TillOutput::TillOutput(Log& log, int onward)
    : onward_(onward)
    , lines_([&log](std::string_view line) { log.write(line); })
{
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0) {
        SafeFile::fail("pipe");
    }
    end_ = Descriptor(ends[0]);
    tillEnd_ = Descriptor(ends[1]);
    fcntl(end_.get(), F_SETFL, O_NONBLOCK);
}

Descriptor TillOutput::takeTillEnd() { return std::move(tillEnd_); }

bool TillOutput::pass()
{
    std::array<char, 65536> block{};
    const ssize_t size = read(end_.get(), block.data(), block.size());
    if (size <= 0) {
        const bool isLater = size < 0 && (errno == EAGAIN || errno == EINTR);
        if (!isLater) {
            lines_.flush();
        }
        return isLater;
    }
    const std::string_view bytes(block.data(), static_cast<std::size_t>(size));
    // What cannot be passed on is in the log.
    onward_.write(bytes);
    lines_.append(bytes);
    return true;
}

void TillOutput::drain()
{
    pollfd ready{get(), POLLIN, 0};
    while (poll(&ready, 1, 0) > 0 && (ready.revents & POLLIN) != 0 && pass()) { }
    lines_.flush();
}
