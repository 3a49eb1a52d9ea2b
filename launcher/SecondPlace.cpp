// SPDX-License-Identifier: MIT
#include "launcher/SecondPlace.h"

#include "launcher/Copies.h"
#include "launcher/SafeFile.h"

#include <algorithm>
#include <array>
#include <iomanip>
#include <sstream>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace {
constexpr const char* pathName = "copies-vers";
constexpr const char* reachedName = ".copies-vers-vu";

constexpr const char* registerPrefix = ".registre-";

bool isMark(const std::string& text)
{
    return !text.empty() && text.find_first_not_of("0123456789abcdef") == std::string::npos;
}

/// What tells this shop's register from those of others.
std::string newMark()
{
    std::array<unsigned char, 8> bytes{};
    if (getentropy(bytes.data(), bytes.size()) != 0) {
        SafeFile::fail("getentropy");
    }
    std::ostringstream mark;
    for (const unsigned byte : bytes) {
        mark << std::hex << std::setw(2) << std::setfill('0') << byte;
    }
    return mark.str();
}

void leaveRegister(const std::string& path, const std::string& name)
{
    try {
        const Descriptor place = SafeFile::openFolder(AT_FDCWD, path.c_str());
        if (!SafeFile::isRegular(place.get(), name.c_str())) {
            SafeFile::write(place.get(), name.c_str(), "", SafeFile::Existing::Replace);
        }
    } catch (const std::system_error& error) {
        throw SecondPlace::NotWritable(error.code());
    }
}

off_t sizeOf(int folder, const std::string& file)
{
    SafeFile::Status found{};
    return fstatat(folder, file.c_str(), &found, AT_SYMLINK_NOFOLLOW) == 0 ? found.st_size : -1;
}

/// Brings the copy \a newest from \a here to \a there, unless it is there as it is here.
void bring(
    const CopyShelf& here, const CopyShelf::Entry& newest, CopyShelf& there, const Moment& moment)
{
    const std::string file = newest.name.file();
    const off_t size = sizeOf(here.get(), file);
    const auto brought = there.entries();
    const auto isIt = [&](const CopyShelf::Entry& entry) {
        return entry.fingerprint == newest.fingerprint && entry.name.day == newest.name.day
            && sizeOf(there.get(), entry.name.file()) == size
            && ((newest.isOurs() && !newest.fingerprint.empty()) || entry.name.file() == file);
    };
    if (std::any_of(brought.begin(), brought.end(), isIt)) {
        return;
    }
    const Descriptor source = SafeFile::openRegular(here.get(), file.c_str(), O_RDONLY);
    if (!source) {
        SafeFile::fail(file.c_str());
    }
    // Another shop that shares the place may have a copy of the same day.
    const bool isTaken = SafeFile::exists(there.get(), file.c_str());
    SafeFile::Temporary part(there.get(), CopyShelf::partName);
    part.copyFrom(source.get());
    there.add(
        part, isTaken ? there.freeName({newest.name.day, moment.time}) : file, newest.fingerprint);
}

void forgetFile(int folder, const char* name)
{
    if (!SafeFile::remove(folder, name)) {
        SafeFile::fail(name);
    }
}
} // namespace

SecondPlace::SecondPlace(int folder)
    : folder_(folder)
{ }

void SecondPlace::remember(const std::string& path, const Moment& moment) const
{
    const std::string known = line(pathName, 1);
    const std::string mark = isMark(known) ? known : newMark();
    leaveRegister(path, registerPrefix + mark);
    SafeFile::write(folder_, reachedName, moment.day + '\n', SafeFile::Existing::Replace);
    SafeFile::write(folder_, pathName, path + '\n' + mark + '\n', SafeFile::Existing::Replace);
}

void SecondPlace::forget() const
{
    forgetFile(folder_, pathName);
    forgetFile(folder_, reachedName);
    SafeFile::sync(folder_);
}

std::string SecondPlace::path() const
{
    const std::string found = line(pathName);
    return found.starts_with('/') ? found : std::string();
}

std::string SecondPlace::lastReached() const { return line(reachedName); }

bool SecondPlace::isLongAway(const Moment& moment) const
{
    constexpr long patience = 7;
    return !path().empty() && daysBetween(lastReached(), moment.day) >= patience;
}

std::optional<CopyShelf> SecondPlace::shelf() const
{
    const std::string there = path();
    Descriptor place(open(there.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    const std::string known = registerName();
    if (!place || known.empty() || !SafeFile::isRegular(place.get(), known.c_str())) {
        return std::nullopt;
    }
    return CopyShelf(std::move(place), known, CopyShelf::Strangers::Others);
}

std::optional<std::vector<CopyShelf::Entry>> SecondPlace::entries() const
{
    const auto there = shelf();
    return there ? std::optional(there->entries()) : std::nullopt;
}

bool SecondPlace::carry(const Copies& copies, const Moment& moment) const
{
    auto there = shelf();
    if (!there) {
        return false;
    }
    const CopyShelf here = copies.shelf();
    // The launcher of an earlier till may still be at it.
    if (flock(here.get(), LOCK_EX | LOCK_NB) != 0) {
        return false;
    }
    const auto all = here.entries();
    if (!all.empty()) {
        bring(here, all.back(), *there, moment);
    }
    SafeFile::write(folder_, reachedName, moment.day + '\n', SafeFile::Existing::Replace);
    return true;
}

std::string SecondPlace::line(const char* name, int number) const
{
    constexpr std::size_t longest = 8192;
    std::istringstream lines(SafeFile::read(folder_, name, longest).value_or(""));
    std::string found;
    for (int at = 0; at <= number && std::getline(lines, found); ++at) { }
    return lines ? found : std::string();
}

std::string SecondPlace::registerName() const
{
    const std::string mark = line(pathName, 1);
    return isMark(mark) ? registerPrefix + mark : std::string();
}
