// SPDX-License-Identifier: MIT
#pragma once

#include "launcher/BookStatus.h"
#include "launcher/Refusal.h"

#include <functional>
#include <string>

/// Why the book cannot be read or written: a sentence and how the command ends.
class BookError : public Refusal
{
public:
    BookError(Words words, BookStatus status)
        : Refusal(std::move(words), static_cast<int>(status))
    { }

    /// Whether trying again later may help without anybody's hand.
    bool isPassing() const { return status() == static_cast<int>(BookStatus::Unreachable); }
};

namespace BookErrors {
/// Runs \a work on the book at \a uri; what PostgreSQL and its client have against it becomes a
/// BookError, BookErrors::Again or, for what is none of theirs, stays as it is.
void translated(const std::string& uri, const std::function<void()>& work);

/// That the transaction has to be run again, because another one was at the same time.
struct Again : std::exception
{ };
} // namespace BookErrors
