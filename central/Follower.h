// SPDX-License-Identifier: MIT
#pragma once

#include "central/Ending.h"
#include "central/Shop.h"

#include <functional>
#include <optional>

/// Stays, and sends what is sold soon after it was.
class Follower
{
public:
    /// How long things take.
    struct Times
    {
        /// From one look at the till's database to the next.
        std::chrono::milliseconds look{2000};
        /// From one try to the next when the book cannot be reached: at first, and at most.
        std::chrono::milliseconds firstRetry{2000};
        std::chrono::milliseconds lastRetry{60000};
        /// From one look at the whole history and the menu to the next.
        std::chrono::milliseconds wholeLook{600000};
    };

    /// \a say is told of each trouble once.
    Follower(const CentralShop& shop, Ending& ending, Times times,
        std::function<void(const Words&)> say);

    /// Follows the till until the program is asked to end. Throws Refusal and SalesError for what
    /// goes wrong before anything was sent, but for a book that cannot be reached: a till may start
    /// before the network. And for a till whose place another machine has taken, at any time.
    void run();

private:
    void look();

    const CentralShop& shop_;
    Ending& ending_;
    Times times_;
    std::function<void(const Words&)> say_;
    Reading reading_;
    TillLines till_;
    std::optional<TillDatabase::State> sent_;
    std::chrono::steady_clock::time_point wholeLook_;
};
