// SPDX-License-Identifier: MIT
#pragma once

#include "launcher/Sentences.h"

#include <string>

class Aside;

/// What can be said of a database without changing it, and without a till at work waiting for it.
struct DatabaseLook
{
    enum class Verdict
    {
        Missing,
        Sound,
        Unusable,
        /// Nobody knows: another program has it, or there is no room or time for it.
        Unchecked
    };

    Verdict verdict = Verdict::Missing;
    /// In bytes as people read them; empty when nobody knows.
    std::string size;
    /// Why it is not sound.
    Words reason{""};
    /// Whether the till's setting is to print receipts on paper; false when nobody knows.
    bool isOnPaper = false;

    /// Looks at "Vendel.db" in the data folder \a folder, which is the working directory, for at
    /// most \a seconds. A copy of it is checked, in the folder "copies" if there is one, and is
    /// gone afterwards.
    static DatabaseLook at(int folder, bool isTillOpen, const Aside& aside, double seconds);

    /// Removes what a look that was killed has left in the folder \a shelf, as far as that can be
    /// done.
    static void sweep(int shelf) noexcept;
};
