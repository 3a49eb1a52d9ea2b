// SPDX-License-Identifier: MIT
#include "launcher/Restore.h"

#include "launcher/CopyChoice.h"
#include "launcher/Database.h"
#include "launcher/DataFolder.h"
#include "launcher/FileClaim.h"
#include "launcher/Journals.h"
#include "launcher/KeptJournals.h"
#include "launcher/Refusal.h"
#include "launcher/Replaced.h"
#include "launcher/SafeFile.h"
#include "launcher/Speech.h"

#include <algorithm>
#include <memory>
#include <system_error>
#include <utility>

#include <fcntl.h>

namespace Restore {
namespace {
/// The copy, brought beside the database that it replaces and checked there.
class Newcomer
{
public:
    Newcomer(const Target& target, std::string name, int shelf)
        : target_(target)
        , name_(std::move(name))
        , base_(target.base + ".neuf")
        , part_(target.folder.get(), base_)
    {
        const std::string stem = "Vendel-" + name_;
        const Descriptor source = SafeFile::openRegular(shelf, (stem + ".db").c_str(), O_RDONLY);
        if (!source || fstat(source.get(), &original_) != 0) {
            SafeFile::fail(stem.c_str());
        }
        part_.copyFrom(source.get());
        // Only a database that the launcher itself replaced has a journal that belongs to it.
        if (name_.starts_with("remplacee-")) {
            bringJournal(shelf, stem + ".journal", "-journal");
            bringJournal(shelf, stem + ".wal", "-wal");
        }
    }
    Newcomer(const Newcomer&) = delete;
    Newcomer& operator=(const Newcomer&) = delete;
    Newcomer(Newcomer&&) = delete;
    Newcomer& operator=(Newcomer&&) = delete;
    ~Newcomer() { removeJournals(target_); }

    /// Removes what an earlier try may have left for SQLite beside the copy; false when it stays.
    static bool removeJournals(const Target& target)
    {
        return std::all_of(
            Journals::suffixes.begin(), Journals::suffixes.end(), [&](const char* suffix) {
                return SafeFile::remove(
                    target.folder.get(), (target.base + ".neuf" + suffix).c_str());
            });
    }

    void check()
    {
        requireSound(target_.path() + ".neuf");
        part_.setTimes(original_);
        part_.sync();
    }
    void takePlace() { part_.become(target_.base.c_str(), SafeFile::Existing::Replace); }
    bool hasTakenPlace() const { return !part_.isThere(); }

private:
    void bringJournal(int shelf, const std::string& kept, const char* suffix) const
    {
        if (!SafeFile::exists(shelf, kept.c_str())) {
            return;
        }
        const Descriptor source = SafeFile::openRegular(shelf, kept.c_str(), O_RDONLY);
        if (!source) {
            SafeFile::fail(kept.c_str());
        }
        if (!KeptJournals::isKnown(shelf, kept, source.get())) {
            return;
        }
        const std::string journal = base_ + suffix;
        SafeFile::Temporary part(target_.folder.get(), journal);
        part.copyFrom(source.get());
        part.become(journal.c_str(), SafeFile::Existing::Replace);
    }

    const Target& target_;
    std::string name_;
    std::string base_;
    SafeFile::Temporary part_;
    SafeFile::Status original_{};
};

Target findTarget(const DataFolder& folder)
{
    try {
        return Target("Vendel.db");
    } catch (const std::system_error&) {
        throw Refusal({Sentences::databaseUnusable, {folder.path(), Sentences::notFile}});
    }
}

/// Why the copy \a name is not put back.
Refusal notRestored(const DataFolder& folder, const std::string& name, const DatabaseError& error)
{
    switch (error.code()) {
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
        return Refusal({Sentences::copyDamaged, {name}});
    case SQLITE_AUTH:
    case SQLITE_INTERRUPT:
    case SQLITE_NOMEM:
    case SQLITE_BUSY:
        return Refusal({Sentences::copyRefused, {name, error.reason()}});
    default:
        return folder.unusable(Sentences::notWritable);
    }
}

std::unique_ptr<Newcomer> bring(
    const DataFolder& folder, const Target& target, const std::string& name, int shelf)
{
    try {
        if (!Newcomer::removeJournals(target)) {
            SafeFile::fail("journal");
        }
        auto copy = std::make_unique<Newcomer>(target, name, shelf);
        copy->check();
        return copy;
    } catch (const DatabaseError& error) {
        throw notRestored(folder, name, error);
    } catch (const std::system_error&) {
        throw folder.unusable(Sentences::notWritable);
    }
}

/// Whoever looks at the database is done within this time.
FileClaim claimFile(const DataFolder& folder)
{
    constexpr double seconds = 90;
    try {
        return {folder.get(), FileClaim::Purpose::Replace, seconds};
    } catch (const DatabaseError& error) {
        throw Refusal({Sentences::databaseUnusable, {folder.path(), error.reason()}});
    }
}

std::unique_ptr<Replaced> keep(const DataFolder& folder, const Target& target, int shelf)
{
    try {
        return std::make_unique<Replaced>(target, shelf);
    } catch (const std::system_error&) {
        throw folder.unusable(Sentences::notKept);
    }
}

void exchange(const DataFolder& folder, Newcomer& copy, Replaced& old)
{
    try {
        old.settle();
        copy.takePlace();
    } catch (const DatabaseError& error) {
        throw Refusal({Sentences::databaseUnusable, {folder.path(), error.reason()}});
    } catch (const std::system_error&) {
        if (copy.hasTakenPlace()) {
            old.stay();
        }
        throw folder.unusable(Sentences::notWritable);
    }
    old.stay();
}

bool isName(const std::string& name)
{
    return std::all_of(name.begin(), name.end(), [](char letter) {
        return (letter >= '0' && letter <= '9') || (letter >= 'a' && letter <= 'z')
            || (letter >= 'A' && letter <= 'Z') || letter == '-';
    });
}
} // namespace

void run(DataFolder& folder, const Speech& speech, std::string name)
{
    const Copies copies(folder.get());
    const auto items = CopyChoice::items(copies);
    if (items.empty()) {
        throw Refusal({Sentences::noCopies, {folder.path()}});
    }
    if (name.empty()) {
        folder.unlock();
        name = CopyChoice::ask(items, speech);
        folder.lock();
    }
    if (name.empty()) {
        return;
    }
    const CopyShelf shelf = copies.shelf();
    if (!isName(name) || !SafeFile::isRegular(shelf.get(), ("Vendel-" + name + ".db").c_str())) {
        throw Refusal({Sentences::noSuchCopy, {name, folder.path()}});
    }
    const Target target = findTarget(folder);
    const auto copy = bring(folder, target, name, shelf.get());
    const FileClaim claim = claimFile(folder);
    const auto old = keep(folder, target, shelf.get());
    exchange(folder, *copy, *old);
    Words kept("");
    if (!old->name().empty()) {
        kept = Words(Sentences::replacedKept, {folder.path() + "/copies/" + old->name()});
    }
    speech.done({Sentences::restored, {name, kept}});
}
} // namespace Restore
