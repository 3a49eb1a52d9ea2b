// SPDX-License-Identifier: MIT
#include "launcher/Journals.h"

#include "launcher/SafeFile.h"

#include <string_view>

#include <fcntl.h>

namespace Journals {
namespace {
/// Whether \a journal ends with the name of a journal for several databases. The till has only one.
bool namesAnother(int journal)
{
    using namespace std::string_view_literals;
    constexpr std::string_view magic = "\xd9\xd5\x05\xf9\x20\xa1\x63\xd7"sv;
    std::array<char, magic.size()> end{};
    const off_t size = lseek(journal, 0, SEEK_END);
    constexpr auto length = static_cast<ssize_t>(magic.size());
    return size >= length && pread(journal, end.data(), end.size(), size - length) == length
        && std::string_view(end.data(), end.size()) == magic;
}

bool isSafe(const std::string& journal)
{
    const Descriptor file = SafeFile::openRegular(AT_FDCWD, journal.c_str(), O_RDONLY);
    // A till that sells deletes its journal at any moment, so what could not be opened may be gone.
    return file ? !namesAnother(file.get()) : !SafeFile::exists(AT_FDCWD, journal.c_str());
}

constexpr unsigned char walVersion = 2;

/// What SQLite needs to write and to read \a database, as its header says; 0 when nobody knows.
std::array<unsigned char, 2> versionsIn(const std::string& database)
{
    constexpr off_t place = 18;
    std::array<unsigned char, 2> found{};
    const Descriptor file(open(database.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    const bool isRead = file && pread(file.get(), found.data(), found.size(), place) == 2;
    return isRead ? found : std::array<unsigned char, 2>{};
}
} // namespace

bool areSafe(const std::string& database)
{
    for (const char* suffix : suffixes) {
        if (!isSafe(database + suffix)) {
            return false;
        }
    }
    return true;
}

bool hasWal(const std::string& database)
{
    const auto versions = versionsIn(database);
    return versions[0] == walVersion || versions[1] == walVersion
        || SafeFile::exists(AT_FDCWD, (database + "-wal").c_str());
}

bool isOfLaterSqlite(const std::string& database) { return versionsIn(database)[0] > walVersion; }
} // namespace Journals
