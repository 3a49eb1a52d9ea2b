// SPDX-License-Identifier: MIT
#include "tests/translations/TranslationFile.h"

#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QXmlStreamReader>

namespace {
TranslatedText readMessage(QXmlStreamReader& xml, const QString& context)
{
    TranslatedText text;
    text.context = context;
    text.hasPlural = xml.attributes().value(QLatin1String("numerus")) == QLatin1String("yes");
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("source")) {
            text.source = xml.readElementText();
        } else if (xml.name() == QLatin1String("translation")) {
            text.isFinished = !xml.attributes().hasAttribute(QLatin1String("type"));
            if (!text.hasPlural) {
                text.forms << xml.readElementText();
                continue;
            }
            while (xml.readNextStartElement()) {
                text.forms << xml.readElementText();
            }
        } else {
            xml.skipCurrentElement();
        }
    }
    return text;
}

void readContext(QXmlStreamReader& xml, QVector<TranslatedText>& texts)
{
    QString context;
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("name")) {
            context = xml.readElementText();
        } else if (xml.name() == QLatin1String("message")) {
            texts << readMessage(xml, context);
        } else {
            xml.skipCurrentElement();
        }
    }
}

QByteArray readFile(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("cannot read %s", qPrintable(path));
    }
    return file.readAll();
}

QString withoutEscapes(QString literal)
{
    return literal.replace(QLatin1String("\\n"), QLatin1String("\n"))
        .replace(QLatin1String("\\\""), QLatin1String("\""));
}

/// The texts of one entry: adjacent literals are one text.
QStringList readEntry(const QString& body)
{
    static const QRegularExpression literalOrComma(QString(R"re("((?:[^"\\]|\\.)*)"|(,))re"));
    QStringList texts{QString()};
    auto matches = literalOrComma.globalMatch(body);
    while (matches.hasNext()) {
        const auto match = matches.next();
        if (match.captured(2).isEmpty()) {
            texts.last() += withoutEscapes(match.captured(1));
        } else {
            texts << QString();
        }
    }
    return texts;
}
} // namespace

QVector<TranslatedText> readTranslation(const QString& path)
{
    QXmlStreamReader xml(readFile(path));
    QVector<TranslatedText> texts;
    xml.readNextStartElement();
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("context")) {
            readContext(xml, texts);
        } else {
            xml.skipCurrentElement();
        }
    }
    if (xml.hasError()) {
        qFatal("%s: %s", qPrintable(path), qPrintable(xml.errorString()));
    }
    return texts;
}

QVector<TranslatedText> readCaptions(const QString& path)
{
    static const QSet<QString> captions{QString("text"), QString("title"), QString("windowTitle"),
        QString("accessibleName"), QString("accessibleDescription")};
    QXmlStreamReader xml(readFile(path));
    QVector<TranslatedText> texts;
    QString form;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        if (xml.name() == QLatin1String("class") && form.isEmpty()) {
            form = xml.readElementText();
        } else if (xml.name() == QLatin1String("property")
            && captions.contains(xml.attributes().value(QLatin1String("name")).toString())
            && xml.readNextStartElement() && xml.name() == QLatin1String("string")) {
            TranslatedText caption;
            caption.context = form;
            caption.source = xml.readElementText();
            texts << caption;
        }
    }
    return texts;
}

QStringList readCatalogue(const QString& path)
{
    static const QRegularExpression entry(QString(R"re(Messages::Messages\d+\{(.*?)\};)re"),
        QRegularExpression::DotMatchesEverythingOption);
    QStringList texts;
    auto matches = entry.globalMatch(QString::fromUtf8(readFile(path)));
    while (matches.hasNext()) {
        texts << readEntry(matches.next().captured(1));
    }
    return texts;
}
