// SPDX-License-Identifier: MIT
#include "backoffice/menu/SheetText.h"

#include "base/Handle.h"
#include "common/convert.h"
#include "common/SmallFile.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QRegularExpression>
#include <QtEndian>

#include <cstdlib>
#include <optional>

namespace {
struct Sentences
{
    Q_DECLARE_TR_FUNCTIONS(SheetText)
};

std::optional<QString> fromUtf8(const QByteArray& bytes)
{
    QString text = QString::fromUtf8(bytes);
    // What was not UTF-8 has become another character.
    return text.toUtf8() == bytes ? std::optional(std::move(text)) : std::nullopt;
}

template <class FromEndian>
std::optional<QString> fromUtf16(const QByteArray& bytes, FromEndian unit)
{
    QString text;
    text.reserve(bytes.size() / 2);
    for (int at = 0; at + 1 < bytes.size(); at += 2) {
        text += QChar(unit(bytes.constData() + at));
    }
    return bytes.size() % 2 == 0 && text.isValidUtf16() ? std::optional(text) : std::nullopt;
}

std::optional<QString> fromWindows(const QByteArray& bytes)
{
    const Handle<char, std::free> text(convert("CP1252", "UTF-8", bytes.constData()));
    return text ? std::optional(QString::fromUtf8(text.get())) : std::nullopt;
}

std::optional<QString> text(const QByteArray& bytes)
{
    if (bytes.startsWith("\xef\xbb\xbf")) {
        return fromUtf8(bytes.mid(3));
    }
    if (bytes.startsWith("\xff\xfe")) {
        return fromUtf16(
            bytes.mid(2), [](const char* unit) { return qFromLittleEndian<quint16>(unit); });
    }
    if (bytes.startsWith("\xfe\xff")) {
        return fromUtf16(
            bytes.mid(2), [](const char* unit) { return qFromBigEndian<quint16>(unit); });
    }
    if (bytes.contains('\0')) {
        return std::nullopt;
    }
    auto utf8 = fromUtf8(bytes);
    return utf8 ? utf8 : fromWindows(bytes);
}
} // namespace

QByteArray SheetText::bytesOf(const QString& path)
{
    if (auto bytes = SmallFile::read(path)) {
        return *std::move(bytes);
    }
    const QFileInfo file(path);
    if (!file.exists()) {
        throw ImportError(Sentences::tr("Le fichier « %1 » n'existe pas.").arg(path));
    }
    if (!file.isFile()) {
        throw ImportError(Sentences::tr("« %1 » n'est pas un fichier.").arg(path));
    }
    if (file.size() > SmallFile::maximumSize) {
        throw ImportError(Sentences::tr("Le fichier « %1 » dépasse 4 Mo.").arg(path));
    }
    throw ImportError(Sentences::tr("Le fichier « %1 » ne peut pas être lu.").arg(path));
}

QString SheetText::decoded(const QByteArray& bytes)
{
    const auto found = text(bytes);
    if (!found || found->contains(QChar(QChar::Null))) {
        throw ImportError(Sentences::tr(
            "Le fichier n'est pas un fichier texte : enregistrez-le au format CSV, en UTF-8."));
    }
    return *found;
}

QString SheetText::withoutGuard(const QString& cell)
{
    static const QRegularExpression guarded(QStringLiteral("^'+[=+@\\t\\r\\n-]"));
    return guarded.match(cell).hasMatch() ? cell.mid(1) : cell;
}
