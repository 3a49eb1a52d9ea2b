// SPDX-License-Identifier: MIT
#pragma once

/// How the command "vendel-central" ends: what the launcher tells its failures by.
enum class BookStatus
{
    Done = 0,
    /// What has no status of its own.
    Failed = 1,
    BadUsage = 2,
    /// There is no server, or none that answers.
    Unreachable = 3,
    /// The server refuses the user or the password, or has no such database.
    Refused = 4,
    /// The user may not do there what has to be done.
    NoRight = 5,
    /// The database has not been prepared, or not by this version.
    NotPrepared = 6,
    /// A later version has prepared the database.
    Later = 7,
    /// The book has no room.
    Full = 8,
    /// The till's database cannot be read.
    Till = 9,
    /// The till's identity or its folder cannot be used.
    Folder = 10,
    /// The till's sales are there as those of another till, or, where they have to be, are not.
    AnotherTill = 11
};
