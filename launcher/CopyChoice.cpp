// SPDX-License-Identifier: MIT
#include "launcher/CopyChoice.h"

#include "launcher/SafeFile.h"
#include "launcher/Speech.h"

#include <algorithm>
#include <clocale>
#include <iomanip>
#include <iostream>
#include <sstream>
#include <string_view>

#include <fcntl.h>
#include <unistd.h>

namespace CopyChoice {
namespace {
constexpr std::string_view prefix = "Vendel-";
constexpr std::string_view suffix = ".db";
constexpr std::string_view replaced = "remplacee-";

bool isPlain(char letter)
{
    return (letter >= '0' && letter <= '9') || (letter >= 'a' && letter <= 'z')
        || (letter >= 'A' && letter <= 'Z') || letter == '-';
}

/// The name in the file's name \a file, empty when it is not one that can be put back.
std::string nameIn(std::string_view file)
{
    if (!file.starts_with(prefix) || !file.ends_with(suffix)
        || file.size() <= prefix.size() + suffix.size()) {
        return {};
    }
    file.remove_prefix(prefix.size());
    file.remove_suffix(suffix.size());
    const bool isCopy = file.starts_with(replaced) || (file[0] >= '0' && file[0] <= '9');
    return isCopy && std::all_of(file.begin(), file.end(), isPlain) ? std::string(file)
                                                                    : std::string();
}

/// \a name with its size, when it is a file and no link.
void append(std::vector<Item>& items, int shelf, const std::string& name)
{
    SafeFile::Status found{};
    const std::string file = std::string(prefix) + name + std::string(suffix);
    if (fstatat(shelf, file.c_str(), &found, AT_SYMLINK_NOFOLLOW) == 0 && S_ISREG(found.st_mode)) {
        items.push_back({name, readableSize(static_cast<unsigned long long>(found.st_size))});
    }
}

std::string trimmed(const std::string& line)
{
    constexpr const char* blanks = " \t";
    const std::size_t first = line.find_first_not_of(blanks);
    return first == std::string::npos
        ? std::string()
        : line.substr(first, line.find_last_not_of(blanks) - first + 1);
}

/// The name with the number \a typed, or what was typed.
std::string numbered(const std::vector<Item>& items, const std::string& typed)
{
    constexpr std::size_t longest = 6;
    const bool isNumber = !typed.empty() && typed.size() <= longest
        && typed.find_first_not_of("0123456789") == std::string::npos;
    const std::size_t number = isNumber ? std::stoul(typed) : 0;
    return number >= 1 && number <= items.size() ? items[number - 1].name : typed;
}

bool isAny(const std::vector<Item>& items, const std::string& name)
{
    return std::any_of(
        items.begin(), items.end(), [&](const Item& item) { return item.name == name; });
}

/// What was typed without the control characters that an arrow key leaves.
std::string shown(std::string typed)
{
    std::replace_if(
        typed.begin(), typed.end(), [](char letter) { return letter >= 0 && letter < ' '; }, '?');
    return typed;
}

std::string askOnTerminal(const std::vector<Item>& items, const Speech& speech)
{
    constexpr int width = 6;
    int number = 0;
    for (const Item& item : items) {
        std::cout << std::setw(width) << ++number << '\t' << item.name << '\t' << item.size << '\n';
    }
    for (;;) {
        std::cout << say(speech.language(), Sentences::whichCopy) << ' ' << std::flush;
        std::string typed;
        std::getline(std::cin, typed);
        if (!std::cin) {
            return {};
        }
        std::string name = numbered(items, trimmed(typed));
        if (name.empty() || isAny(items, name)) {
            return name;
        }
        speech.note({Sentences::noSuchChoice, {shown(name)}});
    }
}
} // namespace

std::vector<Item> items(const Copies& copies)
{
    const auto dated = copies.entries();
    std::vector<std::string> known;
    std::vector<std::string> strangers;
    std::vector<std::string> old;
    known.reserve(dated.size());
    for (const CopyShelf::Entry& entry : dated) {
        known.push_back(entry.name.stem);
    }
    const Descriptor shelf(open("copies", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!shelf) {
        return {};
    }
    for (const std::string& file : SafeFile::names(shelf.get())) {
        const std::string name = nameIn(file);
        if (!name.empty() && !CopyName::parse(file)) {
            (name.starts_with(replaced) ? old : strangers).push_back(name);
        }
    }
    std::sort(strangers.begin(), strangers.end());
    std::sort(old.begin(), old.end());
    known.insert(known.begin(), strangers.begin(), strangers.end());
    known.insert(known.begin(), old.begin(), old.end());
    std::vector<Item> found;
    std::for_each(known.rbegin(), known.rend(),
        [&](const std::string& name) { append(found, shelf.get(), name); });
    return found;
}

std::string lines(const std::vector<Item>& items)
{
    std::string all;
    for (const Item& item : items) {
        all += item.name + '\t' + item.size + '\n';
    }
    return all;
}

std::string readableSize(unsigned long long bytes)
{
    constexpr unsigned long long kilo = 1024;
    constexpr std::string_view units = "KMGTPE";
    if (bytes < kilo) {
        return std::to_string(bytes);
    }
    unsigned long long divisor = kilo;
    std::size_t unit = 0;
    while ((bytes + divisor - 1) / divisor >= kilo) {
        divisor *= kilo;
        ++unit;
    }
    const unsigned long long whole = (bytes + divisor - 1) / divisor;
    const unsigned long long tenths = (bytes * 10 + divisor - 1) / divisor;
    std::string size = tenths < 100 ? std::to_string(tenths / 10) + std::localeconv()->decimal_point
            + std::to_string(tenths % 10)
                                    : std::to_string(whole);
    return size + units[unit];
}

std::string ask(const std::vector<Item>& items, const Speech& speech)
{
    if (isatty(STDIN_FILENO) != 0) {
        return askOnTerminal(items, speech);
    }
    if (const auto chosen = speech.choose(Sentences::whichCopy, lines(items))) {
        return *chosen;
    }
    std::cout << lines(items) << std::flush;
    return {};
}
} // namespace CopyChoice
