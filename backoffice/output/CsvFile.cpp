// SPDX-License-Identifier: MIT
#include "backoffice/output/CsvFile.h"

#include <algorithm>

#include <csv.h>

namespace {
constexpr const char* lineEnd = "\r\n";

bool isPercent(CellKind kind) { return kind == CellKind::Percent || kind == CellKind::Change; }

/// Appends \a text in quotes.
void addText(QByteArray& bytes, const QString& text)
{
    const QByteArray plain = withGuard(text).toUtf8();
    const auto size = static_cast<std::size_t>(plain.size());
    QByteArray quoted(static_cast<int>(csv_write(nullptr, 0, plain.constData(), size)), '\0');
    csv_write(quoted.data(), static_cast<std::size_t>(quoted.size()), plain.constData(), size);
    bytes += quoted;
}

/// \a value with at most \a decimals, and at least \a least of them.
QString number(double value, int decimals, int least, const CsvFormat& format)
{
    QString text = QString::number(value, 'f', decimals);
    for (int spare = decimals - least; spare > 0 && text.endsWith(QLatin1Char('0')); --spare) {
        text.chop(1);
    }
    if (text.endsWith(QLatin1Char('.'))) {
        text.chop(1);
    }
    if (text == QLatin1String("-0")) {
        text = QStringLiteral("0");
    }
    return text.replace(QLatin1Char('.'), format.decimalMark);
}

QString money(Amount amount, const CsvFormat& format)
{
    constexpr qint64 centsInAUnit = 100;
    const qint64 inCents = cents(amount);
    const qint64 without = std::abs(inCents);
    return (inCents < 0 ? QStringLiteral("-") : QString()) + QString::number(without / centsInAUnit)
        + format.decimalMark
        + QStringLiteral("%1").arg(without % centsInAUnit, 2, 10, QLatin1Char('0'));
}

/// What is no text, as a spreadsheet reads it.
QString plain(const QVariant& value, CellKind kind, const CsvFormat& format)
{
    switch (kind) {
    case CellKind::Day:
        return value.toDate().toString(Qt::ISODate);
    case CellKind::Month:
        return value.toDate().toString(QStringLiteral("yyyy-MM"));
    case CellKind::Money:
        return money(value.toLongLong(), format);
    case CellKind::Percent:
    case CellKind::Change:
        return number(value.toDouble(), 2, 2, format);
    case CellKind::Quantity: {
        constexpr int decimals = 6;
        return number(value.toDouble(), decimals, 0, format);
    }
    case CellKind::Hour:
    case CellKind::Count:
    case CellKind::Text:
        break;
    }
    return QString::number(value.toLongLong());
}

void addCell(QByteArray& bytes, const QVariant& value, CellKind kind, const CsvFormat& format)
{
    if (!value.isValid()) {
        return;
    }
    if (kind == CellKind::Text) {
        addText(bytes, value.toString());
    } else {
        bytes += plain(value, kind, format).toUtf8();
    }
}
} // namespace

CsvFormat CsvFormat::of(const QLocale& locale)
{
    return QString(locale.decimalPoint()) == QLatin1String(".")
        ? CsvFormat{QLatin1Char(','), QLatin1Char('.')}
        : CsvFormat{QLatin1Char(';'), QLatin1Char(',')};
}

QByteArray csv(const Table& table, const CsvFormat& format)
{
    const QByteArray separator = QString(format.separator).toUtf8();
    QByteArray bytes("\xef\xbb\xbf");
    for (std::size_t place = 0; place < table.columns.size(); ++place) {
        const Column& column = table.columns.at(place);
        bytes += place > 0 ? separator : QByteArray();
        addText(
            bytes, isPercent(column.kind) ? column.title + QStringLiteral(" (%)") : column.title);
    }
    bytes += lineEnd;
    for (const std::vector<QVariant>& row : table.rows) {
        for (std::size_t place = 0; place < row.size(); ++place) {
            bytes += place > 0 ? separator : QByteArray();
            addCell(bytes, row.at(place), table.columns.at(place).kind, format);
        }
        bytes += lineEnd;
    }
    return bytes;
}

QString withGuard(const QString& text)
{
    const auto* const first = std::find_if(
        text.begin(), text.end(), [](QChar letter) { return letter != QLatin1Char('\''); });
    const bool isLikeAFormula
        = first != text.end() && QStringLiteral("=+-@\t\r\n").contains(*first);
    return isLikeAFormula ? QLatin1Char('\'') + text : text;
}
