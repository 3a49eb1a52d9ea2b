// SPDX-License-Identifier: MIT
#pragma once

#include "base/Descriptor.h"

/// The right to the database file of a data folder, as opposed to what is in it: whoever looks at
/// an open shop from outside keeps the file from being replaced under SQLite, which would take the
/// next file's journal for its own.
class FileClaim
{
public:
    enum class Purpose
    {
        /// To read; many may.
        Look,
        /// To put another file in its place; nobody else may do anything meanwhile.
        Replace
    };

    /// Waits at most \a seconds for the claim on the data folder \a folder. Throws DatabaseError
    /// (SQLITE_BUSY).
    FileClaim(int folder, Purpose purpose, double seconds);

private:
    Descriptor folder_;
};
