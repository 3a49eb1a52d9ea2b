// SPDX-License-Identifier: MIT
#pragma once

#include "backoffice/Order.h"

#include <QCoreApplication>

#include <memory>

/// What surrounds the work of the program: its folder, its language, its application object, and
/// how it says what is wrong.
class Session
{
public:
    /// Reads the environment for what \a order leaves open, and makes the application that it
    /// needs: one without a display for files. Where a window has no display, one sentence says so
    /// and the program ends.
    Session(const Order& order, int& argc, char** argv);

    /// Has file names and sentences read and written as UTF-8 where no language is set, as in a
    /// timer's jobs.
    static void useUtf8();
    /// Writes \a sentence on standard error.
    static void say(const QString& sentence);

    /// The absolute path of the data folder; empty when no home is known.
    const QString& folder() const { return folder_; }
    /// How dates and numbers are written: as on the system, if it speaks the program's language.
    const QLocale& locale() const { return locale_; }
    /// What the system's spreadsheets expect, whatever language the program speaks.
    CsvFormat csvFormat() const;

    static QString noHome();
    QString usage() const;

private:
    QString folder_;
    Language language_;
    QLocale locale_;
    std::unique_ptr<QCoreApplication> application_;
};
