// SPDX-License-Identifier: MIT
#pragma once

#include <sstream>
#include <string>

/// Collects the rows of one insert and runs them as one statement: a statement is a transaction,
/// and a row each would take long.
class BulkInsert
{
public:
    /// \a head is the statement up to the word "values", as in "insert into Article (id, prix)".
    explicit BulkInsert(const std::string& head);

    /// Adds a row of values as SQL writes them.
    template <class First, class... Others> void add(const First& first, const Others&... others)
    {
        rows_ << (isEmpty_ ? " values (" : ", (") << first;
        ((rows_ << ", " << others), ...);
        rows_ << ')';
        isEmpty_ = false;
    }

    /// Does nothing without rows. Throws std::runtime_error when the database refuses them.
    void run() const;

    /// \a text as SQL wants it between single quotes.
    static std::string quoted(const std::string& text);

private:
    std::string head_;
    std::ostringstream rows_;
    bool isEmpty_ = true;
};
