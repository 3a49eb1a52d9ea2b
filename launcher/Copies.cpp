// SPDX-License-Identifier: MIT
#include "launcher/Copies.h"

#include "launcher/Database.h"
#include "launcher/Journals.h"
#include "launcher/SafeFile.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <thread>

#include <fcntl.h>
#include <sys/file.h>

namespace {
constexpr const char* database = "Vendel.db";
constexpr const char* copiesName = "copies";

/// The right to write into \a shelf, until it is closed: the till's launcher and the back office
/// would write the same part and lose lines of each other's register.
Descriptor turn(int shelf, double patience)
{
    constexpr std::chrono::milliseconds pause(20);
    Descriptor folder = SafeFile::openFolder(shelf, ".");
    const double end = steadySeconds() + patience;
    // A file system that knows no such locks must not leave the shop without copies.
    while (
        flock(folder.get(), LOCK_EX | LOCK_NB) != 0 && (errno == EWOULDBLOCK || errno == EINTR)) {
        if (steadySeconds() > end) {
            throw DatabaseError(SQLITE_BUSY);
        }
        std::this_thread::sleep_for(pause);
    }
    return folder;
}
} // namespace

Copies::Copies(int folder)
    : folder_(folder)
{ }

bool Copies::isChanged() const
{
    const std::string present = fingerprint();
    if (present.empty()) {
        return false;
    }
    const auto all = entries();
    return all.empty() || all.back().fingerprint != present;
}

bool Copies::isDueAtStart(const Moment& moment) const
{
    const std::string present = fingerprint();
    if (present.empty()) {
        return false;
    }
    const auto all = entries();
    const auto isToday
        = [&](const CopyShelf::Entry& entry) { return entry.name.day == moment.day; };
    return std::none_of(all.begin(), all.end(), isToday) || all.back().fingerprint != present;
}

std::string Copies::make(const Moment& moment, Backup::Pace pace, double patience) const
{
    CopyShelf copies = shelf();
    const Descriptor claim = turn(copies.get(), patience);
    // A change during the copy makes the next one due.
    const std::string copied = fingerprint();
    for (const char* suffix : Journals::suffixes) {
        SafeFile::remove(copies.get(), (std::string(CopyShelf::partName) + suffix).c_str());
    }
    SafeFile::Temporary part(copies.get(), CopyShelf::partName);
    Backup::copy(database, std::string(copiesName) + '/' + CopyShelf::partName, pace);
    std::string name = copies.freeName(moment);
    copies.add(part, name, copied);
    return name;
}

CopyShelf Copies::shelf() const
{
    constexpr mode_t userOnly = 0700;
    if (mkdirat(folder_, copiesName, userOnly) == 0) {
        SafeFile::sync(folder_);
    }
    return openShelf();
}

CopyShelf Copies::openShelf() const
{
    Descriptor opened = SafeFile::openFolder(folder_, copiesName);
    SafeFile::Status found{};
    if (fstat(opened.get(), &found) == 0 && found.st_uid != geteuid()) {
        // Where somebody else could change the copies, none are made or taken.
        errno = EPERM;
        SafeFile::fail(copiesName);
    }
    return CopyShelf(std::move(opened));
}

std::vector<CopyShelf::Entry> Copies::entries() const
{
    return SafeFile::exists(folder_, copiesName) ? openShelf().entries()
                                                 : std::vector<CopyShelf::Entry>();
}

std::string Copies::freeStem(int shelf, const std::string& kind, const Moment& moment)
{
    const std::string first = "Vendel-" + kind + '-' + moment.day + '-' + moment.time;
    const auto isTaken = [&](const std::string& stem) {
        return SafeFile::exists(shelf, (stem + ".db").c_str())
            || SafeFile::exists(shelf, (stem + ".journal").c_str())
            || SafeFile::exists(shelf, (stem + ".wal").c_str());
    };
    std::string stem = first;
    for (long count = 2; isTaken(stem); ++count) {
        stem = first + '-' + std::to_string(count);
    }
    return stem;
}

/// The number of changes that SQLite counts in the file, its size and its time.
std::string Copies::fingerprint() const
{
    constexpr off_t changeCounter = 24;
    std::array<unsigned char, 4> counter{};
    SafeFile::Status found{};
    const Descriptor file(openat(folder_, database, O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    if (!file || fstat(file.get(), &found) != 0 || !S_ISREG(found.st_mode)
        || pread(file.get(), counter.data(), counter.size(), changeCounter) < 0) {
        return {};
    }
    unsigned long changes = 0;
    for (const unsigned char byte : counter) {
        changes = changes * 256 + byte;
    }
    return std::to_string(changes) + ' ' + std::to_string(found.st_size) + ' '
        + std::to_string(found.st_mtim.tv_sec) + '.' + std::to_string(found.st_mtim.tv_nsec);
}
