// SPDX-License-Identifier: MIT
#include "launcher/CopyShelf.h"

#include <algorithm>
#include <cerrno>
#include <sstream>
#include <unordered_map>

#include <fcntl.h>

namespace {
/// What the register says of a copy that somebody put on the shelf.
constexpr const char* stranger = "?";

/// What the register in \a folder says of each file.
struct Known
{
    std::size_t place;
    std::string fingerprint;
};

/// The bytes of the register \a name, none when it is no file of ours. One that a disk does not
/// give back is not taken for none: the order of the copies would be lost with it.
std::string bytesOf(int folder, const char* name)
{
    constexpr std::size_t largest = 4194304;
    SafeFile::Status found{};
    const Descriptor file = SafeFile::openRegular(folder, name, O_RDONLY);
    if (!file && errno == EIO) {
        SafeFile::fail(name);
    }
    if (!file || fstat(file.get(), &found) != 0 || found.st_size > off_t(largest)) {
        return {};
    }
    auto bytes = SafeFile::read(folder, name, largest);
    if (!bytes) {
        SafeFile::fail(name);
    }
    return *std::move(bytes);
}

std::unordered_map<std::string, Known> readRegister(int folder, const std::string& name)
{
    std::unordered_map<std::string, Known> known;
    std::istringstream lines(bytesOf(folder, name.c_str()));
    std::string line;
    for (std::size_t place = 0; std::getline(lines, line); ++place) {
        const std::size_t blank = std::min(line.find(' '), line.size());
        const std::string fingerprint = line.substr(std::min(blank + 1, line.size()));
        known.insert_or_assign(line.substr(0, blank), Known{place, fingerprint});
    }
    return known;
}
} // namespace

bool CopyShelf::Entry::isOurs() const { return fingerprint != stranger; }

CopyShelf::CopyShelf(Descriptor folder, std::string registerName, Strangers strangers)
    : folder_(std::move(folder))
    , register_(std::move(registerName))
    , strangers_(strangers)
{ }

std::vector<CopyShelf::Entry> CopyShelf::entries() const
{
    auto known = readRegister(get(), register_);
    std::vector<Entry> strangers;
    std::vector<std::pair<std::size_t, Entry>> registered;
    for (const std::string& file : SafeFile::names(get())) {
        const auto name = CopyName::parse(file);
        if (!name || !SafeFile::isRegular(get(), file.c_str())) {
            continue;
        }
        const auto found = known.find(file);
        if (found != known.end()) {
            registered.emplace_back(found->second.place, Entry{*name, found->second.fingerprint});
        } else if (strangers_ == Strangers::Ours) {
            strangers.push_back({*name, known.empty() ? "" : stranger});
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

void CopyShelf::add(
    SafeFile::Temporary& part, const std::string& file, const std::string& fingerprint)
{
    const auto name = CopyName::parse(file);
    if (!name) {
        return;
    }
    // The register first: a copy that it did not know would count as the oldest.
    remember(*name, fingerprint);
    part.become(file.c_str(), SafeFile::Existing::Keep);
    std::vector<CopyName> names;
    for (const Entry& entry : entries()) {
        // What somebody put here goes only when somebody removes it.
        if (entry.isOurs()) {
            names.push_back(entry.name);
        }
    }
    for (const CopyName& old : superfluous(names)) {
        SafeFile::remove(get(), old.file().c_str());
    }
}

void CopyShelf::remember(const CopyName& name, const std::string& fingerprint) const
{
    std::ostringstream lines;
    for (const Entry& entry : entries()) {
        lines << entry.name.file() << ' ' << entry.fingerprint << '\n';
    }
    lines << name.file() << ' ' << fingerprint << '\n';
    SafeFile::write(get(), register_.c_str(), lines.str(), SafeFile::Existing::Replace);
}
