// SPDX-License-Identifier: MIT
#pragma once

#include "base/Descriptor.h"
#include "launcher/Sentences.h"

#include <string>

#include <sys/types.h>

class Refusal;

/// The folder with all that belongs to one shop. It is its user's alone.
class DataFolder
{
public:
    /// Where it is, by the environment: empty when no home is known.
    static std::string find();
    /// The language that the shop in \a path remembers.
    static Language language(const std::string& path);

    /// Whether a till holds the lock of the data folder \a folder. The lock is not touched: a till
    /// that starts at this moment would find it taken.
    static bool isLocked(int folder);

    /// Makes the folder when it is missing, and changes into it. Throws Refusal.
    explicit DataFolder(std::string path);

    /// Keeps any other till away from the folder until the lock and all copies of it are closed.
    /// Waits for a launcher whose till has ended and that makes its last copy. Throws AlreadyOpen
    /// or another Refusal.
    void lock();
    /// Lets a next start find the process \a till.
    void announceTill(pid_t till) const;
    /// Lets a next start wait for this launcher, which has little left to do.
    void announceEnd() const;
    /// Lets others in.
    void unlock() { lock_.reset(); }
    /// Takes from all others what they might read here.
    void close();

    const std::string& path() const { return path_; }
    /// A descriptor of the folder.
    int get() const { return folder_.get(); }
    /// The lock, -1 when it is not taken.
    int lockFile() const { return lock_.get(); }

    /// That the folder cannot be used, because of \a reason.
    Refusal unusable(const Words& reason) const;

private:
    void make() const;
    void announce(const std::string& state) const;

    std::string path_;
    Descriptor folder_;
    Descriptor lock_;
};
