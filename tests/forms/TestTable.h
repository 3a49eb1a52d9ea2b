// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QTest>

#include <initializer_list>

/// Gives the running table of tests columns of text.
inline void textColumns(std::initializer_list<const char*> names)
{
    for (const char* name : names) {
        QTest::addColumn<QString>(name);
    }
}

/// Adds a row to the running table of tests.
template <class... Cells> void tableRow(const char* name, const Cells&... cells)
{
    (QTest::newRow(name) << ... << cells);
}
