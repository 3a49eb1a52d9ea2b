// SPDX-License-Identifier: MIT
#include "backoffice/sales/BookUri.h"

#include <QMap>
#include <QStringList>
#include <QUrl>

#include <algorithm>

namespace {
using Settings = QMap<QString, QString>;

const QLatin1Char colon(':');

QString decoded(const QString& text) { return QUrl::fromPercentEncoding(text.toUtf8()); }

/// Takes what is before the first \a sign in \a text; all of it when there is none.
QString takeTo(QString& text, QChar sign)
{
    const auto at = text.indexOf(sign);
    QString head = at < 0 ? text : text.left(at);
    text = at < 0 ? QString() : text.mid(at + 1);
    return head;
}

/// "one:5432,[::1]:5433".
bool takeHosts(const QString& authority, Settings& settings)
{
    QStringList hosts;
    QStringList ports;
    const QStringList places = authority.split(QLatin1Char(','));
    for (QString place : places) {
        if (place.startsWith(QLatin1Char('['))) {
            if (!place.contains(QLatin1Char(']'))) {
                return false;
            }
            place.remove(0, 1);
            hosts += takeTo(place, QLatin1Char(']'));
            if (!place.isEmpty() && !place.startsWith(colon)) {
                return false;
            }
            ports += place.mid(1);
        } else {
            hosts += decoded(takeTo(place, colon));
            ports += place;
        }
    }
    const QLatin1Char comma(',');
    settings[QStringLiteral("host")] = hosts.join(comma);
    if (!ports.join(QString()).isEmpty()) {
        settings[QStringLiteral("port")] = ports.join(comma);
    }
    return true;
}

bool takeQuery(const QString& query, Settings& settings)
{
    if (query.isEmpty()) {
        return true;
    }
    const QStringList parts = query.split(QLatin1Char('&'));
    for (const QString& part : parts) {
        QString value = part;
        const QString key = decoded(takeTo(value, QLatin1Char('=')));
        const auto isPlain = [](QChar letter) {
            return (letter >= QLatin1Char('a') && letter <= QLatin1Char('z'))
                || letter == QLatin1Char('_');
        };
        if (key.isEmpty() || !std::all_of(key.begin(), key.end(), isPlain)) {
            return false;
        }
        // Another spelling that libpq knows in a URI only.
        if (key == QLatin1String("ssl") && value == QLatin1String("true")) {
            settings[QStringLiteral("sslmode")] = QStringLiteral("require");
            continue;
        }
        settings[key] = decoded(value);
    }
    return true;
}

/// What \a settings leave open: how long a silent server is waited for.
void addPatience(Settings& settings)
{
    const Settings usual{{QStringLiteral("connect_timeout"), QStringLiteral("10")},
        {QStringLiteral("keepalives_idle"), QStringLiteral("20")},
        {QStringLiteral("keepalives_interval"), QStringLiteral("5")},
        {QStringLiteral("keepalives_count"), QStringLiteral("4")},
        {QStringLiteral("tcp_user_timeout"), QStringLiteral("40000")},
        {QStringLiteral("application_name"), QStringLiteral("vendel-gestion")}};
    for (auto setting = usual.begin(); setting != usual.end(); ++setting) {
        if (!settings.contains(setting.key())) {
            settings.insert(setting.key(), setting.value());
        }
    }
}

QString quoted(QString value)
{
    value.replace(QLatin1Char('\\'), QStringLiteral("\\\\"));
    value.replace(QLatin1Char('\''), QStringLiteral("\\'"));
    return QLatin1Char('\'') + value + QLatin1Char('\'');
}
} // namespace

std::optional<BookUri> BookUri::of(const QString& uri)
{
    QString query = uri.section(QStringLiteral("://"), 1);
    QString path = takeTo(query, QLatin1Char('?'));
    QString authority = takeTo(path, QLatin1Char('/'));
    Settings settings;
    if (authority.contains(QLatin1Char('@'))) {
        settings[QStringLiteral("user")] = decoded(takeTo(authority, QLatin1Char('@')));
    }
    settings[QStringLiteral("dbname")] = decoded(path);
    if (!takeHosts(authority, settings) || !takeQuery(query, settings)) {
        return std::nullopt;
    }
    addPatience(settings);
    BookUri parts;
    parts.host = settings.take(QStringLiteral("host"));
    parts.database = settings.take(QStringLiteral("dbname"));
    parts.user = settings.take(QStringLiteral("user"));
    for (auto setting = settings.cbegin(); setting != settings.cend(); ++setting) {
        // The driver takes it for the end of the value.
        if (setting.value().contains(QLatin1Char(';'))) {
            return std::nullopt;
        }
        parts.options
            += setting.key() + QLatin1Char('=') + quoted(setting.value()) + QLatin1Char(' ');
    }
    parts.options.chop(1);
    return parts;
}
