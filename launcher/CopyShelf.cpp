// SPDX-License-Identifier: MIT
#include "launcher/CopyShelf.h"

#include "launcher/SafeFile.h"

#include <algorithm>
#include <sstream>
#include <unordered_map>

namespace {
constexpr const char* registerName = ".registre";

/// What the register in \a folder says of each file.
struct Known
{
    std::size_t place;
    std::string fingerprint;
};

std::unordered_map<std::string, Known> readRegister(int folder)
{
    constexpr std::size_t largest = 4194304;
    std::unordered_map<std::string, Known> known;
    std::istringstream lines(SafeFile::read(folder, registerName, largest).value_or(""));
    std::string line;
    while (std::getline(lines, line)) {
        const std::size_t blank = std::min(line.find(' '), line.size());
        const std::string fingerprint = line.substr(std::min(blank + 1, line.size()));
        known.insert_or_assign(line.substr(0, blank), Known{known.size(), fingerprint});
    }
    return known;
}
} // namespace

CopyShelf::CopyShelf(Descriptor folder)
    : folder_(std::move(folder))
{ }

std::vector<CopyShelf::Entry> CopyShelf::entries() const
{
    auto known = readRegister(get());
    std::vector<Entry> strangers;
    std::vector<std::pair<std::size_t, Entry>> registered;
    for (const std::string& file : SafeFile::names(get())) {
        const auto name = CopyName::parse(file);
        if (!name || !SafeFile::isRegular(get(), file.c_str())) {
            continue;
        }
        const auto found = known.find(file);
        if (found == known.end()) {
            strangers.push_back({*name, {}});
        } else {
            registered.emplace_back(found->second.place, Entry{*name, found->second.fingerprint});
        }
    }
    std::sort(strangers.begin(), strangers.end(),
        [](const Entry& a, const Entry& b) { return isEarlierByName(a.name, b.name); });
    std::sort(registered.begin(), registered.end(),
        [](const auto& a, const auto& b) { return a.first < b.first; });
    for (auto& [place, entry] : registered) {
        strangers.push_back(std::move(entry));
    }
    return strangers;
}

std::string CopyShelf::freeName(const Moment& moment) const
{
    long count = 0;
    while (SafeFile::exists(get(), copyFile(moment, count).c_str())) {
        ++count;
    }
    return copyFile(moment, count);
}

void CopyShelf::add(const std::string& file, const std::string& fingerprint)
{
    std::vector<Entry> all = entries();
    const auto added = std::find_if(
        all.begin(), all.end(), [&](const Entry& entry) { return entry.name.file() == file; });
    if (added == all.end()) {
        return;
    }
    added->fingerprint = fingerprint;
    std::rotate(added, added + 1, all.end());

    std::vector<CopyName> names;
    std::ostringstream lines;
    for (const Entry& entry : all) {
        names.push_back(entry.name);
        lines << entry.name.file() << ' ' << entry.fingerprint << '\n';
    }
    SafeFile::write(get(), registerName, lines.str(), SafeFile::Existing::Replace);
    for (const CopyName& name : superfluous(names)) {
        SafeFile::remove(get(), name.file().c_str());
    }
}
