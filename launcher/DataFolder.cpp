// SPDX-License-Identifier: MIT
#include "launcher/DataFolder.h"

#include "launcher/Clock.h"
#include "launcher/Refusal.h"
#include "launcher/SafeFile.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdlib>
#include <fstream>
#include <iomanip>
#include <sstream>
#include <thread>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

namespace {
constexpr const char* lockName = ".verrou";
constexpr mode_t forUser = 0700;
constexpr mode_t mayWrite = 0600;

constexpr const char* ending = "fin";

/// What the launcher that holds the lock has announced in the file \a lock.
std::string announced(int lock)
{
    std::array<char, 32> found{};
    const ssize_t size = pread(lock, found.data(), found.size(), 0);
    return {found.data(), static_cast<std::size_t>(std::max(size, ssize_t(0)))};
}

/// Gives a folder of this user, and no link to one, back to its user.
void openOwnFolder(int parent, const char* name)
{
    SafeFile::Status found{};
    const Descriptor folder(openat(parent, name, O_PATH | O_NOFOLLOW | O_CLOEXEC));
    if (folder && fstat(folder.get(), &found) == 0 && S_ISDIR(found.st_mode)) {
        chmod(("/proc/self/fd/" + std::to_string(folder.get())).c_str(), forUser);
    }
}

/// Every file directly in \a folder becomes its user's alone, who may write to it: one that came
/// from a CD is read-only. A file that has a name elsewhere, too, gets no new rights.
void closeFiles(int folder)
{
    for (const std::string& name : SafeFile::names(folder)) {
        SafeFile::Status found{};
        if (fstatat(folder, name.c_str(), &found, AT_SYMLINK_NOFOLLOW) != 0
            || !S_ISREG(found.st_mode)) {
            continue;
        }
        const mode_t rights
            = found.st_nlink > 1 ? found.st_mode & forUser : (found.st_mode & forUser) | mayWrite;
        if (rights != (found.st_mode & ALLPERMS)) {
            // Neither reads the file, which may be forbidden, nor follows what took its place.
            const Descriptor file(openat(folder, name.c_str(), O_PATH | O_NOFOLLOW | O_CLOEXEC));
            chmod(("/proc/self/fd/" + std::to_string(file.get())).c_str(), rights);
        }
    }
}
/// The device of the open file \a file as the kernel names it in its list of locks, "fd:01". It is
/// that of the mount: some file systems name another in a file's status.
std::string deviceOf(int file)
{
    struct statx status = {};
    if (statx(file, "", AT_EMPTY_PATH, STATX_MNT_ID, &status) != 0) {
        return {};
    }
    std::ifstream mounts("/proc/self/mountinfo");
    std::string line;
    while (std::getline(mounts, line)) {
        unsigned long long id = 0;
        unsigned long long parent = 0;
        unsigned major = 0;
        unsigned minor = 0;
        char colon = 0;
        std::istringstream fields(line);
        if (fields >> id >> parent >> major >> colon >> minor && id == status.stx_mnt_id) {
            std::ostringstream device;
            device << std::hex << std::setfill('0') << std::setw(2) << major << ':' << std::setw(2)
                   << minor;
            return device.str();
        }
    }
    return {};
}
} // namespace

std::string DataFolder::find()
{
    const char* data = std::getenv("XDG_DATA_HOME");
    if (data != nullptr && *data == '/') {
        return std::string(data) + "/vendel";
    }
    const char* home = std::getenv("HOME");
    if (home != nullptr && *home != '\0') {
        return std::string(home) + "/.local/share/vendel";
    }
    return {};
}

Language DataFolder::language(const std::string& path)
{
    constexpr std::size_t longest = 4096;
    const Descriptor folder(open(path.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
    const auto remembered = SafeFile::read(folder.get(), "langue", longest);
    return remembered && remembered->starts_with("en") ? Language::English : Language::French;
}

bool DataFolder::isLocked(int folder)
{
    const Descriptor file = SafeFile::openRegular(folder, lockName, O_RDONLY);
    const std::string device = file ? deviceOf(file.get()) : std::string();
    SafeFile::Status found{};
    if (device.empty() || fstat(file.get(), &found) != 0) {
        return false;
    }
    const std::string place = ' ' + device + ':' + std::to_string(found.st_ino) + ' ';
    std::ifstream locks("/proc/locks");
    std::string line;
    while (std::getline(locks, line)) {
        if (line.find(" FLOCK ") != std::string::npos && line.find(" WRITE ") != std::string::npos
            && line.find(place) != std::string::npos) {
            return true;
        }
    }
    return false;
}

DataFolder::DataFolder(std::string path)
    : path_(std::move(path))
{
    if (path_.empty()) {
        throw Refusal(Sentences::noHome);
    }
    SafeFile::Status found{};
    if (stat(path_.c_str(), &found) != 0) {
        make();
    }
    if (stat(path_.c_str(), &found) == 0 && !S_ISDIR(found.st_mode)) {
        throw unusable(Sentences::notDirectory);
    }
    folder_ = Descriptor(open(path_.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!folder_ || fchdir(folder_.get()) != 0 || fstat(folder_.get(), &found) != 0) {
        throw unusable(Sentences::notReadable);
    }
    if (found.st_uid != geteuid()) {
        throw unusable(Sentences::notOurs);
    }
    if (faccessat(folder_.get(), ".", W_OK, AT_EACCESS) != 0) {
        throw unusable(Sentences::notWritable);
    }
    // The till finds itself where it was told to be, even through a link.
    setenv("PWD", path_.c_str(), 1);
}

void DataFolder::make() const
{
    for (std::size_t end = path_.find('/', 1); end != std::string::npos;
         end = path_.find('/', end + 1)) {
        mkdir(path_.substr(0, end).c_str(), forUser);
    }
    if (mkdir(path_.c_str(), forUser) != 0) {
        throw unusable(Sentences::notMade);
    }
}

void DataFolder::lock()
{
    lock_ = SafeFile::openRegular(folder_.get(), lockName, O_RDWR | O_CREAT);
    if (!lock_) {
        throw unusable(Sentences::notWritable);
    }
    constexpr double longestEnd = 150;
    constexpr std::chrono::milliseconds pause(20);
    const double begun = steadySeconds();
    while (flock(lock_.get(), LOCK_EX | LOCK_NB) != 0) {
        const std::string state = announced(lock_.get());
        if (state != ending || steadySeconds() - begun > longestEnd) {
            lock_.reset();
            throw AlreadyOpen({Sentences::alreadyOpen, {path_}}, std::atoi(state.c_str()));
        }
        std::this_thread::sleep_for(pause);
    }
    announce({});
}

void DataFolder::announceTill(pid_t till) const { announce(std::to_string(till)); }

void DataFolder::announceEnd() const { announce(ending); }

/// A start that does not learn of it says that the till is open, which is true.
void DataFolder::announce(const std::string& state) const
{
    if (ftruncate(lock_.get(), 0) == 0) {
        [[maybe_unused]] const ssize_t size = pwrite(lock_.get(), state.data(), state.size(), 0);
    }
}

void DataFolder::close()
{
    fchmod(folder_.get(), forUser);
    closeFiles(folder_.get());
    openOwnFolder(folder_.get(), "copies");
    const Descriptor copies(
        openat(folder_.get(), "copies", O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    if (copies) {
        closeFiles(copies.get());
    }
}

Refusal DataFolder::unusable(const Words& reason) const
{
    return Refusal({Sentences::dataUnusable, {path_, reason}});
}
