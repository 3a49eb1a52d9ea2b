// SPDX-License-Identifier: MIT
#pragma once

#include "backoffice/sales/Amount.h"
#include "backoffice/sales/DayRange.h"
#include "backoffice/sales/SentenceError.h"

#include <QLocale>
#include <QString>

#include <atomic>
#include <exception>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

/// What was sold in one hour.
struct HourSales
{
    QDate day;
    /// 0 to 23, by the till's clock.
    int hour = 0;
    /// Number of sold lines, discounts among them.
    qint64 lines = 0;
    Amount takings = 0;
    /// The place, from 0, among SalesSource::tills().
    int till = 0;
};

/// What was sold of one article, whatever its prices were. Names that differ by the case of A to Z
/// only are one article's, as on the till.
struct ArticleSales
{
    QString article;
    qint64 lines = 0;
    Amount takings = 0;
    int till = 0;
};

/// An article that the menu sells.
struct MenuArticle
{
    QString article;
    Amount price = 0;
    int till = 0;
};

/// What was used of one composition.
struct Use
{
    /// The day; not valid for the whole range.
    QDate day;
    QString composition;
    double amount = 0;
    QString unit;
    /// The amount in the larger unit, and that unit; empty where there is none.
    double converted = 0;
    QString convertedUnit;
    int till = 0;
};

/// Why sales cannot be read.
class SalesError : public SentenceError
{
public:
    using SentenceError::SentenceError;
};

/// Reading was stopped by whoever had asked for it.
class ReadingStopped : public std::exception
{ };

/// A reading that may take long, as seen by whoever waits for it in another thread.
struct Reading
{
    /// Called with what is done so far, 0 to 1; may be empty.
    std::function<void(double)> progress;
    /// Ends the reading with ReadingStopped when set; may be null.
    const std::atomic<bool>* isStopped = nullptr;

    /// Notes the share \a done. Throws ReadingStopped.
    void advance(double done) const
    {
        if (isStopped != nullptr && *isStopped) {
            throw ReadingStopped();
        }
        if (progress) {
            progress(done);
        }
    }
};

/// Where the reports have their figures from. An object is used by one thread, the one that has
/// made it. All functions but the first throw SalesError, and ReadingStopped where they take a
/// Reading.
class SalesSource
{
public:
    SalesSource() = default;
    SalesSource(const SalesSource&) = delete;
    SalesSource& operator=(const SalesSource&) = delete;
    virtual ~SalesSource() = default;

    /// What tillSales() adds up: each hour, day or month, or the hours of each weekday.
    enum class TillPart
    {
        Hour,
        Day,
        Month,
        WeekHour
    };

    /// The names of the tills whose sales are read, one or more.
    virtual std::vector<QString> tills() const = 0;

    /// The names that choose() knows.
    virtual std::vector<QString> allTills() const { return tills(); }

    /// Has only the tills \a names read from now on; all when there are none. A till by itself is
    /// always all.
    virtual void choose(const std::vector<QString>& names) { static_cast<void>(names); }

    /// Whether files say of which till each row is.
    virtual bool namesTills() const { return false; }

    /// While the returned object lives, which is no longer than this one, all is read as it was at
    /// one moment; null where sales may be added in between.
    virtual std::shared_ptr<void> hold() { return nullptr; }

    /// The hours of \a range with a sale, in the order of time. Where there are several tills,
    /// they may be added up, as if they were the first.
    virtual std::vector<HourSales> hours(const DayRange& range, const Reading& reading) = 0;

    /// What each till sold in \a range, by \a part: in place of the day stand the first day of the
    /// month in the range, or the first of that weekday, and in place of the hour 0 where there is
    /// none. In the order of tills, then of time.
    virtual std::vector<HourSales> tillSales(
        const DayRange& range, TillPart part, const Reading& reading);

    /// The articles sold in \a range, in the order of their names.
    virtual std::vector<ArticleSales> articles(const DayRange& range, const Reading& reading) = 0;

    /// What the recipes used in \a range: first of the whole range, then of each day. As the till's
    /// own window computes both, the days need not add up to the range. Where there are several
    /// tills, the days of some may be added up, and where the range has the grain of months, the
    /// days of each month, as its first in the range.
    virtual std::vector<Use> uses(const DayRange& range, const Reading& reading) = 0;

    /// The menu, in the order of the names.
    virtual std::vector<MenuArticle> menu() = 0;

    /// The configured tax rate, in per cent.
    virtual double taxRate() = 0;

    /// What the reader of sums with tax has to know of that rate; nothing where all is as usual.
    virtual std::optional<QString> taxRemark(const QLocale& locale)
    {
        static_cast<void>(locale);
        return std::nullopt;
    }

    /// Whether sales may have been added, changed or removed since the last call; the first call
    /// says yes.
    virtual bool isChanged() = 0;
};
