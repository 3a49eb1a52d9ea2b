// SPDX-License-Identifier: MIT
#include "backoffice/sales/TillDatabase.h"

#include "backoffice/sales/TillStatements.h"
#include "launcher/TillSchema.h"

#include <QFile>
#include <QFileInfo>
#include <QSqlError>
#include <QUrl>
#include <QUuid>

#include <optional>
#include <set>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {
/// SQLite's result codes, without their details.
enum Code
{
    Ok = 0,
    Permission = 3,
    Busy = 5,
    Locked = 6,
    ReadOnly = 8,
    Corrupt = 11,
    CannotOpen = 14,
    NotADatabase = 26
};
constexpr int withoutDetails = 0xff;
constexpr qint64 retryUs = 5000;
constexpr qint64 patienceUs = 10000000;
/// A journal that vanishes between two looks at it is taken for one that was left behind.
constexpr qint64 journalPatienceUs = 500000;
constexpr qint64 recentMs = 5000;

QString newName() { return QStringLiteral("till ") + QUuid::createUuid().toString(); }

int codeOf(const QSqlError& error)
{
    return error.isValid() ? error.nativeErrorCode().toInt() & withoutDetails : Ok;
}

/// Whether this user has the right \a mode to \a path.
bool isAllowed(const QString& path, int mode)
{
    return faccessat(AT_FDCWD, QFile::encodeName(path).constData(), mode, AT_EACCESS) == 0;
}

bool exists(const QString& path)
{
    struct stat found = {};
    return lstat(QFile::encodeName(path).constData(), &found) == 0;
}

/// Whether SQLite would make a write-ahead log of the database \a path when it is read. Without
/// locks it can have none, and says so. The file is not looked at without SQLite: a descriptor of
/// our own would take the locks of all others in this process with it when it is closed.
bool isMadeForWal(const QString& path)
{
    const QString name = newName();
    int code = Ok;
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name);
        database.setConnectOptions(QStringLiteral("QSQLITE_OPEN_READONLY;QSQLITE_OPEN_URI"));
        database.setDatabaseName(
            QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded) + QLatin1String("?nolock=1"));
        if (database.open()) {
            QSqlQuery query(database);
            query.exec(TillStatements::schemaVersion());
            code = codeOf(query.lastError());
        }
    }
    QSqlDatabase::removeDatabase(name);
    return code == CannotOpen;
}
} // namespace

TillDatabase::TillDatabase(const QString& folder, Timing timing)
    : folder_(folder)
    , path_(folder + QLatin1String("/Vendel.db"))
    , timing_(std::move(timing))
    , connection_(newName())
{ }

TillDatabase::~TillDatabase() { close(); }

TillDatabase::Identity TillDatabase::identity() const
{
    struct stat found = {};
    if (stat(QFile::encodeName(path_).constData(), &found) != 0) {
        return {};
    }
    return {quint64{found.st_dev}, quint64{found.st_ino}};
}

void TillDatabase::requireFile() const
{
    const QFileInfo folder(folder_);
    if (!folder.isDir()) {
        throw SalesError(tr("Le dossier « %1 » n'existe pas.").arg(folder_));
    }
    if (!exists(path_)) {
        if (!isAllowed(folder_, X_OK)) {
            fail(Permission);
        }
        throw SalesError(tr("Le dossier « %1 » ne contient pas de base de la caisse : démarrez la "
                            "caisse une fois.")
                             .arg(folder_));
    }
    if (!QFileInfo(path_).isFile()) {
        throw SalesError(tr("« %1 » n'est pas un fichier.").arg(path_));
    }
    if (!isAllowed(path_, R_OK)) {
        fail(Permission);
    }
}

void TillDatabase::requireNoWal() const
{
    const QString path = QFileInfo(path_).canonicalFilePath();
    // A journal would be acted on. Who has one has no write-ahead log.
    const bool isToAsk = !database_.isOpen() && !exists(path + QLatin1String("-journal"))
        && QFileInfo(path).size() > 0;
    if (exists(path + QLatin1String("-wal")) || (isToAsk && isMadeForWal(path))) {
        throw SalesError(
            tr("La base de la caisse dans « %1 » a été modifiée par un autre programme : démarrez "
               "la caisse une fois.")
                .arg(folder_));
    }
}

void TillDatabase::open(const Reading& reading)
{
    close();
    if (!QSqlDatabase::isDriverAvailable(QStringLiteral("QSQLITE"))) {
        throw SalesError(tr("Le pilote SQLite de Qt manque : Vendel est à réinstaller."));
    }
    requireFile();
    requireNoWal();
    opened_ = identity();
    ++file_;
    database_ = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connection_);
    database_.setConnectOptions(QStringLiteral("QSQLITE_OPEN_READONLY;QSQLITE_BUSY_TIMEOUT=0"));
    database_.setDatabaseName(path_);
    if (!database_.open()) {
        fail(codeOf(database_.lastError()));
    }
    for (const char* setting : TillStatements::settings) {
        QSqlQuery(database_).exec(QLatin1String(setting));
    }
    requireOwn(reading);
}

void TillDatabase::close()
{
    queries_.clear();
    if (database_.isValid()) {
        database_ = QSqlDatabase();
        QSqlDatabase::removeDatabase(connection_);
    }
    opened_ = {};
}

