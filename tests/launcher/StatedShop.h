// SPDX-License-Identifier: MIT
#pragma once

#include "launcher/State.h"
#include "tests/launcher/ShopFolder.h"
#include "tests/support/EmulatedPrinter.h"

#include <QDateTime>
#include <QDirIterator>
#include <QStringList>

inline const Moment afternoon{"2026-03-05", "140731"};

/// A shop whose state is asked for, with a USB bus of its own.
class StatedShop : public ShopFolder
{
public:
    explicit StatedShop(const EmulatedPrinter::Setup& bus = {}, Database database = Database::Fresh)
        : ShopFolder(database)
        , bus_(bus)
    { }

    /// A copy that is listed, but which nobody opens.
    void addCopy(const char* name, int size) const
    {
        QDir().mkdir(QString("copies"));
        write("copies/Vendel-" + QString(name) + ".db", QByteArray(size, 'x'));
    }

    State state(State::Limits limits = {}) const { return {"1.2.3", name(), afternoon, limits}; }

    static QStringList french(const State& state)
    {
        QStringList all;
        for (const Words& line : state.lines) {
            all += QString::fromStdString(line.french);
        }
        return all;
    }
    static QStringList english(const State& state)
    {
        QStringList all;
        for (const Words& line : state.lines) {
            all += QString::fromStdString(line.english);
        }
        return all;
    }

    /// All that is in the folder, with its bytes, rights and times. What SQLite itself keeps in
    /// memory beside a database is none of it.
    QStringList snapshot() const
    {
        QStringList all;
        QDirIterator entries(path(), QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
            QDirIterator::Subdirectories);
        while (entries.hasNext()) {
            const QFileInfo entry(entries.next());
            QFile file(entry.filePath());
            const bool isRead = entry.isFile() && file.open(QIODevice::ReadOnly);
            all += QString("%1 %2 %3 %4")
                       .arg(entry.filePath(), QString::number(entry.permissions(), 16),
                           entry.isFile() ? entry.lastModified().toString(Qt::ISODateWithMs)
                                          : QString(),
                           QString::number(qHash(isRead ? file.readAll() : QByteArray())));
        }
        all.sort();
        return all;
    }

private:
    EmulatedPrinter bus_;
};
