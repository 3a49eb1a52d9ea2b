// SPDX-License-Identifier: MIT
#include "launcher/StartCheck.h"

#include "launcher/Copies.h"
#include "launcher/Database.h"
#include "launcher/DatabaseLook.h"
#include "launcher/DataFolder.h"
#include "launcher/FileClaim.h"
#include "launcher/Log.h"
#include "launcher/Refusal.h"
#include "launcher/SafeFile.h"
#include "launcher/SecondPlace.h"
#include "launcher/Speech.h"
#include "launcher/TillSchema.h"

#include <system_error>

#include <fcntl.h>

namespace StartCheck {
namespace {
constexpr const char* databaseName = "Vendel.db";

Refusal unusable(const DataFolder& folder, const Words& reason)
{
    return Refusal({Sentences::databaseUnusable, {folder.path(), reason}});
}

/// A warning is also for whoever looks at the shop's state later.
void warn(const DataFolder& folder, const Speech& speech, const Words& words)
{
    Log(folder.get()).write(say(speech.language(), words));
    speech.warn(words);
}

enum class Verdict
{
    Usable,
    Unfinished
};

/// What the database in \a folder is; throws what is wrong with it.
Verdict judge()
{
    constexpr double seconds = 20;
    Database database(databaseName, seconds);
    const Database::Schema schema = database.schema();
    const bool hasAllTables = schema.tables == static_cast<int>(TillSchema::tables.size());
    if (!schema.isOnlyOwn) {
        throw DatabaseError(hasAllTables ? Sentences::foreignContent : Sentences::lacksTables);
    }
    if (!database.hasRows()) {
        return Verdict::Unfinished;
    }
    if (!hasAllTables) {
        throw DatabaseError(Sentences::lacksTables);
    }
    database.endWal();
    return Verdict::Usable;
}

void setAside(const DataFolder& folder, const Speech& speech)
{
    std::string name;
    try {
        constexpr double seconds = 90;
        const FileClaim claim(folder.get(), FileClaim::Purpose::Replace, seconds);
        const CopyShelf shelf = Copies(folder.get()).shelf();
        name = Copies::freeStem(shelf.get(), "inachevee", now()) + ".db";
        SafeFile::moveNew(folder.get(), databaseName, shelf.get(), name.c_str());
    } catch (const std::system_error&) {
        throw folder.unusable(Sentences::notMoved);
    }
    speech.note({Sentences::setAside, {folder.path() + "/copies/" + name}});
}
} // namespace

void database(const DataFolder& folder, const Speech& speech)
{
    // What a restoration that was cut off may have left.
    for (const char* left : {"", "-journal", "-wal", "-shm"}) {
        SafeFile::remove(folder.get(), (std::string(databaseName) + ".neuf" + left).c_str());
    }
    // What a look at the state that was killed may have left.
    DatabaseLook::sweep(folder.get());
    if (const Descriptor shelf
        = Descriptor(openat(folder.get(), "copies", O_RDONLY | O_DIRECTORY | O_CLOEXEC))) {
        DatabaseLook::sweep(shelf.get());
    }
    if (!SafeFile::exists(folder.get(), databaseName)) {
        if (!Copies(folder.get()).entries().empty()) {
            warn(folder, speech, {Sentences::databaseMissing, {folder.path()}});
        }
        return;
    }
    SafeFile::Status found{};
    if (fstatat(folder.get(), databaseName, &found, 0) != 0 || !S_ISREG(found.st_mode)) {
        throw unusable(folder, Sentences::notFile);
    }
    if (faccessat(folder.get(), databaseName, R_OK | W_OK, AT_EACCESS) != 0) {
        throw unusable(folder, Sentences::notAccessible);
    }
    try {
        if (judge() == Verdict::Unfinished) {
            setAside(folder, speech);
        }
    } catch (const DatabaseError& error) {
        throw unusable(folder, error.reason());
    }
}

bool copy(const DataFolder& folder, const Speech& speech)
{
    const Moment moment = now();
    const Copies copies(folder.get());
    const Words notMade(Sentences::noDailyCopy, {folder.path()});
    try {
        if (copies.isDueAtStart(moment)) {
            copies.make(moment, Backup::Pace::Full);
        }
        return true;
    } catch (const DatabaseError& error) {
        if (error.isAboutContent()) {
            throw unusable(folder, error.reason());
        }
        warn(folder, speech, notMade);
    } catch (const std::system_error&) {
        warn(folder, speech, notMade);
    }
    return false;
}

void secondPlace(const DataFolder& folder, const Speech& speech)
{
    const SecondPlace place(folder.get());
    if (place.isLongAway(now())) {
        warn(folder, speech, {Sentences::notReachedFor, {place.path(), place.lastReached()}});
    }
}
} // namespace StartCheck
