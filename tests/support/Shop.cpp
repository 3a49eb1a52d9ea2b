// SPDX-License-Identifier: MIT
#include "tests/support/Shop.h"

#include "base/Handle.h"

#include <QDir>
#include <QFile>
#include <QTest>

#include <sqlite3.h>

namespace {
/// The bytes of a fresh database; making one costs a disk nine transactions.
const QByteArray& freshDatabase(const Shop& shop)
{
    static const QByteArray bytes = [&] {
        Db::DbCreate();
        return shop.read(QString("Vendel.db"));
    }();
    return bytes;
}
} // namespace

Shop::Shop(Database database)
    : before_(QDir::currentPath())
{
    if (!folder_.isValid() || !QDir::setCurrent(folder_.path())) {
        qFatal("no temporary directory for the test");
    }
    if (database == Database::Fresh) {
        write(QString("Vendel.db"), freshDatabase(*this));
    }
}

Shop::~Shop() { QDir::setCurrent(before_); }

DbRows Shop::sql(const char* sql) const { return Db::DbLoad(sql); }

void Shop::fill(const char* sql) const
{
    sqlite3* opened = nullptr;
    sqlite3_open("Vendel.db", &opened);
    const Handle<sqlite3, sqlite3_close> connection(opened);
    if (sqlite3_exec(connection.get(), sql, nullptr, nullptr, nullptr) != SQLITE_OK) {
        qFatal("%s", sqlite3_errmsg(connection.get()));
    }
}

QString Shop::cell(const char* sql) const
{
    const DbRows rows = Db::DbLoad(sql);
    return rows.empty() ? QString() : QString::fromStdString(rows.front().front());
}

void Shop::write(const QString& name, const QByteArray& bytes) const
{
    QFile file(name);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
        qFatal("cannot write %s", qPrintable(name));
    }
}

QByteArray Shop::read(const QString& name) const
{
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("cannot read %s", qPrintable(name));
    }
    return file.readAll();
}
