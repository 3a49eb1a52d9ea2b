// SPDX-License-Identifier: MIT
#include "common/Tools.h"

#include "common/SlotGuard.h"

#include <cstddef>

namespace {
constexpr int dateLength = 10;
constexpr int dateTimeLength = 23;

/// \a day10 for a date alone, with the time of day (position 11, 12 characters) for a longer text.
QString withTimeOfDay(const QString& text, const QString& day10)
{
    switch (text.size()) {
    case dateLength:
        return day10;
    case dateTimeLength:
        return day10 + QLatin1Char(' ') + text.mid(11, 12);
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
    guarded("Errors Tools::isNum : ", [&] { text.toDouble(&isNumber); });
    return isNumber;
}

QString Tools::StringDblRating(std::string text)
{
    QString result;
    guarded("Errors Tools::StringDblRating : ", [&] {
        result = QString::fromStdString(text);
        result.replace(QLatin1Char('\''), QLatin1String("''"));
    });
    return result;
}

std::string Tools::Padding(std::string text, int width, char fill)
{
    std::string result;
    guarded("Errors Padding : ", [&] {
        const auto missing = positive(width - static_cast<std::ptrdiff_t>(text.size()));
        result = text.append(missing, fill);
    });
    return result;
}

std::string Tools::PaddingCenter(std::string text, int width, char fill)
{
    std::string result;
    guarded("Errors PaddingCenter : ", [&] {
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
    guarded("Errors ToUs : ", [&] {
        const auto dash = QLatin1Char('-');
        result
            = withTimeOfDay(text, text.mid(6, 4) + dash + text.mid(0, 2) + dash + text.mid(3, 2));
    });
    return result;
}

QString Tools::ConvDate::ToUs_mdy(QString text)
{
    QString result;
    guarded("Errors ToFr : ", [&] {
        const auto slash = QLatin1Char('/');
        result
            = withTimeOfDay(text, text.mid(5, 2) + slash + text.mid(8, 2) + slash + text.mid(0, 4));
    });
    return result;
}
