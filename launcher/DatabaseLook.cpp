// SPDX-License-Identifier: MIT
#include "launcher/DatabaseLook.h"

#include "launcher/Aside.h"
#include "launcher/Backup.h"
#include "launcher/CopyChoice.h"
#include "launcher/Database.h"
#include "launcher/FileClaim.h"
#include "launcher/Journals.h"
#include "launcher/SafeFile.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <filesystem>
#include <memory>
#include <string_view>
#include <system_error>
#include <vector>

#include <fcntl.h>
#include <sys/statvfs.h>

namespace {
using Verdict = DatabaseLook::Verdict;

constexpr const char* databaseName = "Vendel.db";
/// Followed by the number of the process that looks, so that two of them do not disturb each other.
constexpr std::string_view prefix = ".Vendel.etat-";

/// The copy that is checked, and what SQLite puts beside it: none of it stays.
class CheckedCopy
{
public:
    /// In "copies", or in the data folder \a folder itself, so that no folder is made for it.
    explicit CheckedCopy(int folder)
        : shelf_(openat(folder, "copies", O_RDONLY | O_DIRECTORY | O_CLOEXEC))
        , name_(std::string(prefix) + std::to_string(getpid()))
        , path_(shelf_ ? "copies/" + name_ : name_)
    {
        if (!shelf_) {
            shelf_ = SafeFile::openFolder(folder, ".");
        }
        DatabaseLook::sweep(shelf_.get());
    }
    CheckedCopy(const CheckedCopy&) = delete;
    CheckedCopy& operator=(const CheckedCopy&) = delete;
    CheckedCopy(CheckedCopy&&) = delete;
    CheckedCopy& operator=(CheckedCopy&&) = delete;
    ~CheckedCopy()
    {
        for (const char* suffix : {"", "-journal", "-wal", "-shm"}) {
            SafeFile::remove(shelf_.get(), (name_ + suffix).c_str());
        }
    }

