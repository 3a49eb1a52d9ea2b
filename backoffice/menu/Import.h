// SPDX-License-Identifier: MIT
#pragma once

#include "backoffice/menu/ImportPlan.h"
#include "backoffice/sales/TillPace.h"

#include <QCoreApplication>

#include <atomic>

/// The import of a file into a shop. The shop's data folder becomes the working directory.
class Import
{
    Q_DECLARE_TR_FUNCTIONS(Import)

public:
    /// For the data folder \a folder; \a program makes the copy (see CopyProcess). Numbers in
    /// remarks are written as \a locale does. A restoration is waited for \a patience, in seconds,
    /// and a database that is in use by the clocks of \a timing.
    Import(const QString& folder, QString program, const QLocale& locale, double patience = 5,
        Timing timing = Timing::ofTheMachine());

    /// Makes the data folder the working directory, if there is a till's database in it. Throws
    /// ImportError.
    void enterShop() const;

    /// What importing \a file would do. Throws ImportError.
    ImportPlan plan(const ImportFile& file) const;

    struct Result
    {
        enum class End
        {
            /// All of the plan is done.
            Done,
            /// The menu or the recipes are no longer what the plan was made for: nothing is
            /// changed.
            Outdated,
            /// Stopped before anything was changed.
            Stopped
        };

        End end = End::Done;
        /// What was done, or the plan as it would be now.
        ImportPlan plan;
        /// The file of the copy in the folder of copies, if one was made.
        QString copy;
    };

    /// Makes a checked copy, then does all of \a plan for \a file, or nothing. Ends early when
    /// \a isStopped is set before the copy is complete. Throws ImportError: nothing is changed
    /// then.
    Result carryOut(
        const ImportFile& file, const ImportPlan& plan, const std::atomic<bool>& isStopped) const;

private:
    QString copy(const std::atomic<bool>& isStopped) const;

    QString folder_;
    QString program_;
    QLocale locale_;
    double patience_;
    Timing timing_;
};
