// SPDX-License-Identifier: MIT
#pragma once

#include "base/Descriptor.h"

#include <string>
#include <vector>

#include <sys/stat.h>

/// Where a database really is, with the journals beside it.
struct Target
{
    /// Follows the links of \a name. Throws std::system_error when they lead nowhere.
    explicit Target(const std::string& name);

    std::string path() const { return folderPath + '/' + base; }

    std::string folderPath;
    std::string base;
    Descriptor folder;
};

/// The database that a copy replaces, kept among the copies byte for byte, whatever it is. Unless
/// it is told to stay, what was kept is removed again.
class Replaced
{
public:
    /// Keeps what \a target has in the folder \a shelf. Throws std::system_error.
    Replaced(const Target& target, int shelf);
    Replaced(const Replaced&) = delete;
    Replaced& operator=(const Replaced&) = delete;
    Replaced(Replaced&&) = delete;
    Replaced& operator=(Replaced&&) = delete;
    ~Replaced();

    /// Leaves no journal at the target that would be applied to the file that takes its place.
    /// Throws DatabaseError or std::system_error, and then the old database still has its journal.
    void settle();
    void stay() { stays_ = true; }

    /// The kept database's name in the folder of the copies; empty when there was none.
    const std::string& name() const { return name_; }

private:
    enum class Kind
    {
        Database,
        Journal
    };

    void keep(const std::string& file, const std::string& name, Kind kind);
    bool keepUnread(const std::string& file, const std::string& name);
    void discard() noexcept;
    bool rollBack() const;

    const Target& target_;
    int shelf_;
    std::string name_;
    std::vector<std::string> kept_;
    bool stays_ = false;
    bool isFile_ = false;
    bool isUnread_ = false;
};
