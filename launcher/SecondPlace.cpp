// SPDX-License-Identifier: MIT
#include "launcher/SecondPlace.h"

#include "launcher/Copies.h"
#include "launcher/SafeFile.h"

#include <fcntl.h>

namespace {
constexpr const char* pathName = "copies-vers";
constexpr const char* reachedName = ".copies-vers-vu";

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
    SafeFile::write(folder_, reachedName, moment.day + '\n', SafeFile::Existing::Replace);
    SafeFile::write(folder_, pathName, path + '\n', SafeFile::Existing::Replace);
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

void SecondPlace::carry(const Copies& copies, const Moment& moment) const
{
    const auto all = copies.entries();
    const std::string there = path();
    if (there.empty() || all.empty()) {
        return;
    }
    CopyShelf shelf(SafeFile::openFolder(AT_FDCWD, there.c_str()));
    const std::string file = all.back().name.file();
    if (!SafeFile::exists(shelf.get(), file.c_str())) {
        const CopyShelf here = copies.shelf();
        const Descriptor source = SafeFile::openRegular(here.get(), file.c_str(), O_RDONLY);
        if (!source) {
            SafeFile::fail(file.c_str());
        }
        SafeFile::Temporary part(shelf.get(), CopyShelf::partName);
        part.copyFrom(source.get());
        part.become(file.c_str(), SafeFile::Existing::Keep);
        shelf.add(file, all.back().fingerprint);
    }
    SafeFile::write(folder_, reachedName, moment.day + '\n', SafeFile::Existing::Replace);
}

std::string SecondPlace::line(const char* name) const
{
    constexpr std::size_t longest = 8192;
    std::string found = SafeFile::read(folder_, name, longest).value_or("");
    if (found.ends_with('\n')) {
        found.pop_back();
    }
    return found;
}
