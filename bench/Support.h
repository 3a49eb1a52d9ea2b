// SPDX-License-Identifier: MIT
#pragma once

#include "db/Db.h"

#include <QApplication>
#include <QTemporaryDir>

class QTableView;

/// Throws std::runtime_error naming \a what unless it \a holds: a measurement of something else is
/// worth nothing.
void check(bool holds, const char* what);

/// Seconds of work that the process has done; what other processes do does not count.
double workedSeconds();

/// Bytes of memory that the process holds at present.
double residentBytes();

/// The least that shows \a texts in \a view: complete rows with their height in pixels, no text
/// composed.
void fillByFloor(QTableView& view, const DbRows& texts, int height);

/// What \a view shows, as the database would hand it out.
DbRows textsOf(const QTableView& view);

/// The application without a display, in a temporary directory with an empty shop.
class BenchTill
{
public:
    BenchTill(int& argc, char** argv);
    ~BenchTill();
    BenchTill(const BenchTill&) = delete;
    BenchTill& operator=(const BenchTill&) = delete;
    BenchTill(BenchTill&&) = delete;
    BenchTill& operator=(BenchTill&&) = delete;

private:
    QApplication application_;
    QTemporaryDir folder_;
};
