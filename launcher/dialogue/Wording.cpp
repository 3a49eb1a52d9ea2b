// SPDX-License-Identifier: MIT
#include "launcher/dialogue/Wording.h"

namespace Wording {
QString title() { return QStringLiteral("Vendel"); }

QString ok() { return QStringLiteral("OK"); }

QString cancel(bool isEnglish)
{
    return isEnglish ? QStringLiteral("Cancel") : QStringLiteral("Annuler");
}

QStringList columns(bool isEnglish)
{
    return isEnglish ? QStringList{QStringLiteral("Copy"), QStringLiteral("Size")}
                     : QStringList{QStringLiteral("Copie"), QStringLiteral("Taille")};
}

QString breakable(const QString& text)
{
    constexpr int longestWord = 32;
    constexpr QChar noBreak(0x00a0);
    constexpr QChar mayBreak(0x200b);
    QString result;
    int word = 0;
    for (int at = 0; at < text.size(); ++at) {
        const QChar letter = text[at];
        const QChar next = at + 1 < text.size() ? text[at + 1] : QChar();
        const bool isAfterQuote = at > 0 && text[at - 1] == QChar(0x00ab);
        const bool isBeforeMark = next == QChar(0x00bb) || next == QLatin1Char(';')
            || next == QLatin1Char(':') || next == QLatin1Char('?');
        if (letter == QLatin1Char(' ')) {
            result += isAfterQuote || isBeforeMark ? noBreak : letter;
            word = 0;
            continue;
        }
        result += letter;
        const bool isPair = letter.isHighSurrogate();
        if (++word >= longestWord && !isPair && !next.isMark()) {
            result += mayBreak;
            word = 0;
        }
    }
    return result;
}
} // namespace Wording
