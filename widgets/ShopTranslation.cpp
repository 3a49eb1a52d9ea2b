// SPDX-License-Identifier: MIT
#include "widgets/ShopTranslation.h"

#include "common/SmallFile.h"

#include <QCoreApplication>
#include <QtEndian>

#include <array>

namespace {
/// Whether a compiled translation has a section that names other files. After its first 16 bytes,
/// each section is a tag, a four-byte length and that many bytes.
bool namesOtherFiles(const QByteArray& bytes)
{
    constexpr int firstSection = 16;
    constexpr int head = 5;
    constexpr auto otherFiles = '\x96';
    for (qint64 at = firstSection; at + head <= bytes.size();) {
        const char* section = bytes.constData() + at;
        if (*section == otherFiles) {
            return true;
        }
        at += head + qint64{qFromBigEndian<quint32>(section + 1)};
    }
    return false;
}
} // namespace

ShopTranslation::ShopTranslation(QObject* parent)
    : QTranslator(parent)
{ }

ShopTranslation::~ShopTranslation()
{
    // Qt must not read the bytes once they are freed.
    if (QCoreApplication::instance() != nullptr) {
        QCoreApplication::removeTranslator(this);
    }
}

bool ShopTranslation::read()
{
    constexpr std::array<const char*, 4> names{
        "FormVendelTr_Us.qm", "FormVendelTr_Us", "FormVendelTr.qm", "FormVendelTr"};
    for (const char* name : names) {
        const auto bytes = SmallFile::read(QLatin1String(name));
        if (!bytes) {
            continue;
        }
        // Qt would load the others too, and never finish if they name each other.
        if (namesOtherFiles(*bytes)) {
            qCritical("%s is not shown: it names another file to load", name);
            return false;
        }
        bytes_ = *bytes;
        return load(
            reinterpret_cast<const uchar*>(bytes_.constData()), static_cast<int>(bytes_.size()));
    }
    return false;
}
