// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

/// Notes every statement that SQLite begins on a connection opened while it lives. One at a time.
class StatementLog
{
public:
    StatementLog();
    ~StatementLog();
    StatementLog(const StatementLog&) = delete;
    StatementLog& operator=(const StatementLog&) = delete;
    StatementLog(StatementLog&&) = delete;
    StatementLog& operator=(StatementLog&&) = delete;

    /// The statements so far, as they were written.
    const std::vector<std::string>& statements() const;

    /// How many of them begin with \a head.
    long count(const std::string& head) const;
};
