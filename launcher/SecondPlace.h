// SPDX-License-Identifier: MIT
#pragma once

#include "launcher/Clock.h"

#include <string>

class Copies;

/// A folder, such as a stick or a share, that each copy goes to as well. It may be away at any
/// time.
class SecondPlace
{
public:
    /// The one that the data folder \a folder remembers.
    explicit SecondPlace(int folder);

    /// Remembers the existing folder \a path from \a moment on. Throws std::system_error.
    void remember(const std::string& path, const Moment& moment) const;
    /// Remembers none any more. Throws std::system_error.
    void forget() const;

    /// Where it is, empty for none.
    std::string path() const;
    /// The last day on which it was reached.
    std::string lastReached() const;
    /// Whether it was not reached in the week before \a moment.
    bool isLongAway(const Moment& moment) const;

    /// Brings the newest of \a copies there, unless it is there. Throws std::system_error.
    void carry(const Copies& copies, const Moment& moment) const;

private:
    std::string line(const char* name) const;

    int folder_;
};
