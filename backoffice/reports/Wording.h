// SPDX-License-Identifier: MIT
#pragma once

#include "backoffice/reports/Report.h"

/// What several pages say in the same words.
namespace Wording {
/// "lundi 2 novembre 2026".
QString dayInFull(QDate day, const QLocale& locale);
/// A whole month or year by its name, else the days, in words.
QString period(const DayRange& range, const QLocale& locale);
/// "novembre 2026".
QString month(QDate day, const QLocale& locale);
/// "de 9 h à 10 h".
QString hourInFull(int hour, const QLocale& locale);

/// The period of \a order, and how far it is known.
QString subtitle(const ReportOrder& order);

QString lines();
QString net();
/// "TVA à 20 %".
QString tax(double rate, const QLocale& locale);
QString gross();
QString article();
QString hour();
QString day();
QString share();

/// That the tax of a period is not the sum of the tickets' taxes.
QString taxNote();
/// What "----" is.
QString amountNote();
} // namespace Wording
