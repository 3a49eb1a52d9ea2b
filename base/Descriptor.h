// SPDX-License-Identifier: MIT
#pragma once

#include <utility>

#include <unistd.h>

/// The one owner of a file descriptor.
class Descriptor
{
public:
    Descriptor() = default;
    /// Owns \a number; a negative one is none.
    explicit Descriptor(int number)
        : number_(number)
    { }
    Descriptor(Descriptor&& other) noexcept
        : number_(std::exchange(other.number_, -1))
    { }
    Descriptor& operator=(Descriptor&& other) noexcept
    {
        std::swap(number_, other.number_);
        return *this;
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() { reset(); }

    int get() const { return number_; }
    explicit operator bool() const { return number_ >= 0; }
    /// Gives the descriptor up without closing it.
    int release() { return std::exchange(number_, -1); }
    void reset()
    {
        if (number_ >= 0) {
            close(std::exchange(number_, -1));
        }
    }

private:
    int number_ = -1;
};
