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
    constexpr off_t versions = 18;
    constexpr char walVersion = 2;
    std::array<char, 2> found{};
    const Descriptor file(open(database.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    const bool isRead = file && pread(file.get(), found.data(), found.size(), versions) == 2;
    return (isRead && (found[0] == walVersion || found[1] == walVersion))
        || SafeFile::exists(AT_FDCWD, (database + "-wal").c_str());
}
} // namespace Journals
