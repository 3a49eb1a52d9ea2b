// SPDX-License-Identifier: MIT
#include "launcher/SafeFile.h"

#include "base/Handle.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <system_error>

#include <dirent.h>
#include <fcntl.h>

namespace SafeFile {
namespace {
constexpr mode_t userOnly = 0600;

/// What \a name is. A disk that does not answer is not taken for a missing file.
bool look(int folder, const char* name, Status& found)
{
    if (fstatat(folder, name, &found, AT_SYMLINK_NOFOLLOW) == 0) {
        return true;
    }
    if (errno != ENOENT && errno != ENOTDIR) {
        fail(name);
    }
    return false;
}

/// A rename that replaces nothing, for file systems that know no such rename.
int moveWithoutFlag(int fromFolder, const char* from, int toFolder, const char* to)
{
    if (exists(toFolder, to)) {
        errno = EEXIST;
        return -1;
    }
    return renameat(fromFolder, from, toFolder, to);
}
} // namespace

void fail(const char* what) { throw std::system_error(errno, std::generic_category(), what); }

Descriptor openFolder(int folder, const char* path)
{
    Descriptor opened(openat(folder, path, O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!opened) {
        fail(path);
    }
    return opened;
}

Descriptor openRegular(int folder, const char* name, int flags)
{
    constexpr int safely = O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
    Descriptor opened(openat(folder, name, flags | safely, userOnly));
    Status found{};
    // A second name may be that of somebody's file elsewhere.
    const bool isWritten = (flags & O_ACCMODE) != O_RDONLY;
    if (opened
        && (fstat(opened.get(), &found) != 0 || !S_ISREG(found.st_mode)
            || (isWritten && found.st_nlink > 1))) {
        opened.reset();
        errno = EINVAL;
    }
    return opened;
}

std::optional<std::string> read(int folder, const char* name, std::size_t limit)
{
    const Descriptor file = openRegular(folder, name, O_RDONLY);
    Status found{};
    if (!file || fstat(file.get(), &found) != 0
        || static_cast<std::size_t>(found.st_size) > limit) {
        return std::nullopt;
    }
    std::string bytes(static_cast<std::size_t>(found.st_size), '\0');
    std::size_t size = 0;
    ssize_t got = 0;
    while (size < bytes.size()
        && (got = ::read(file.get(), bytes.data() + size, bytes.size() - size)) > 0) {
        size += static_cast<std::size_t>(got);
    }
    if (got < 0) {
        return std::nullopt;
    }
    bytes.resize(size);
    return bytes;
}

bool exists(int folder, const char* name)
{
    Status found{};
    return look(folder, name, found);
}

bool isRegular(int folder, const char* name)
{
    Status found{};
    return look(folder, name, found) && S_ISREG(found.st_mode);
}

std::vector<std::string> names(int folder)
{
    Descriptor opened = openFolder(folder, ".");
    const Handle<DIR, closedir> entries(fdopendir(opened.get()));
    if (!entries) {
        fail("folder");
    }
    opened.release();
    std::vector<std::string> found;
    errno = 0;
    while (const dirent* entry = readdir(entries.get())) {
        found.emplace_back(entry->d_name);
    }
    if (errno != 0) {
        fail("folder");
    }
    return found;
}

bool remove(int folder, const char* name) noexcept
{
    return unlinkat(folder, name, 0) == 0 || errno == ENOENT;
}

void sync(int folder)
{
    // Some file systems of sticks and shares cannot sync a folder.
    if (fsync(folder) != 0 && errno != EINVAL && errno != ENOTSUP) {
        fail("fsync");
    }
}

void moveNew(int fromFolder, const char* from, int toFolder, const char* to)
{
    int result = renameat2(fromFolder, from, toFolder, to, RENAME_NOREPLACE);
    if (result != 0 && (errno == EINVAL || errno == ENOSYS || errno == ENOTSUP)) {
        result = moveWithoutFlag(fromFolder, from, toFolder, to);
    }
    if (result != 0) {
        fail(to);
    }
}

Temporary::Temporary(int folder, std::string name)
    : folder_(folder)
    , name_(std::move(name))
{
    constexpr int anew = O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
    remove(folder_, name_.c_str());
    file_ = Descriptor(openat(folder_, name_.c_str(), anew, userOnly));
    if (!file_) {
        fail(name_.c_str());
    }
}

Temporary::~Temporary()
{
    if (isThere_) {
        remove(folder_, name_.c_str());
    }
}

void Temporary::write(std::string_view bytes)
{
    while (!bytes.empty()) {
        const ssize_t written = ::write(file(), bytes.data(), bytes.size());
        if (written < 0) {
            if (errno != EINTR) {
                fail(name_.c_str());
            }
            continue;
        }
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
}

void Temporary::copyFrom(int source)
{
    constexpr std::size_t blockSize = 262144;
    std::string block(blockSize, '\0');
    ssize_t got = 0;
    while ((got = ::read(source, block.data(), block.size())) > 0) {
        write(std::string_view(block).substr(0, static_cast<std::size_t>(got)));
    }
    if (got < 0) {
        fail(name_.c_str());
    }
}

void Temporary::setTimes(const Status& original)
{
    const std::array<timespec, 2> times{original.st_atim, original.st_mtim};
    if (futimens(file(), times.data()) != 0) {
        fail(name_.c_str());
    }
}

void Temporary::sync()
{
    if (fsync(file()) != 0) {
        fail(name_.c_str());
    }
}

void Temporary::become(const char* name, Existing existing)
{
    sync();
    if (existing == Existing::Keep) {
        moveNew(folder_, name_.c_str(), folder_, name);
    } else if (renameat(folder_, name_.c_str(), folder_, name) != 0) {
        fail(name);
    }
    isThere_ = false;
    SafeFile::sync(folder_);
}

void write(int folder, const char* name, std::string_view bytes, Existing existing)
{
    Temporary part(folder, std::string(".") + name + ".neuf");
    part.write(bytes);
    part.become(name, existing);
}
} // namespace SafeFile
