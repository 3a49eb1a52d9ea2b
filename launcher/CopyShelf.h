// SPDX-License-Identifier: MIT
#pragma once

#include "base/Descriptor.h"
#include "launcher/CopyName.h"
#include "launcher/SafeFile.h"

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

        /// Whether it was not put here by somebody while a register was kept.
        bool isOurs() const;
    };

    /// What becomes of dated copies that the register does not know.
    enum class Strangers
    {
        /// They are this shop's, and older than all that it knows, in the order of their names.
        Ours,
        /// They are another shop's.
        Others
    };

    /// The shelf in \a folder, whose register is the file \a registerName.
    explicit CopyShelf(Descriptor folder, std::string registerName = ".registre",
        Strangers strangers = Strangers::Ours);

    /// All dated copies of the shop, oldest first. Throws std::system_error.
    std::vector<Entry> entries() const;

    /// A name that no file has, for a copy made at \a moment.
    std::string freeName(const Moment& moment) const;

    /// Gives the complete copy \a part the name \a file, remembers that it is the newest, and
    /// removes those that need not be kept. Throws std::system_error.
    void add(SafeFile::Temporary& part, const std::string& file, const std::string& fingerprint);

    int get() const { return folder_.get(); }

    /// The name of the file that a copy is made in.
    static constexpr const char* partName = ".Vendel.neuf";

private:
    void remember(const CopyName& name, const std::string& fingerprint) const;

    Descriptor folder_;
    std::string register_;
    Strangers strangers_;
};
