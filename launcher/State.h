// SPDX-License-Identifier: MIT
#pragma once

#include "launcher/Clock.h"
#include "launcher/Sentences.h"

#include <string>
#include <vector>

/// The state of a shop in about a dozen lines, for somebody who helps on the telephone. The till
/// may be open meanwhile; nothing in the shop's folder is changed.
struct State
{
    /// What each look may take, in seconds: a disk or a stick that hangs does not hold up the rest.
    struct Limits
    {
        double database = 60;
        double place = 5;
        double printer = 5;
    };

    /// Looks at the shop in the data folder \a data, empty when no home is known, and changes into
    /// it.
    State(const std::string& version, const std::string& data, const Moment& moment,
        const Limits& limits);

    /// What there is to say.
    std::vector<Words> lines;
    /// 0 when all is well, 1 when something needs a hand.
    int status = 0;
};
