// SPDX-License-Identifier: MIT
#include "launcher/DataFolder.h"

#include "launcher/Refusal.h"
#include "launcher/SafeFile.h"

#include <cstdlib>
#include <fstream>
#include <iomanip>
#include <sstream>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

namespace {
constexpr const char* lockName = ".verrou";
constexpr mode_t forUser = 0700;

/// Every file directly in \a folder becomes its user's alone; what its user may do with it stays.
void closeFiles(int folder)
{
    for (const std::string& name : SafeFile::names(folder)) {
        SafeFile::Status found{};
        if (fstatat(folder, name.c_str(), &found, AT_SYMLINK_NOFOLLOW) != 0
            || !S_ISREG(found.st_mode) || (found.st_mode & ~forUser & ALLPERMS) == 0) {
            continue;
        }
        if (const Descriptor file = SafeFile::openRegular(folder, name.c_str(), O_RDONLY)) {
            fchmod(file.get(), found.st_mode & forUser);
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
    if (flock(lock_.get(), LOCK_EX | LOCK_NB) != 0) {
        lock_.reset();
        throw Refusal({Sentences::alreadyOpen, {path_}});
    }
}

void DataFolder::close()
{
    fchmod(folder_.get(), forUser);
    closeFiles(folder_.get());
    const Descriptor copies(
        openat(folder_.get(), "copies", O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    SafeFile::Status found{};
    if (copies && fstat(copies.get(), &found) == 0) {
        fchmod(copies.get(), found.st_mode & forUser);
        closeFiles(copies.get());
    }
}

Refusal DataFolder::unusable(const Words& reason) const
{
    return Refusal({Sentences::dataUnusable, {path_, reason}});
}
