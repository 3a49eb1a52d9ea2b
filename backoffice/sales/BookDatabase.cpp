// SPDX-License-Identifier: MIT
#include "backoffice/sales/BookDatabase.h"

#include "backoffice/sales/BookStatements.h"
#include "backoffice/sales/BookUri.h"
#include "launcher/BookAddress.h"
#include "launcher/PlainText.h"

#include <QUuid>

#include <algorithm>

namespace {
QString plain(const QString& line)
{
    constexpr std::size_t longest = 200;
    return QString::fromStdString(plainText(line.toStdString(), longest));
}

/// The first line of what the server or its client says.
QString firstLine(const QSqlError& error)
{
    return plain(error.databaseText().trimmed().section(QLatin1Char('\n'), 0, 0));
}

/// What a server answered. Others that were tried before it may not have answered.
QString answer(const QString& said)
{
    const auto at = std::max(0, static_cast<int>(said.indexOf(QLatin1String("FATAL"))));
    return plain(said.mid(at).section(QLatin1Char('\n'), 0, 0));
}

/// The server speaks the language that it was installed in.
bool contains(const QString& text, std::initializer_list<const char*> parts)
{
    return std::any_of(parts.begin(), parts.end(),
        [&](const char* part) { return text.contains(QString::fromUtf8(part)); });
}
} // namespace

BookDatabase::BookDatabase(const QString& uri)
    : connection_(QStringLiteral("book ") + QUuid::createUuid().toString())
{
    requireUri(uri);
    if (!QSqlDatabase::isDriverAvailable(QStringLiteral("QPSQL"))) {
        throw SalesError(tr("Il manque à ce système de quoi lire un livre central : installez le "
                            "paquet libqt%1sql%1-psql.")
                             .arg(QT_VERSION_MAJOR));
    }
    try {
        connect(uri);
        requireSchema();
    } catch (const SalesError&) {
        database_ = QSqlDatabase();
        QSqlDatabase::removeDatabase(connection_);
        throw;
    }
}

BookDatabase::~BookDatabase()
{
    database_ = QSqlDatabase();
    QSqlDatabase::removeDatabase(connection_);
}

void BookDatabase::requireUri(const QString& uri)
{
    const std::string text = uri.toStdString();
    if (BookAddress::isUri(text) && BookAddress::hasPassword(text)) {
        throw SalesError(tr("L'adresse du livre central contient un mot de passe, que d'autres "
                            "pourraient lire : il se met dans le fichier ~/.pgpass."));
    }
    if (!BookAddress::isUri(text) || !BookUri::of(uri)) {
        throw SalesError(tr("« %1 » n'est pas l'adresse d'un livre central, qui s'écrit comme "
                            "postgresql://utilisateur@serveur/base.")
                             .arg(uri));
    }
}

void BookDatabase::connect(const QString& uri)
{
    const BookUri parts = BookUri::of(uri).value_or(BookUri());
    database_ = QSqlDatabase::addDatabase(QStringLiteral("QPSQL"), connection_);
    database_.setHostName(parts.host);
    database_.setDatabaseName(parts.database);
    database_.setUserName(parts.user);
    database_.setConnectOptions(parts.options);
    if (!database_.open()) {
        throw notConnected(database_.lastError());
    }
    run(BookStatements::settings());
}

void BookDatabase::run(const QString& sql)
{
    QSqlQuery query(database_);
    if (!query.exec(sql)) {
        throw failed(query.lastError());
    }
}

std::shared_ptr<void> BookDatabase::hold()
{
    run(BookStatements::begin());
    return {this, [](BookDatabase* self) {
                // When it fails, the connection is broken, and the next statement says so.
                QSqlQuery(self->database_).exec(BookStatements::end());
            }};
}

void BookDatabase::requireSchema()
{
    int version = 0;
    read(BookStatements::version(), {},
        [&](const QSqlQuery& row) { version = row.value(0).toInt(); });
    if (version > BookStatements::schemaVersion) {
        throw SalesError(tr("Le livre central est d'une version plus récente que ce programme, "
                            "qu'il faut mettre à jour."));
    }
    if (version < BookStatements::schemaVersion) {
        throw SalesError(tr("Le livre central n'est pas préparé pour cette version : la commande "
                            "« vendel-central --preparer » le prépare."));
    }
}

void BookDatabase::read(
    const QString& sql, const QVariantList& values, const Row& row, const Reading& reading)
{
    reading.advance(0);
    QSqlQuery query(database_);
    if (!query.prepare(sql)) {
        throw failed(query.lastError());
    }
    for (const QVariant& value : values) {
        query.addBindValue(value);
    }
    if (!query.exec()) {
        throw failed(query.lastError());
    }
    while (query.next()) {
        row(query);
    }
}

/// Why there is no connection. The client gives no code for it.
SalesError BookDatabase::notConnected(const QSqlError& error)
{
    const QString said = error.databaseText();
    if (contains(said,
            {"password authentication failed", "authentification par mot de passe",
                "no password supplied", "aucun mot de passe"})) {
        return SalesError(tr("Le serveur du livre central refuse le mot de passe : le bon se met "
                             "dans le fichier ~/.pgpass."));
    }
    if (contains(said, {"invalid ", "invalide"}) && !contains(said, {"FATAL"})) {
        return SalesError(
            tr("L'adresse du livre central ne peut pas être lue : %1").arg(firstLine(error)));
    }
    if (contains(said, {"FATAL"})) {
        return SalesError(
            tr("Le serveur du livre central refuse la connexion : %1").arg(answer(said)));
    }
    return SalesError(tr("Le livre central est injoignable : %1").arg(firstLine(error)));
}

SalesError BookDatabase::failed(const QSqlError& error)
{
    const QString state = error.nativeErrorCode();
    const auto begins = [&](const char* head) { return state.startsWith(QLatin1String(head)); };
    if (begins("42501")) {
        return SalesError(tr("Cet utilisateur n'a pas le droit de lire le livre central."));
    }
    if (begins("3F000") || begins("42P01") || begins("42703")) {
        return SalesError(tr("Cette base de données ne contient pas de livre central préparé : la "
                             "commande « vendel-central --preparer » le prépare."));
    }
    if (begins("57014") || begins("55P03")) {
        return SalesError(tr("Le serveur du livre central ne répond pas assez vite."));
    }
    if (state.isEmpty() || begins("57P") || begins("08")) {
        return SalesError(tr("La connexion au livre central a été coupée."));
    }
    return SalesError(tr("Le livre central ne peut pas être lu : %1").arg(firstLine(error)));
}
