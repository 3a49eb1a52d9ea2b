// SPDX-License-Identifier: MIT
#pragma once

#include "launcher/BookStatus.h"
#include "launcher/Refusal.h"

#include <functional>
#include <string>
#include <string_view>

/// Why the book cannot be read or written: a sentence and how the command ends.
class BookError : public Refusal
{
public:
    BookError(Words words, BookStatus status)
        : Refusal(std::move(words), static_cast<int>(status))
    { }

    /// Whether trying again later may help without anybody's hand.
    bool isPassing() const { return status() == static_cast<int>(BookStatus::Unreachable); }
    /// Whether another machine goes on as this till, so that trying again is pointless.
    bool isForGood() const { return status() == static_cast<int>(BookStatus::AnotherTill); }
};

namespace BookErrors {
/// That the transaction has to be run again, because another one was at the same time.
struct Again : std::exception
{ };

/// The first line of what a server or its client says, without what was asked of it.
Words firstLine(std::string_view said);

/// Runs \a connect, which connects to \a uri; why it cannot becomes a BookError.
void whileConnecting(const std::string& uri, const std::function<void()>& connect);

/// Runs \a work on a connection; what PostgreSQL and its client have against it becomes a BookError
/// or Again.
void whileWorking(const std::function<void()>& work);
} // namespace BookErrors