    int shelf() const { return shelf_.get(); }
    const std::string& name() const { return name_; }
    /// From the data folder.
    const std::string& path() const { return path_; }

private:
    Descriptor shelf_;
    std::string name_;
    std::string path_;
};

/// What changes when somebody writes into the file \a path; empty when there is none.
std::string traceOf(const std::string& path)
{
    SafeFile::Status found{};
    if (stat(path.c_str(), &found) != 0) {
        return {};
    }
    return std::to_string(found.st_ino) + ' ' + std::to_string(found.st_size) + ' '
        + std::to_string(found.st_mtim.tv_sec) + '.' + std::to_string(found.st_mtim.tv_nsec);
}

std::string tracesOf(const std::string& database)
{
    return traceOf(database) + '/' + traceOf(database + "-journal") + '/'
        + traceOf(database + "-wal");
}

using Files = std::vector<std::unique_ptr<SafeFile::Temporary>>;

/// Copies \a database with its journals as files: SQLite would end in the shop's own files what was
/// cut off there, and does so in the copy instead.
Files copyWithJournals(const std::string& database, const CheckedCopy& copy)
{
    constexpr int tries = 3;
    if (!Journals::areSafe(database)) {
        throw DatabaseError(Sentences::foreignJournal);
    }
    for (int count = 0; count < tries; ++count) {
        const std::string before = tracesOf(database);
        Files files;
        for (const char* suffix : {"", "-journal", "-wal"}) {
            const std::string from = database + suffix;
            if (!SafeFile::exists(AT_FDCWD, from.c_str())) {
                continue;
            }
            const Descriptor source = SafeFile::openRegular(AT_FDCWD, from.c_str(), O_RDONLY);
            if (!source) {
                SafeFile::fail(from.c_str());
            }
            files.push_back(
                std::make_unique<SafeFile::Temporary>(copy.shelf(), copy.name() + suffix));
            files.back()->copyFrom(source.get());
        }
        if (tracesOf(database) == before) {
            return files;
        }
    }
    throw DatabaseError(SQLITE_BUSY);
}

/// Whether the setting of the sound \a copy is to print receipts on paper.
bool readsOnPaper(const std::string& copy)
{
    constexpr double seconds = 10;
    Database database(copy, seconds);
    database.schema();
    return database.printsOnPaper();
}

/// Brings the database into \a copy, fails unless it is sound, and returns whether its setting is
/// to print receipts on paper.
bool check(const CheckedCopy& copy, bool isTillOpen)
{
    constexpr double seconds = 10;
    constexpr double claimSeconds = 2;
    const FileClaim claim(AT_FDCWD, FileClaim::Purpose::Look, claimSeconds);
    const std::string database = std::filesystem::canonical(databaseName).string();
    const bool hasJournal = SafeFile::exists(AT_FDCWD, (database + "-journal").c_str());
    // The journal of a till at work is its own: SQLite sees that it is in use, and waits for it.
    if (Journals::hasWal(database) || (hasJournal && !isTillOpen)) {
        const Files files = copyWithJournals(database, copy);
        requireSound(copy.path());
        return readsOnPaper(copy.path());
    }
    Database(databaseName, seconds, Database::Sharing::WithTill).requireReadable();
    const SafeFile::Temporary part(copy.shelf(), copy.name());
    Backup::bring(databaseName, copy.path(), Backup::Pace::Gentle);
    requireSound(copy.path());
    return readsOnPaper(copy.path());
}

bool hasRoom(const CheckedCopy& copy, off_t size)
{
    // The till goes on writing meanwhile.
    constexpr unsigned long long spare = 16777216;
    struct statvfs room = {};
    return fstatvfs(copy.shelf(), &room) == 0
        && room.f_bavail * room.f_frsize / 2 >= static_cast<unsigned long long>(size) + spare;
}

DatabaseLook unusable(DatabaseLook look, const Words& reason)
{
    look.verdict = Verdict::Unusable;
    look.reason = reason;
    return look;
}

DatabaseLook unchecked(DatabaseLook look, const Words& reason)
{
    look.verdict = Verdict::Unchecked;
    look.reason = reason;
    return look;
}

DatabaseLook judge(const CheckedCopy& copy, bool isTillOpen)
{
    DatabaseLook look;
    SafeFile::Status found{};
    if (stat(databaseName, &found) != 0 || !S_ISREG(found.st_mode)) {
        return unusable(look, Sentences::notFile);
    }
    look.size = CopyChoice::readableSize(static_cast<unsigned long long>(found.st_size));
    if (faccessat(AT_FDCWD, databaseName, R_OK | W_OK, AT_EACCESS) != 0) {
        return unusable(look, Sentences::notAccessible);
    }
    if (!hasRoom(copy, found.st_size)) {
        return unchecked(look, Sentences::noRoomToCheck);
    }
    try {
        look.isOnPaper = check(copy, isTillOpen);
        look.verdict = Verdict::Sound;
        return look;
    } catch (const DatabaseError& error) {
        return error.isAboutContent() ? unusable(look, error.reason())
                                      : unchecked(look, error.reason());
    } catch (const std::system_error& error) {
        return unchecked(look, error.code().message());
    }
}

// The look comes back from another process as its fields, each with a zero byte behind it.
std::string packed(const DatabaseLook& look)
{
    std::string all;
    for (const std::string& field : {std::to_string(static_cast<int>(look.verdict)), look.size,
             look.reason.french, look.reason.english, std::string(look.isOnPaper ? "1" : "0")}) {
        all += field + '\0';
    }
    return all;
}

DatabaseLook unpacked(std::string_view all)
{
    std::array<std::string, 5> fields;
    for (std::string& field : fields) {
        const std::size_t size = std::min(all.find('\0'), all.size());
        field = all.substr(0, size);
        all.remove_prefix(std::min(size + 1, all.size()));
    }
    DatabaseLook look;
    look.verdict = static_cast<Verdict>(std::stoi(fields[0]));
    look.size = fields[1];
    look.reason.french = fields[2];
    look.reason.english = fields[3];
    look.isOnPaper = fields[4] == "1";
    return look;
}
} // namespace

DatabaseLook DatabaseLook::at(int folder, bool isTillOpen, const Aside& aside, double seconds)
{
    if (!SafeFile::exists(folder, databaseName)) {
        return {};
    }
    const CheckedCopy copy(folder);
    const auto answer = aside.run(seconds, [&] { return packed(judge(copy, isTillOpen)); });
    return answer ? unpacked(*answer) : unchecked({}, Sentences::checkNotEnded);
}

void DatabaseLook::sweep(int shelf) noexcept
{
    constexpr std::size_t longestNumber = 9;
    try {
        for (const std::string& name : SafeFile::names(shelf)) {
            if (!name.starts_with(prefix)) {
                continue;
            }
            const std::size_t end = name.find_first_not_of("0123456789", prefix.size());
            const std::string number = name.substr(prefix.size(), end - prefix.size());
            const bool isNumber = !number.empty() && number.size() <= longestNumber;
            if (isNumber && kill(std::stoi(number), 0) != 0 && errno == ESRCH) {
                SafeFile::remove(shelf, name.c_str());
            }
        }
    } catch (const std::system_error&) {
        // What cannot be listed is left for another time.
        return;
    }
}
