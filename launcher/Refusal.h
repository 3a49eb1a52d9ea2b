// SPDX-License-Identifier: MIT
#pragma once

#include "launcher/Sentences.h"

#include <exception>

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
