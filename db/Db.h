// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

/// The rows of a result in SQLite's order; each row has its columns as UTF-8 text in the order of
/// the select list, NULL as the empty text.
using DbRows = std::vector<std::vector<std::string>>;

/// The till's only way to its database, the file "Vendel.db" of the working directory.
class Db
{
public:
    /// Runs the first statement of \a sql on a connection of its own and returns its rows.
    /// An SQL error is one line on standard output and an empty (or cut short) result; a database
    /// that another process holds is waited for up to 2 s. Throws only when memory runs out.
    static DbRows DbLoad(const char* sql);

    /// Runs \a statements in order on one connection, between "begin immediate" and "commit": all
    /// of them or none. The first that SQLite refuses, "begin immediate" and "commit" included, is
    /// one line on standard output like DbLoad's; whatever came before it is rolled back. Returns
    /// whether everything is committed. Waits and throws like DbLoad.
    static bool DbTransact(const std::vector<std::string>& statements);

    /// Creates the schema and the two default settings.
    static void DbCreate();
};
