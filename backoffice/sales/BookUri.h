// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>

/// A database's URI taken apart, for a driver that takes its parts one by one.
struct BookUri
{
    /// A host, a folder with a socket, or several hosts parted by ","; empty for the usual one.
    QString host;
    QString database;
    QString user;
    /// All else, as libpq's "key='value'".
    QString options;

    /// The parts of \a uri, "postgresql://user@host:5432/book?sslmode=require"; nothing when it
    /// cannot be read.
    static std::optional<BookUri> of(const QString& uri);
};
