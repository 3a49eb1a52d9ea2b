// SPDX-License-Identifier: MIT
#pragma once

#include "launcher/Clock.h"

#include <string>

/// Where the shop's central book is, which several tills send their sales to. The till does
/// without it; it is the command "vendel-central" that sends.
class BookAddress
{
public:
    /// The one that the data folder \a folder (a descriptor) remembers.
    explicit BookAddress(int folder);

    /// Whether \a text is a URI as PostgreSQL's programs take it.
    static bool isUri(const std::string& text);
    /// Whether the URI \a uri contains a password, which others would see in lists of processes
    /// and in copies of the folder.
    static bool hasPassword(const std::string& uri);

    /// \a text as it may be shown when it is no URI: without what may be a password.
    static std::string shown(const std::string& text);

    /// Empty for none.
    std::string uri() const;
    /// Remembers \a uri. Throws std::system_error.
    void remember(const std::string& uri) const;
    /// Remembers none any more. Throws std::system_error.
    void forget() const;

    /// When the book was last reached, "2026-03-05 14:07:31"; empty when it never was.
    std::string lastReached() const;
    /// Whether it was not reached in the week before \a moment; a new one was not.
    bool isLongAway(const Moment& moment) const;
    /// Notes that it was reached at \a moment. Throws std::system_error.
    void noteReached(const Moment& moment) const;

private:
    int folder_;
};
