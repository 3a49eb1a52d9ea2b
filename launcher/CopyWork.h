// SPDX-License-Identifier: MIT
#pragma once

#include "launcher/Backup.h"
#include "launcher/Copies.h"
#include "launcher/SecondPlace.h"

/// What is done for the copies while the till runs, in processes of their own: their results are
/// exit statuses.
class CopyWork
{
public:
    /// How making a copy ended; a process that was killed has another exit status.
    enum class Made
    {
        Done = 0,
        Failed = 1,
        Damaged = 2,
        Foreign = 3,
        /// The till changes too much at present.
        Later = 4
    };

    /// carry() for a place that is away. Any other than this and 0 is the errno of a failure.
    static constexpr int isAway = 255;

    /// For the shop in the data folder \a folder.
    explicit CopyWork(int folder);

    /// Whether a copy is due; also when nobody knows.
    bool isChanged() const noexcept;
    /// The second place, empty for none.
    std::string secondPlace() const { return place_.path(); }

    Made make(Backup::Pace pace) const noexcept;
    /// Brings the newest copy to the second place.
    int carry() const noexcept;

private:
    Copies copies_;
    SecondPlace place_;
};
