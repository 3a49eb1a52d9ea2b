// SPDX-License-Identifier: MIT
#pragma once

#include "base/Descriptor.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <sys/stat.h>

/// Files in a folder that somebody else may have put things into: no link is followed, no FIFO
/// waited for, and a name has either its old file or the whole new one. Folders are descriptors,
/// failures are std::system_error.
namespace SafeFile {
using Status = struct stat;

/// Throws errno, which \a what caused.
[[noreturn]] void fail(const char* what);

/// The folder \a path; throws when it is none or cannot be read.
Descriptor openFolder(int folder, const char* path);

/// The regular file \a name opened with \a flags, empty when there is none that can be.
Descriptor openRegular(int folder, const char* name, int flags);

/// The bytes of the regular file \a name, unless it is larger than \a limit or cannot be read.
std::optional<std::string> read(int folder, const char* name, std::size_t limit);

/// Whether \a name is anything at all, be it a link that leads nowhere. Throws when nobody knows.
bool exists(int folder, const char* name);

/// Whether \a name is a regular file and no link. Throws when nobody knows.
bool isRegular(int folder, const char* name);

/// The names of all that is in \a folder, in no order.
std::vector<std::string> names(int folder);

/// Removes \a name when it is there; false when it stays.
bool remove(int folder, const char* name) noexcept;

/// Makes what was renamed in \a folder outlast a power cut.
void sync(int folder);

/// Renames, but replaces nothing: throws EEXIST.
void moveNew(int fromFolder, const char* from, int toFolder, const char* to);

/// What happens to a file that already has the name.
enum class Existing
{
    Replace,
    Keep
};

/// A file under a name that nobody reads yet. It is removed unless it became something.
class Temporary
{
public:
    /// Makes the empty file \a name for its user alone, in place of what an earlier try left.
    Temporary(int folder, std::string name);
    Temporary(const Temporary&) = delete;
    Temporary& operator=(const Temporary&) = delete;
    Temporary(Temporary&&) = delete;
    Temporary& operator=(Temporary&&) = delete;
    ~Temporary();

    int file() const { return file_.get(); }
    void write(std::string_view bytes);
    /// Appends what \a source has from its present place on.
    void copyFrom(int source);
    /// Takes over the times of \a original.
    void setTimes(const Status& original);
    void sync();
    /// Whether it still has its first name.
    bool isThere() const { return isThere_; }
    /// Gives the synced file its name \a name in the same folder, and syncs that.
    void become(const char* name, Existing existing);

private:
    int folder_;
    std::string name_;
    Descriptor file_;
    bool isThere_ = true;
};

/// Writes \a bytes as the file \a name.
void write(int folder, const char* name, std::string_view bytes, Existing existing);
} // namespace SafeFile
