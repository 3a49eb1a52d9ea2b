// SPDX-License-Identifier: MIT
#pragma once

#include "central/Limit.h"

#include <chrono>
#include <functional>
#include <memory>
#include <string>

#include <pqxx/pqxx>

/// A connection to the database of the book, for one round of work. What goes wrong is a
/// BookError.
class Connection
{
public:
    /// Longer than the server's own limit on a statement.
    static constexpr std::chrono::seconds usual{90};
    /// So long that nobody waits for it. A server that is away is noticed nevertheless.
    static constexpr std::chrono::hours endless{1000};

    /// Connects to \a uri. The server may be silent in a transaction for \a patience.
    explicit Connection(std::string uri, std::chrono::seconds patience = usual);

    /// Refuses what is no URI of a database, or one with a password.
    static void requireUri(const std::string& uri);

    /// Runs \a work as one transaction, again when another one was at the same time.
    void transact(const std::function<void(pqxx::work&)>& work);

    /// \a uri with what it leaves open: how long a silent server is waited for.
    static std::string patient(const std::string& uri);

private:
    std::string uri_;
    std::unique_ptr<pqxx::connection> connection_;
    Limit limit_;
};
