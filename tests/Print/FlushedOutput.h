// SPDX-License-Identifier: MIT
#pragma once

#include <iostream>
#include <streambuf>
#include <string>

/// Takes what is written to std::cout during its life; only what was flushed counts as shown.
class FlushedOutput : private std::streambuf
{
public:
    FlushedOutput()
        : before_(std::cout.rdbuf(this))
    { }
    ~FlushedOutput() override { std::cout.rdbuf(before_); }
    FlushedOutput(const FlushedOutput&) = delete;
    FlushedOutput& operator=(const FlushedOutput&) = delete;

    /// Everything flushed since the last call.
    std::string take()
    {
        std::string text;
        text.swap(shown_);
        return text;
    }

private:
    int_type overflow(int_type character) override
    {
        pending_ += traits_type::to_char_type(character);
        return character;
    }

    int sync() override
    {
        shown_ += pending_;
        pending_.clear();
        return 0;
    }

    std::streambuf* before_;
    std::string pending_;
    std::string shown_;
};
