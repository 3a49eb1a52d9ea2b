// SPDX-License-Identifier: MIT
#include "common/Tools.h"

#include "common/SlotGuard.h"

#include <QStringBuilder>

#include <cstddef>

namespace {
constexpr int dateLength = 10;
constexpr int dateTimeLength = 23;

/// The parts of a date in a new order with \a separator between them; a time of day (12 characters
/// from position 11) stays behind them. A year's history has 330,000 dates, so each is one
/// allocation.
QString reordered(QStringView text, QStringView first, QStringView second, QStringView third,
    QLatin1Char separator)
{
    switch (text.size()) {
    case dateLength:
        return first % separator % second % separator % third;
    case dateTimeLength:
        return first % separator % second % separator % third % QLatin1Char(' ') % text.mid(11, 12);
    default:
        return {};
    }
}

std::size_t positive(std::ptrdiff_t count)
{
    return count > 0 ? static_cast<std::size_t>(count) : 0;
}
} // namespace

bool Tools::isNum(QString text)
{
    bool isNumber = false;
    guarded("Tools::isNum", [&] { text.toDouble(&isNumber); });
    return isNumber;
}

QString Tools::StringDblRating(std::string text)
{
    QString result;
    guarded("Tools::StringDblRating", [&] {
        result = QString::fromStdString(text);
        result.replace(QLatin1Char('\''), QLatin1String("''"));
    });
    return result;
}

std::string Tools::Padding(std::string text, int width, char fill)
{
    std::string result;
    guarded("Padding", [&] {
        const auto missing = positive(width - static_cast<std::ptrdiff_t>(text.size()));
        result = text.append(missing, fill);
    });
    return result;
}

std::string Tools::PaddingCenter(std::string text, int width, char fill)
{
    std::string result;
    guarded("PaddingCenter", [&] {
        const auto half = (width - static_cast<std::ptrdiff_t>(text.size())) / 2;
        if (half >= 0) {
            const std::string side(positive(half), fill);
            result = side + text + side;
        }
    });
    return result;
}

QString Tools::ConvDate::ToUs(QString text)
{
    QString result;
    guarded("ToUs", [&] {
        const QStringView date(text);
        result = reordered(date, date.mid(6, 4), date.mid(0, 2), date.mid(3, 2), QLatin1Char('-'));
    });
    return result;
}

QString Tools::ConvDate::ToUs_mdy(QString text)
{
    QString result;
    guarded("ToFr", [&] {
        const QStringView date(text);
        result = reordered(date, date.mid(5, 2), date.mid(8, 2), date.mid(0, 4), QLatin1Char('/'));
    });
    return result;
}
