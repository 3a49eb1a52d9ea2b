// SPDX-License-Identifier: MIT
#pragma once

#include "launcher/Backup.h"
#include "launcher/Clock.h"
#include "launcher/CopyShelf.h"

#include <string>

/// Copies of the shop's database, in the folder "copies" of the data folder.
class Copies
{
public:
    /// The copies of the shop in the data folder \a folder.
    explicit Copies(int folder);

    /// Whether the database is not what it was when it was copied last. False without a database.
    bool isChanged() const;
    /// Whether a start at \a moment has to make a copy.
    bool isDueAtStart(const Moment& moment) const;

    /// Makes a copy and returns its file's name, which \a moment gives it. Waits for \a patience,
    /// in seconds, while another program makes one. Throws DatabaseError, SQLITE_BUSY for one that
    /// takes longer, or std::system_error.
    std::string make(const Moment& moment, Backup::Pace pace, double patience = 30) const;

    /// The folder of the copies, made when it is missing. Throws std::system_error.
    CopyShelf shelf() const;
    /// The dated copies, oldest first. Throws std::system_error.
    std::vector<CopyShelf::Entry> entries() const;

    /// A name in the folder of copies that is still free, of a database that was taken out of use
    /// at \a moment: "Vendel-KIND-DAY-TIME", which ".db" and ".journal" are then added to.
    static std::string freeStem(int shelf, const std::string& kind, const Moment& moment);

private:
    CopyShelf openShelf() const;
    std::string fingerprint() const;

    int folder_;
};
