// SPDX-License-Identifier: MIT
#pragma once

#include "base/Descriptor.h"

#include <array>
#include <functional>
#include <string>
#include <string_view>

/// What the till has said, with the time in front of each line: "vendel.log" and the two that were
/// full before it. Nothing that goes wrong with it holds up the till.
class Log
{
public:
    /// Its files, the newest first.
    static constexpr std::array<const char*, 3> names{"vendel.log", "vendel.log.1", "vendel.log.2"};

    /// The log in the folder \a folder, made at its first line.
    explicit Log(int folder, std::size_t largest = 1000000);

    void write(std::string_view line);

private:
    bool open();
    void rotate();

    int folder_;
    std::size_t largest_;
    Descriptor file_;
    std::size_t size_ = 0;
};

/// Cuts a stream of bytes into lines.
class Lines
{
public:
    using Sink = std::function<void(std::string_view)>;

    explicit Lines(Sink sink);
    void append(std::string_view bytes);
    /// Hands on what is left of a line without an end.
    void flush();

private:
    Sink sink_;
    std::string begun_;
};
