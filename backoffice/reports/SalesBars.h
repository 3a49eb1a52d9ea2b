// SPDX-License-Identifier: MIT
#pragma once

#include "backoffice/reports/Report.h"
#include "backoffice/reports/Sums.h"

#include <map>
#include <optional>

/// The sales of a period, cut into the bars of its chart, each beside the same part of the period
/// before.
class SalesBars
{
public:
    struct Bar
    {
        /// Of a day only.
        int hour = 0;
        DayRange range;
        QString category;
        QString name;
        Sum sold;
        /// None when the period before has no such day.
        std::optional<Sum> before;
    };

    /// What the period has sold so far, and the same part of the period before.
    struct Comparison
    {
        /// Not when nothing of the period has happened yet.
        bool isPossible = false;
        /// What of the period before is compared.
        DayRange range;
        /// Where a day is in progress: the hour up to which both are compared.
        std::optional<int> endHour;
        Amount now = 0;
        Amount before = 0;
    };

    /// \a sales are those of the period and of the period before.
    SalesBars(const ReportOrder& order, const std::vector<HourSales>& sales);

    const std::vector<Bar>& bars() const { return bars_; }
    Sum total() const { return total_; }
    /// The period's days with sales.
    const std::map<QDate, Sum>& soldDays() const { return days_; }
    /// The period's sales by the hour of the day.
    const std::array<Sum, hoursInADay>& soldHours() const { return hours_; }
    /// The number of the period's days up to today.
    qint64 pastDays() const;
    Comparison comparison() const;

    /// Whether something of \a bar has happened. Of today, hours behind the last sale have not:
    /// when the till will sell again, nobody knows.
    bool hasBegun(const Bar& bar) const;
    /// Whether \a bar can be held against what was sold before: a day in progress always looks
    /// worse, and of today the hours up to the last sale count as over.
    bool isOver(const Bar& bar) const;

private:
    bool isToday() const;
    void addHours();
    void addDays();
    void addMonths();
    std::optional<QDate> dayBefore(QDate day) const;
    std::optional<Sum> soldBefore(const DayRange& days) const;

    DayRange range_;
    DayRange before_;
    QDate today_;
    QLocale locale_;
    /// When both periods are of whole months: how many.
    int months_ = 0;
    std::vector<Bar> bars_;
    Sum total_;
    std::map<QDate, Sum> days_;
    std::map<QDate, Sum> daysBefore_;
    std::array<Sum, hoursInADay> hours_;
    std::array<Sum, hoursInADay> hoursBefore_;
};
