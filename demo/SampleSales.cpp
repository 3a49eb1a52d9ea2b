// SPDX-License-Identifier: MIT
#include "demo/SampleSales.h"

#include "demo/SampleMenu.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <random>

namespace {
using namespace std::chrono_literals;

constexpr auto opening = 7h + 30min;
constexpr auto closing = 21h;

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

/// The moments at which a ticket was paid that day, in order.
std::vector<std::chrono::milliseconds> drawTickets(Dice& dice, std::chrono::weekday weekday)
{
    const bool isBusy = weekday == std::chrono::Friday || weekday == std::chrono::Saturday;
    const int count = (isBusy ? 38 : 22) + dice.below(10);
    const int openMs = static_cast<int>(std::chrono::milliseconds(closing - opening).count());
    std::vector<std::chrono::milliseconds> times;
    times.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        times.push_back(opening + std::chrono::milliseconds(dice.below(openMs)));
    }
    std::sort(times.begin(), times.end());
    return times;
}
} // namespace

std::vector<SampleSale> sampleSales(std::chrono::sys_days day, bool withdrawnSold)
{
    const std::chrono::weekday weekday(day);
    if (weekday == std::chrono::Monday) {
        return {};
    }
    constexpr int linesAtMost = 4;
    constexpr int oneTicketInDiscounted = 25;
    Dice dice(static_cast<unsigned>(day.time_since_epoch().count()));
    std::vector<SampleSale> sales;
    for (auto time : drawTickets(dice, weekday)) {
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
