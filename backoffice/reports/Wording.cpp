// SPDX-License-Identifier: MIT
#include "backoffice/reports/Wording.h"

#include "backoffice/reports/Format.h"

#include <QCoreApplication>

namespace Wording {
namespace {
struct Text
{
    Q_DECLARE_TR_FUNCTIONS(Wording)
};

constexpr int december = 12;

bool isWholeMonth(const DayRange& range)
{
    return range.first.day() == 1 && range.last == range.first.addMonths(1).addDays(-1);
}

bool isWholeYear(const DayRange& range)
{
    return range.first == QDate(range.first.year(), 1, 1)
        && range.last == QDate(range.first.year(), december, 31);
}
} // namespace

QString dayInFull(QDate day, const QLocale& locale)
{
    QString text = locale.toString(day, QLocale::LongFormat);
    if (locale.language() == QLocale::French && day.day() == 1) {
        text.replace(QLatin1String(" 1 "), QLatin1String(" 1er "));
    }
    return text;
}

QString month(QDate day, const QLocale& locale) { return format(day, CellKind::Month, locale); }

QString period(const DayRange& range, const QLocale& locale)
{
    if (range.first == range.last) {
        return dayInFull(range.first, locale);
    }
    if (isWholeMonth(range)) {
        return month(range.first, locale);
    }
    if (isWholeYear(range)) {
        return Text::tr("année %1").arg(range.first.year());
    }
    return Text::tr("du %1 au %2")
        .arg(dayInFull(range.first, locale), dayInFull(range.last, locale));
}

QString hourInFull(int hour, const QLocale& locale)
{
    return Text::tr("de %1 à %2")
        .arg(format(hour, CellKind::Hour, locale), format(hour + 1, CellKind::Hour, locale));
}

QString subtitle(const ReportOrder& order)
{
    QString words = period(order.range, order.locale);
    words[0] = words.at(0).toUpper();
    if (order.range.first > order.today) {
        return Text::tr("%1, à venir").arg(words);
    }
    if (order.range.first == order.range.last) {
        return order.range.last == order.today ? Text::tr("%1, journée en cours").arg(words)
                                               : words;
    }
    return order.range.last >= order.today
        ? Text::tr("%1, jusqu'à aujourd'hui, %2").arg(words, dayInFull(order.today, order.locale))
        : words;
}

QString lines() { return Text::tr("Lignes"); }
QString net() { return Text::tr("Total HT"); }

QString tax(double rate, const QLocale& locale)
{
    return Text::tr("TVA à %1").arg(percentInShort(rate, locale));
}

QString gross() { return Text::tr("Total TTC"); }
QString article() { return Text::tr("Article"); }
QString hour() { return Text::tr("Heure"); }
QString day() { return Text::tr("Jour"); }
QString share() { return Text::tr("Part"); }

QString taxNote()
{
    return Text::tr(
        "La caisse enregistre des prix hors taxe. La TVA est calculée sur chaque total et "
        "arrondie une fois : la somme des tickets ou des lignes peut en différer de "
        "quelques centimes.");
}

QString amountNote()
{
    return Text::tr("« ---- » : montants saisis à la caisse, remises comprises.");
}
} // namespace Wording
