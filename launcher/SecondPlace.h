// SPDX-License-Identifier: MIT
#pragma once

#include "launcher/Clock.h"
#include "launcher/CopyShelf.h"

#include <optional>
#include <string>
#include <system_error>
#include <vector>

class Copies;

/// A folder, such as a stick or a share, that each copy goes to as well. It may be away at any
/// time. It holds a register of its own by which the shop knows it: the empty folder that a stick
/// leaves where it was is not taken for it, and several shops may share it.
class SecondPlace
{
public:
    /// The one that the data folder \a folder remembers.
    explicit SecondPlace(int folder);

    /// That nothing can be written there.
    struct NotWritable : std::system_error
    {
        using std::system_error::system_error;
    };

    /// Remembers the existing folder \a path from \a moment on, and leaves the shop's register
    /// there. Throws NotWritable, or std::system_error about the data folder.
    void remember(const std::string& path, const Moment& moment) const;
    /// Remembers none any more. Throws std::system_error.
    void forget() const;

    /// Where it is, empty for none.
    std::string path() const;
    /// The last day on which it was reached.
    std::string lastReached() const;
    /// Whether it was not reached in the week before \a moment.
    bool isLongAway(const Moment& moment) const;

    /// The shop's copies there, oldest first; nothing when the place is away. Throws
    /// std::system_error.
    std::optional<std::vector<CopyShelf::Entry>> entries() const;

    /// Brings the newest of \a copies there, unless it is there. False when the place is away.
    /// Throws std::system_error.
    bool carry(const Copies& copies, const Moment& moment) const;

private:
    std::optional<CopyShelf> shelf() const;
    std::string line(const char* name, int number = 0) const;
    std::string registerName() const;

    int folder_;
};
