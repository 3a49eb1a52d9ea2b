// SPDX-License-Identifier: MIT
#include "demo/SampleShop.h"

#include <cstdio>
#include <ctime>
#include <exception>
#include <filesystem>
#include <iostream>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace {
constexpr const char* usage = "usage: vendel-demo OUTDIR [--until YYYY-MM-DD] [--days N]";

struct BadUsage : std::runtime_error
{
    using std::runtime_error::runtime_error;
};

struct Order
{
    std::filesystem::path directory;
    std::chrono::sys_days until;
    std::chrono::days days;
};

/// Last year is whole then, and so is most of the year that it is compared with.
constexpr std::chrono::days twoYears{730};

std::chrono::sys_days today()
{
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    return std::chrono::year(local.tm_year + 1900)
        / std::chrono::month(static_cast<unsigned>(local.tm_mon) + 1)
        / std::chrono::day(static_cast<unsigned>(local.tm_mday));
}

std::chrono::sys_days dateFrom(const std::string& text)
{
    int year = 0;
    unsigned month = 0;
    unsigned day = 0;
    char rest = 0;
    const int read = std::sscanf(text.c_str(), "%4d-%2u-%2u%c", &year, &month, &day, &rest);
    const auto date = std::chrono::year(year) / std::chrono::month(month) / std::chrono::day(day);
    if (read != 3 || !date.ok()) {
        throw BadUsage("\"" + text + "\" is no date");
    }
    return date;
}

std::chrono::days daysFrom(const std::string& text)
{
    int days = 0;
    char rest = 0;
    if (std::sscanf(text.c_str(), "%4d%c", &days, &rest) != 1 || days < 1) {
        throw BadUsage("\"" + text + "\" is no number of days");
    }
    return std::chrono::days(days);
}

Order orderFrom(const std::vector<std::string>& arguments)
{
    std::optional<std::filesystem::path> directory;
    auto until = today();
    auto days = twoYears;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& argument = arguments[i];
        if (argument == "--until" && i + 1 < arguments.size()) {
            until = dateFrom(arguments[++i]);
        } else if (argument == "--days" && i + 1 < arguments.size()) {
            days = daysFrom(arguments[++i]);
        } else if (argument.rfind('-', 0) == 0) {
            throw BadUsage("unknown option \"" + argument + "\"");
        } else if (directory) {
            throw BadUsage("one directory is enough");
        } else {
            directory = argument;
        }
    }
    if (!directory) {
        throw BadUsage("no directory is named");
    }
    return {*directory, until, days};
}

void carryOut(const Order& order)
{
    std::filesystem::create_directories(order.directory);
    std::filesystem::current_path(order.directory);
    if (std::filesystem::exists("Vendel.db")) {
        throw std::runtime_error(order.directory.string() + " holds a shop already");
    }
    makeSampleShop(order.until, order.days);
}
} // namespace

int main(int argc, char* argv[])
{
    try {
        carryOut(orderFrom({argv + 1, argv + argc}));
        return 0;
    } catch (const BadUsage& error) {
        std::cerr << "vendel-demo: " << error.what() << '\n' << usage << '\n';
        return 2;
    } catch (const std::exception& error) {
        std::cerr << "vendel-demo: " << error.what() << '\n';
        return 1;
    }
}
