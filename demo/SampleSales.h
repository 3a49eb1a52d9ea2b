// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <string>
#include <vector>

/// One sold line, as the history keeps it.
struct SampleSale
{
    /// The article's key; 0 is an amount without an article.
    int id;
    std::string article;
    int cents;
    /// Local time, "yyyy-MM-dd hh:mm:ss.zzz".
    std::string when;
};

/// The lines sold on \a day in the order of time, the same for the same day whenever they are made.
/// The shop is closed on Mondays. With \a withdrawnSold the article that was taken off the menu
/// is still sold, and neither its successor nor what came later.
std::vector<SampleSale> sampleSales(std::chrono::sys_days day, bool withdrawnSold);
