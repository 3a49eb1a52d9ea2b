// SPDX-License-Identifier: MIT
#include "launcher/Replaced.h"

#include "launcher/Clock.h"
#include "launcher/Copies.h"
#include "launcher/Database.h"
#include "launcher/Journals.h"
#include "launcher/KeptJournals.h"
#include "launcher/SafeFile.h"

#include <cerrno>
#include <cstdlib>
#include <system_error>

#include <fcntl.h>

namespace {
/// What the link \a path says, empty when it is none.
std::string linkIn(const std::string& path)
{
    std::string text(4096, '\0');
    const ssize_t size = readlink(path.c_str(), text.data(), text.size());
    text.resize(size < 0 ? 0 : static_cast<std::size_t>(size));
    return text;
}

std::string folderOf(const std::string& path)
{
    const std::size_t slash = path.rfind('/');
    return slash == std::string::npos ? "." : slash == 0 ? "/" : path.substr(0, slash);
}

std::string realFolder(const std::string& path)
{
    const Handle<char, std::free> real(realpath(folderOf(path).c_str(), nullptr));
    if (!real) {
        SafeFile::fail(path.c_str());
    }
    return real.get();
}
} // namespace

Target::Target(const std::string& name)
{
    constexpr int longest = 40;
    std::string path = name;
    std::string leadsTo;
    for (int links = 0; !(leadsTo = linkIn(path)).empty(); ++links) {
        if (links == longest) {
            errno = ELOOP;
            SafeFile::fail(name.c_str());
        }
        if (leadsTo.front() != '/') {
            leadsTo.insert(0, folderOf(path) + '/');
        }
        path = leadsTo;
    }
    folderPath = realFolder(path);
    base = path.substr(path.rfind('/') + 1);
    folder = SafeFile::openFolder(AT_FDCWD, folderPath.c_str());
}

Replaced::Replaced(const Target& target, int shelf)
    : target_(target)
    , shelf_(shelf)
{
    const int folder = target_.folder.get();
    const std::string stem = Copies::freeStem(shelf_, "remplacee", now());
    isFile_ = SafeFile::isRegular(folder, target_.base.c_str());
    try {
        keep(target_.base + "-journal", stem + ".journal", Kind::Journal);
        keep(target_.base + "-wal", stem + ".wal", Kind::Journal);
        if (isFile_) {
            keep(target_.base, stem + ".db", Kind::Database);
            name_ = stem + ".db";
        } else if (SafeFile::exists(folder, target_.base.c_str())) {
            SafeFile::moveNew(folder, target_.base.c_str(), shelf_, (stem + ".db").c_str());
            name_ = stem + ".db";
            stays_ = true;
            SafeFile::sync(shelf_);
        }
    } catch (const std::system_error&) {
        discard();
        throw;
    }
}

Replaced::~Replaced() { discard(); }

void Replaced::discard() noexcept
{
    if (!stays_) {
        for (const std::string& file : kept_) {
            SafeFile::remove(shelf_, file.c_str());
        }
    }
}

void Replaced::keep(const std::string& file, const std::string& name, Kind kind)
{
    const int folder = target_.folder.get();
    if (!SafeFile::isRegular(folder, file.c_str())) {
        return;
    }
    const Descriptor source = SafeFile::openRegular(folder, file.c_str(), O_RDONLY);
    SafeFile::Status original{};
    if (!source || fstat(source.get(), &original) != 0) {
        SafeFile::fail(file.c_str());
    }
    SafeFile::Temporary part(shelf_, CopyShelf::partName);
    try {
        part.copyFrom(source.get());
    } catch (const std::system_error& error) {
        if (error.code().value() != EIO || !keepUnread(file, name)) {
            throw;
        }
        return;
    }
    part.setTimes(original);
    if (kind == Kind::Journal) {
        KeptJournals::remember(shelf_, name, part.file());
    }
    // It is there from its rename on, even when the folder then cannot be synced.
    kept_.push_back(name);
    part.become(name.c_str(), SafeFile::Existing::Keep);
}

/// Gives a file that the disk does not give back a second name: what can still be read of it is
/// kept. False when the copies are on another disk, or this one knows no second names.
bool Replaced::keepUnread(const std::string& file, const std::string& name)
{
    if (linkat(target_.folder.get(), file.c_str(), shelf_, name.c_str(), 0) != 0) {
        return false;
    }
    kept_.push_back(name);
    isUnread_ = true;
    SafeFile::sync(shelf_);
    return true;
}

void Replaced::settle()
{
    const int folder = target_.folder.get();
    if (isFile_ && (isUnread_ || !rollBack())) {
        // The old file is no database without its journal, nor with it: both are kept.
        stays_ = true;
    }
    bool isAnyGone = false;
    for (const char* suffix : Journals::suffixes) {
        const std::string journal = target_.base + suffix;
        if (SafeFile::exists(folder, journal.c_str())) {
            stays_ = stays_ || !isFile_;
            isAnyGone = true;
            if (!SafeFile::remove(folder, journal.c_str())) {
                SafeFile::fail(journal.c_str());
            }
        }
    }
    if (isAnyGone) {
        SafeFile::sync(folder);
    }
}

/// Lets SQLite end what was cut off in the old database. False when it cannot be made sound.
bool Replaced::rollBack() const
{
    constexpr double seconds = 60;
    constexpr mode_t writable = 0600;
    if (const Descriptor file
        = SafeFile::openRegular(target_.folder.get(), target_.base.c_str(), O_RDONLY)) {
        fchmod(file.get(), writable);
    }
    try {
        Database database(target_.path(), seconds);
        database.schema();
        database.endWal();
        database.requireAlone();
    } catch (const DatabaseError& error) {
        switch (error.code()) {
        case SQLITE_BUSY:
        case SQLITE_LOCKED:
        case SQLITE_IOERR:
        case SQLITE_FULL:
        case SQLITE_NOMEM:
        case SQLITE_CANTOPEN:
            throw;
        default:
            return false;
        }
    }
    return true;
}
