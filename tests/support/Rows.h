// SPDX-License-Identifier: MIT
#pragma once

#include <QTest>

#include <tuple>
#include <vector>

/// The rows of a table that a test runs through, a name first in each.
template <class... Columns> using Rows = std::vector<std::tuple<const char*, Columns...>>;

/// While it lives, a test that fails names its row.
class InRow
{
public:
    explicit InRow(const char* name)
        : name_(name)
        , hadFailed_(QTest::currentTestFailed())
    { }
    ~InRow()
    {
        if (QTest::currentTestFailed() && !hadFailed_) {
            qWarning("in the row: %s", name_);
        }
    }
    InRow(const InRow&) = delete;
    InRow& operator=(const InRow&) = delete;
    InRow(InRow&&) = delete;
    InRow& operator=(InRow&&) = delete;

private:
    const char* name_;
    bool hadFailed_;
};
