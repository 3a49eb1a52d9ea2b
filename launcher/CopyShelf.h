// SPDX-License-Identifier: MIT
#pragma once

#include "launcher/CopyName.h"
#include "launcher/Descriptor.h"

#include <string>
#include <vector>

/// A folder of dated copies. A register remembers in which order they were made, because the clock
/// that gives them their names may be wrong.
class CopyShelf
{
public:
    struct Entry
    {
        CopyName name;
        /// What the database looked like when it was copied; empty when nobody remembers.
        std::string fingerprint;
    };

    /// The shelf in \a folder.
    explicit CopyShelf(Descriptor folder);

    /// All dated copies, oldest first. Those that the register does not know come before all that
    /// it does, in the order of their names.
    std::vector<Entry> entries() const;

    /// A name that no file has, for a copy made at \a moment.
    std::string freeName(const Moment& moment) const;

    /// Remembers that \a file is the newest copy, and removes those that need not be kept.
    void add(const std::string& file, const std::string& fingerprint);

    int get() const { return folder_.get(); }

    /// The name of the file that a copy is made in.
    static constexpr const char* partName = ".Vendel.neuf";

private:
    Descriptor folder_;
};