/// A database that somebody else made may contain SQL that acts when it is read, so this comes
/// before anything else.
void TillDatabase::requireOwn(const Reading& reading)
{
    std::set<std::string> missing;
    for (const std::string_view table : TillSchema::tables) {
        missing.insert(TillSchema::normalized(table));
    }
    missing.insert(TillSchema::normalized("date_heure_index"));
    bool isOwn = true;
    read(
        TillStatements::objects(), {},
        [&](const QSqlQuery& row) {
            const std::string type = row.value(0).toString().toStdString();
            const std::string name = row.value(1).toString().toStdString();
            const std::string table = row.value(2).toString().toStdString();
            const std::string sql = row.value(3).toString().toStdString();
            isOwn = isOwn && TillSchema::isOwn({type, name, table, sql});
            missing.erase(TillSchema::normalized(name));
        },
        reading);
    if (!isOwn) {
        close();
        throw SalesError(tr("La base dans « %1 » contient autre chose que les tables de la caisse.")
                             .arg(folder_));
    }
    if (!missing.empty()) {
        close();
        throw SalesError(
            tr("Il manque des tables à la base de la caisse dans « %1 ».").arg(folder_));
    }
    schema_ = number(TillStatements::schemaVersion(), reading);
}

qint64 TillDatabase::number(const QString& pragma, const Reading& reading)
{
    qint64 found = 0;
    read(
        pragma, {}, [&](const QSqlQuery& row) { found = row.value(0).toLongLong(); }, reading);
    return found;
}

TillDatabase::State TillDatabase::state(const Reading& reading)
{
    constexpr int tries = 3;
    for (int count = 0; count < tries; ++count) {
        try {
            if (!database_.isOpen() || !(identity() == opened_)) {
                open(reading);
            }
            requireNoWal();
            const qint64 version = number(TillStatements::dataVersion(), reading);
            if (number(TillStatements::schemaVersion(), reading) != schema_) {
                requireOwn(reading);
            }
            return {file_, version};
        } catch (const Replaced&) {
            close();
        }
    }
    fail(Busy);
}

/// Runs the statement once; returns SQLite's result code, and nothing was handed out with Busy,
/// Locked and ReadOnly: SQLite takes its lock before the first row.
int TillDatabase::attempt(const QString& sql, const QVariantList& values, const Row& row)
{
    auto found = queries_.find(sql);
    if (found == queries_.end()) {
        QSqlQuery query(database_);
        query.setForwardOnly(true);
        if (!query.prepare(sql)) {
            return failed(query);
        }
        found = queries_.emplace(sql, query).first;
    }
    QSqlQuery& query = found->second;
    for (int place = 0; place < values.size(); ++place) {
        query.bindValue(place, values.at(place));
    }
    bool isDone = query.exec();
    while (isDone && query.next()) {
        row(query);
    }
    isDone = isDone && !query.lastError().isValid();
    const int code = isDone ? Ok : failed(query);
    // Also after an error, no lock is kept.
    query.finish();
    return code;
}

/// The code of the error that \a query has had, whose words are kept.
int TillDatabase::failed(const QSqlQuery& query)
{
    lastError_ = query.lastError().databaseText();
    const int code = codeOf(query.lastError());
    return code == Ok ? Corrupt : code;
}

void TillDatabase::read(
    const QString& sql, const QVariantList& values, const Row& row, const Reading& reading)
{
    std::optional<qint64> firstRefusal;
    for (;;) {
        const int code = attempt(sql, values, row);
        if (code == Ok) {
            return;
        }
        const qint64 now = timing_.elapsed();
        firstRefusal = firstRefusal.value_or(now);
        if (!(identity() == opened_)) {
            throw Replaced();
        }
        const bool isBusy = code == Busy || code == Locked;
        const bool isJournal = code == ReadOnly || code == CannotOpen;
        const qint64 patience = isBusy ? patienceUs : isJournal ? journalPatienceUs : 0;
        if (now - *firstRefusal >= patience) {
            fail(code);
        }
        if (reading.isStopped != nullptr && *reading.isStopped) {
            throw ReadingStopped();
        }
        timing_.sleep(retryUs);
    }
}

bool TillDatabase::isTillAtWork() const
{
    const QString path = QFileInfo(path_).canonicalFilePath();
    struct stat found = {};
    if (exists(path + QLatin1String("-journal"))
        || stat(QFile::encodeName(path).constData(), &found) != 0) {
        return true;
    }
    constexpr qint64 msInASecond = 1000;
    constexpr qint64 nsInAMs = 1000000;
    const qint64 written
        = qint64{found.st_mtim.tv_sec} * msInASecond + qint64{found.st_mtim.tv_nsec} / nsInAMs;
    return qAbs(timing_.now() - written) < recentMs;
}

void TillDatabase::fail(int code) const
{
    switch (code) {
    case Permission:
        throw SalesError(tr("La base de la caisse dans « %1 » ne peut pas être lue.").arg(folder_));
    case Busy:
    case Locked:
        throw SalesError(tr("La base de la caisse dans « %1 » est occupée par un autre programme.")
                             .arg(folder_));
    case ReadOnly:
    case CannotOpen:
        throw SalesError(tr("Un changement de la base de la caisse dans « %1 » a été interrompu : "
                            "démarrez la caisse une fois.")
                             .arg(folder_));
    case NotADatabase:
    case Corrupt:
        throw SalesError(tr("La base de la caisse dans « %1 » est endommagée : la commande "
                            "« vendel --restaurer » en remet une copie en place.")
                             .arg(folder_));
    default:
        throw SalesError(tr("La base de la caisse dans « %1 » ne peut pas être lue (%2).")
                             .arg(folder_, lastError_));
    }
}
