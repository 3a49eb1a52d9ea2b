// SPDX-License-Identifier: MIT
#pragma once

#include "base/Descriptor.h"
#include "launcher/Database.h"
#include "launcher/Refusal.h"
#include "launcher/SafeFile.h"
#include "tests/support/Shop.h"

#include <QDir>
#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>

/// A shop's folder as the launcher sees it, with what tests put into it.
class ShopFolder : public Shop
{
public:
    using Shop::Shop;

    /// A descriptor of the folder.
    int get() const { return folder_.get(); }
    std::string name() const { return path().toStdString(); }
    /// Runs \a sql on the database \a file, as somebody else's tool would, and returns the first
    /// cell.
    static QByteArray foreign(const char* file, const char* sql)
    {
        QByteArray cell;
        sqlite3* opened = nullptr;
        sqlite3_open(file, &opened);
        const Handle<sqlite3, sqlite3_close> connection(opened);
        const auto keep = [](void* kept, int, char** cells, char**) {
            *static_cast<QByteArray*>(kept) = cells[0];
            return 0;
        };
        if (sqlite3_exec(opened, sql, keep, &cell, nullptr) != SQLITE_OK) {
            qFatal("%s: %s", sql, sqlite3_errmsg(opened));
        }
        return cell;
    }
    /// The names in the subfolder \a folder that \a pattern fits, in the order of letters.
    static QStringList names(const char* folder, const char* pattern = "*")
    {
        return QDir(QString(folder))
            .entryList({QString(pattern)}, QDir::Files | QDir::Hidden | QDir::System, QDir::Name);
    }
    static mode_t mode(const char* file)
    {
        SafeFile::Status found{};
        return stat(file, &found) == 0 ? found.st_mode & ALLPERMS : 0;
    }

    /// What requireSound() has against the database \a file, empty for nothing.
    static QString unsoundness(const char* file)
    {
        try {
            requireSound(file);
        } catch (const DatabaseError& error) {
            return QString(error.what());
        }
        return {};
    }

private:
    Descriptor folder_{open(".", O_RDONLY | O_DIRECTORY | O_CLOEXEC)};
};

/// What \a act is refused with, in English; empty when it is not.
template <class Act> QString refusal(Act&& act)
{
    try {
        act();
    } catch (const Refusal& refusal) {
        return QString(refusal.what());
    }
    return {};
}
