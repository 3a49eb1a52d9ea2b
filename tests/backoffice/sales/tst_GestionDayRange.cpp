// SPDX-License-Identifier: MIT
#include "backoffice/sales/DayRange.h"
#include "tests/support/Rows.h"
#include "tests/support/TestProgram.h"

namespace {
using Preset = DayRange::Preset;

QDate day(const char* text) { return QDate::fromString(text, Qt::ISODate); }

QByteArray shown(const DayRange& range)
{
    return (range.first.toString(Qt::ISODate) + ' ' + range.last.toString(Qt::ISODate)).toUtf8();
}
} // namespace

/// The days of a report.
class TestGestionDayRange : public QObject
{
    Q_OBJECT

private slots:
    void presetsAreWholePeriods()
    {
        const Rows<Preset, const char*, Qt::DayOfWeek, QByteArray> rows{
            {"today", Preset::Today, "2026-11-22", Qt::Monday, "2026-11-22 2026-11-22"},
            {"yesterday", Preset::Yesterday, "2026-03-01", Qt::Monday, "2026-02-28 2026-02-28"},
            {"yesterday in a leap year", Preset::Yesterday, "2024-03-01", Qt::Monday,
                "2024-02-29 2024-02-29"},
            {"a Sunday ends its week", Preset::ThisWeek, "2026-11-22", Qt::Monday,
                "2026-11-16 2026-11-22"},
            {"or begins it", Preset::ThisWeek, "2026-11-22", Qt::Sunday, "2026-11-22 2026-11-28"},
            {"a Saturday ends that week", Preset::ThisWeek, "2026-11-21", Qt::Sunday,
                "2026-11-15 2026-11-21"},
            {"a Monday begins its week", Preset::ThisWeek, "2026-11-23", Qt::Monday,
                "2026-11-23 2026-11-29"},
            {"weeks from Saturday", Preset::ThisWeek, "2026-11-20", Qt::Saturday,
                "2026-11-14 2026-11-20"},
            {"a week of two years", Preset::ThisWeek, "2027-01-01", Qt::Monday,
                "2026-12-28 2027-01-03"},
            {"a month", Preset::ThisMonth, "2026-11-30", Qt::Monday, "2026-11-01 2026-11-30"},
            {"February", Preset::ThisMonth, "2023-02-10", Qt::Monday, "2023-02-01 2023-02-28"},
            {"a leap year's", Preset::ThisMonth, "2024-02-29", Qt::Monday, "2024-02-01 2024-02-29"},
            {"December", Preset::ThisMonth, "2026-12-31", Qt::Monday, "2026-12-01 2026-12-31"},
            {"a year", Preset::ThisYear, "2026-01-01", Qt::Monday, "2026-01-01 2026-12-31"},
            {"last year", Preset::LastYear, "2024-02-29", Qt::Monday, "2023-01-01 2023-12-31"},
        };
        for (const auto& [name, preset, today, weekStart, expected] : rows) {
            const InRow inRow(name);
            QCOMPARE(shown(DayRange::of(preset, day(today), weekStart)), expected);
        }
    }

    void thePeriodBefore()
    {
        const Rows<const char*, const char*, QByteArray> rows{
            {"a day", "2026-03-01", "2026-03-01", "2026-02-28 2026-02-28"},
            {"a week", "2026-11-16", "2026-11-22", "2026-11-09 2026-11-15"},
            {"a month", "2026-11-01", "2026-11-30", "2026-10-01 2026-10-31"},
            {"March", "2024-03-01", "2024-03-31", "2024-02-01 2024-02-29"},
            {"January", "2026-01-01", "2026-01-31", "2025-12-01 2025-12-31"},
            {"a quarter", "2026-01-01", "2026-03-31", "2025-10-01 2025-12-31"},
            {"a year", "2024-01-01", "2024-12-31", "2023-01-01 2023-12-31"},
            {"the year after a leap year", "2025-01-01", "2025-12-31", "2024-01-01 2024-12-31"},
            {"thirty days", "2026-11-02", "2026-12-01", "2026-10-03 2026-11-01"},
            {"a month without its last day", "2024-02-01", "2024-02-28", "2024-01-04 2024-01-31"},
        };
        for (const auto& [name, first, last, expected] : rows) {
            const InRow inRow(name);
            QCOMPARE(shown(DayRange{day(first), day(last)}.before()), expected);
        }
    }

    void barsAreHoursDaysOrMonths()
    {
        using Grain = DayRange::Grain;
        const Rows<const char*, const char*, Grain> rows{
            {"a day", "2026-11-22", "2026-11-22", Grain::Hour},
            {"two days", "2026-11-22", "2026-11-23", Grain::Day},
            {"July and August", "2026-07-01", "2026-08-31", Grain::Day},
            {"one day more", "2026-07-01", "2026-09-01", Grain::Month},
            {"a year", "2026-01-01", "2026-12-31", Grain::Month},
        };
        for (const auto& [name, first, last, expected] : rows) {
            const InRow inRow(name);
            QCOMPARE((DayRange{day(first), day(last)}.grain()), expected);
        }
    }

    void bothDaysAreIncluded()
    {
        const DayRange range{day("2024-02-28"), day("2024-03-01")};
        QCOMPARE(range.days(), qint64{3});
        QVERIFY(!range.contains(day("2024-02-27")));
        QVERIFY(range.contains(day("2024-02-28")));
        QVERIFY(range.contains(day("2024-03-01")));
        QVERIFY(!range.contains(day("2024-03-02")));
    }

    void twoDaysInOrderAreValid()
    {
        QVERIFY((DayRange{day("2024-02-29"), day("2024-02-29")}.isValid()));
        QVERIFY(!(DayRange{day("2024-02-29"), day("2024-02-28")}.isValid()));
        QVERIFY(!(DayRange{day("2023-02-29"), day("2024-02-28")}.isValid()));
        QVERIFY(!(DayRange{day("2023-02-28"), QDate()}.isValid()));
    }
};

VENDEL_TEST(TestGestionDayRange)
#include "tst_GestionDayRange.moc"
