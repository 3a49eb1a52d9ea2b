// SPDX-License-Identifier: MIT
#include "demo/SampleSales.h"

#include "demo/SampleMenu.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <random>

namespace {
using namespace std::chrono_literals;

/// Part of the day, and the tickets that it gets of a hundred.
struct Rush
{
    std::chrono::minutes begin;
    std::chrono::minutes end;
    int share;
};

constexpr std::array<Rush, 6> rushes{{
    {7h + 30min, 9h + 30min, 22},
    {9h + 30min, 11h + 45min, 12},
    {11h + 45min, 14h, 28},
    {14h, 17h, 10},
    {17h, 19h + 30min, 22},
    {19h + 30min, 21h, 6},
}};

/// Tickets of each month in per cent of an ordinary one: the terrace fills in summer.
constexpr std::array<int, 12> seasons{84, 86, 94, 100, 108, 122, 132, 126, 108, 98, 90, 104};

/// Even numbers drawn by a fixed rule: the standard distributions differ between libraries.
class Dice
{
public:
    explicit Dice(unsigned seed)
        : engine_(seed)
    { }

    /// A number from 0 to \a sides - 1.
    int below(int sides) { return static_cast<int>(engine_() % static_cast<unsigned>(sides)); }

private:
    std::mt19937 engine_;
};

std::string timeText(std::chrono::sys_days day, std::chrono::milliseconds time)
{
    const std::chrono::year_month_day date(day);
    const std::chrono::hh_mm_ss clock(time);
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), "%04d-%02u-%02u %02d:%02d:%02d.%03d",
        static_cast<int>(date.year()), static_cast<unsigned>(date.month()),
        static_cast<unsigned>(date.day()), static_cast<int>(clock.hours().count()),
        static_cast<int>(clock.minutes().count()), static_cast<int>(clock.seconds().count()),
        static_cast<int>(clock.subseconds().count()));
    return text.data();
}

int weightOf(const SampleArticle& article, bool withdrawnSold)
{
    const bool isSuccessor = std::string(article.name) == sampleSuccessor;
    const bool isOut = withdrawnSold ? isSuccessor || article.fate == Fate::New
                                     : article.fate == Fate::Withdrawn;
    return isOut ? 0 : article.weight;
}

/// The menu's place, from 0, of a drawn article.
std::size_t drawArticle(Dice& dice, bool withdrawnSold)
{
    int total = 0;
    for (const auto& article : sampleMenu()) {
        total += weightOf(article, withdrawnSold);
    }
    int drawn = dice.below(total);
    std::size_t place = 0;
    while (drawn >= weightOf(sampleMenu().at(place), withdrawnSold)) {
        drawn -= weightOf(sampleMenu().at(place), withdrawnSold);
        ++place;
    }
    return place;
}

std::chrono::milliseconds drawTime(Dice& dice)
{
    constexpr int whole = 100;
    int drawn = dice.below(whole);
    const auto* rush = rushes.begin();
    for (; drawn >= rush->share; ++rush) {
        drawn -= rush->share;
    }
    const std::chrono::milliseconds length = rush->end - rush->begin;
    return rush->begin + std::chrono::milliseconds(dice.below(static_cast<int>(length.count())));
}

/// Number of the tickets of \a day: more at the end of the week and in summer, and more each year.
int drawCount(Dice& dice, std::chrono::sys_days day)
{
    constexpr int whole = 100;
    constexpr int growth = 6;
    constexpr std::chrono::year firstYear(2024);
    const std::chrono::year_month_day date(day);
    const std::chrono::weekday weekday(day);
    const bool isBusy = weekday == std::chrono::Friday || weekday == std::chrono::Saturday;
    const int years = static_cast<int>((date.year() - firstYear).count());
    const int season = seasons.at(static_cast<unsigned>(date.month()) - 1) + growth * years;
    return ((isBusy ? 38 : 22) + dice.below(10)) * season / whole;
}

/// The moments at which a ticket was paid on \a day, in order.
std::vector<std::chrono::milliseconds> drawTickets(Dice& dice, std::chrono::sys_days day)
{
    const int count = drawCount(dice, day);
    std::vector<std::chrono::milliseconds> times;
    times.reserve(static_cast<std::size_t>(std::max(count, 0)));
    for (int i = 0; i < count; ++i) {
        times.push_back(drawTime(dice));
    }
    std::sort(times.begin(), times.end());
    return times;
}
} // namespace

std::vector<SampleSale> sampleSales(std::chrono::sys_days day, bool withdrawnSold)
{
    if (std::chrono::weekday(day) == std::chrono::Monday) {
        return {};
    }
    constexpr int linesAtMost = 4;
    constexpr int oneTicketInDiscounted = 25;
    Dice dice(static_cast<unsigned>(day.time_since_epoch().count()));
    std::vector<SampleSale> sales;
    for (auto time : drawTickets(dice, day)) {
        for (int lines = 1 + dice.below(linesAtMost); lines > 0; --lines) {
            const std::size_t place = drawArticle(dice, withdrawnSold);
            const SampleArticle& article = sampleMenu().at(place);
            sales.push_back(
                {static_cast<int>(place) + 1, article.name, article.cents, timeText(day, time)});
            time += 3ms;
        }
        if (dice.below(oneTicketInDiscounted) == 0) {
            sales.push_back({0, "----", -50, timeText(day, time)});
        }
    }
    return sales;
}
