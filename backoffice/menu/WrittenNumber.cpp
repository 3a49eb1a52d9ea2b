// SPDX-License-Identifier: MIT
#include "backoffice/menu/WrittenNumber.h"

#include <QRegularExpression>

#include <optional>

namespace {
constexpr QLatin1Char point('.');
constexpr QLatin1Char comma(',');
constexpr int mostWhole = 9;
constexpr int mostFraction = 6;

/// The digits of a number, and the mark between them; null where nothing says which one it is.
struct Digits
{
    QString whole;
    QString fraction;
    QChar mark;
    bool isNegative = false;
    bool hasTwoMeanings = false;
};

QChar otherMark(QChar mark) { return mark == comma ? QChar(point) : QChar(comma); }

/// Sorts out what the digits and marks in \a text mean.
std::optional<Digits> sorted(QString text)
{
    static const QRegularExpression plain(QStringLiteral("^[0-9]+$"));
    static const QRegularExpression blankGroups(QStringLiteral(
        "^([1-9][0-9]{0,2}(?:([ '’])[0-9]{3})(?:\\2[0-9]{3})*)(?:([.,])([0-9]+))?$"));
    static const QRegularExpression markedGroups(QStringLiteral(
        "^([1-9][0-9]{0,2}(?:([.,])[0-9]{3})(?:\\2[0-9]{3})*)(?:(?!\\2)([.,])([0-9]+))$"));
    static const QRegularExpression manyGroups(
        QStringLiteral("^[1-9][0-9]{0,2}([.,])[0-9]{3}(?:\\1[0-9]{3})+$"));
    static const QRegularExpression oneMark(QStringLiteral("^([0-9]+)([.,])([0-9]+)$"));
    static const QRegularExpression oneGroup(QStringLiteral("^[1-9][0-9]{0,2}[.,][0-9]{3}$"));
    static const QRegularExpression groupMarks(QStringLiteral("[ '’.,]"));

    if (plain.match(text).hasMatch()) {
        return Digits{text, {}, {}};
    }
    for (const QRegularExpression* grouped : {&blankGroups, &markedGroups}) {
        if (const auto found = grouped->match(text); found.hasMatch()) {
            const QString mark = found.captured(3);
            return Digits{found.captured(1).remove(groupMarks), found.captured(4),
                mark.isEmpty() ? QChar() : mark.at(0)};
        }
    }
    if (const auto found = manyGroups.match(text); found.hasMatch()) {
        return Digits{text.remove(groupMarks), {}, otherMark(found.captured(1).at(0))};
    }
    if (const auto found = oneMark.match(text); found.hasMatch()) {
        return Digits{found.captured(1), found.captured(3), found.captured(2).at(0), false,
            oneGroup.match(text).hasMatch()};
    }
    return std::nullopt;
}

std::optional<Digits> digits(QString text)
{
    static const QRegularExpression blanks(
        QStringLiteral("\\s+"), QRegularExpression::UseUnicodePropertiesOption);
    static const QRegularExpression frame(
        QStringLiteral("^([-+−]?) ?(\\p{Sc}|EUR|USD|GBP|CHF|CAD)? ?([-+−]?) ?"
                       "([0-9][0-9 '’.,]*?) ?(\\p{Sc}|EUR|USD|GBP|CHF|CAD)?$"));
    text = text.replace(blanks, QStringLiteral(" ")).trimmed();
    const auto found = frame.match(text);
    const QString sign = found.captured(1) + found.captured(3);
    const bool isFramedTwice = !found.captured(2).isEmpty() && !found.captured(5).isEmpty();
    if (!found.hasMatch() || sign.size() > 1 || isFramedTwice) {
        return std::nullopt;
    }
    auto result = sorted(found.captured(4));
    if (result) {
        result->isNegative = !sign.isEmpty() && sign != QLatin1String("+");
    }
    return result;
}

void removeEmptyZeros(Digits& number)
{
    static const QRegularExpression leading(QStringLiteral("^0+(?=[0-9])"));
    static const QRegularExpression trailing(QStringLiteral("0+$"));
    number.whole.remove(leading);
    number.fraction.remove(trailing);
}
} // namespace

WrittenNumber WrittenNumber::of(const QString& text, QChar mark)
{
    auto number = digits(text);
    if (!number) {
        return {};
    }
    if (number->hasTwoMeanings && mark.isNull()) {
        return {Kind::TwoMeanings, {}, 0};
    }
    if (number->hasTwoMeanings && number->mark != mark) {
        number->whole += number->fraction;
        number->fraction.clear();
    }
    removeEmptyZeros(*number);
    if (number->whole.size() > mostWhole || number->fraction.size() > mostFraction) {
        return {Kind::TooLong, {}, 0};
    }
    QString sql = number->whole;
    if (!number->fraction.isEmpty()) {
        sql += point + number->fraction;
    }
    if (number->isNegative && sql != QLatin1String("0")) {
        sql.prepend(QLatin1Char('-'));
    }
    return {Kind::Number, sql, static_cast<int>(number->fraction.size())};
}

QChar WrittenNumber::commonMark(const std::vector<QString>& texts)
{
    QChar common;
    for (const QString& text : texts) {
        const auto number = digits(text);
        if (!number || number->hasTwoMeanings || number->mark.isNull()) {
            continue;
        }
        if (!common.isNull() && common != number->mark) {
            return {};
        }
        common = number->mark;
    }
    return common;
}
