// SPDX-License-Identifier: MIT
#include "launcher/StartCheck.h"

#include "launcher/Copies.h"
#include "launcher/Database.h"
#include "launcher/DatabaseLook.h"
#include "launcher/DataFolder.h"
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
        speech.warn(notMade);
    } catch (const std::system_error&) {
        speech.warn(notMade);
    }
    return false;
}

void secondPlace(const DataFolder& folder, const Speech& speech)
{
    const SecondPlace place(folder.get());
    if (place.isLongAway(now())) {
        speech.warn({Sentences::notReachedFor, {place.path(), place.lastReached()}});
    }
}
} // namespace StartCheck
