// SPDX-License-Identifier: MIT
#pragma once

#include "launcher/Sentences.h"

#include <exception>
#include <utility>

#include <sys/types.h>

/// Why the launcher does not go on: a sentence for the shopkeeper.
class Refusal : public std::exception
{
public:
    explicit Refusal(Words words, int status = 1)
        : words_(std::move(words))
        , status_(status)
    { }

    const Words& words() const { return words_; }
    /// What the launcher exits with.
    int status() const { return status_; }
    const char* what() const noexcept override { return words_.english.c_str(); }

private:
    Words words_;
    int status_;
};

/// That a till is open on the same data.
class AlreadyOpen : public Refusal
{
public:
    /// \a till is its process, 0 when nobody knows.
    AlreadyOpen(Words words, pid_t till)
        : Refusal(std::move(words))
        , till_(till)
    { }

    pid_t till() const { return till_; }

private:
    pid_t till_;
};
