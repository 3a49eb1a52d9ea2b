// SPDX-License-Identifier: MIT
#include "common/Period.h"
#include "tests/support/Rows.h"
#include "tests/support/TestProgram.h"

class TestPeriod : public QObject
{
    Q_OBJECT

private slots:
    void twoDatesAreAPeriodOrHaveAFault()
    {
        using Fault = Period::Fault;
        const Rows<QString, QString, Fault> rows{
            {"both empty", "", "", Fault::Length},
            {"first empty", "", "05/02/2019", Fault::Length},
            {"second empty", "05/01/2019", "", Fault::Length},
            {"first of 9", "5/01/2019", "05/02/2019", Fault::Length},
            {"second of 9", "05/01/2019", "5/02/2019", Fault::Length},
            {"first of 11", "05/01/20190", "05/02/2019", Fault::Length},
            {"second of 11", "05/01/2019", "05/02/20190", Fault::Length},
            {"second of 22", "05/01/2019", "05/02/2019 10:20:30.12", Fault::Length},
            {"second of 24", "05/01/2019", "05/02/2019 10:20:30.1234", Fault::Length},
            {"only blanks", "          ", "05/02/2019", Fault::Length},
            {"a length beats a date that is none", "99/99/9999", "5/2/2019", Fault::Length},
            {"day-first 31 February", "31/02/2019", "05/02/2019", Fault::NoDate},
            {"31 February", "02/31/2019", "05/02/2019", Fault::NoDate},
            {"second is none", "05/01/2019", "13/01/2019", Fault::NoDate},
            {"29 February of 2019", "02/29/2019", "03/01/2019", Fault::NoDate},
            {"month 0", "00/10/2019", "05/02/2019", Fault::NoDate},
            {"day 0", "01/00/2019", "05/02/2019", Fault::NoDate},
            {"year 0", "01/01/0000", "05/02/2019", Fault::NoDate},
            {"hour 24", "05/01/2019 24:00:00.000", "05/02/2019", Fault::NoDate},
            {"minute 60", "05/01/2019", "05/02/2019 10:60:00.000", Fault::NoDate},
            {"second 60", "05/01/2019", "05/02/2019 10:00:60.000", Fault::NoDate},
            {"a day that is none beats the order", "05/02/2019", "04/31/2019", Fault::NoDate},
            {"days backwards", "05/02/2019", "05/01/2019", Fault::Backwards},
            {"moment after the day", "05/01/2019 00:00:00.001", "05/01/2019", Fault::Backwards},
            {"day after the moment", "05/02/2019", "05/01/2019 23:59:59.999", Fault::Backwards},
            {"a millisecond backwards", "05/01/2019 10:00:00.001", "05/01/2019 10:00:00.000",
                Fault::BackwardsInTime},
            {"moments backwards over years", "01/01/2020 00:00:00.000", "12/31/2019 23:59:59.999",
                Fault::BackwardsInTime},
            {"the same day twice", "05/01/2019", "05/01/2019", Fault::SameDay},
            {"the same moment twice", "05/01/2019 10:00:00.000", "05/01/2019 10:00:00.000",
                Fault::None},
            {"a day and its first moment", "05/01/2019", "05/01/2019 00:00:00.000", Fault::None},
            {"the first moment and its day", "05/01/2019 00:00:00.000", "05/01/2019", Fault::None},
            {"a day", "05/01/2019", "05/02/2019", Fault::None},
            {"29 February of 2020", "02/29/2020", "03/01/2020", Fault::None},
            {"day to moment", "05/01/2019", "05/01/2019 23:59:59.999", Fault::None},
            {"moment to day", "05/01/2019 23:59:59.999", "05/02/2019", Fault::None},
            {"moment to moment", "05/01/2019 10:00:00.000", "05/01/2019 10:00:00.001", Fault::None},
            {"all years", "01/01/0001", "12/31/9999", Fault::None},
        };
        for (const auto& [row, first, second, fault] : rows) {
            const InRow inRow(row);
            QCOMPARE(Period(first, second).fault(), fault);
        }
    }

    void everyHourOfAClockChangeIsADate()
    {
        for (const auto& [first, second] : {
                 std::pair{"03/31/2019 02:30:00.000", "03/31/2019 02:59:59.999"},
                 {"10/27/2019 02:30:00.000", "10/27/2019 02:59:59.999"},
                 {"03/31/2019 01:59:59.999", "03/31/2019 03:00:00.000"},
             }) {
            QVERIFY2(Period(first, second).fault() == Period::Fault::None, first);
            QVERIFY2(Period(second, first).fault() == Period::Fault::BackwardsInTime, first);
        }
    }

    void boundsAreInTheStoredForm()
    {
        const Period period("05/01/2019", "12/31/2020");
        QCOMPARE(period.from(), QString("2019-05-01"));
        QCOMPARE(period.to(), QString("2020-12-31"));
    }

    void aMomentKeepsItsTimeOfDay()
    {
        const Period period("05/01/2019 01:02:03.004", "05/01/2019 23:59:59.999");
        QCOMPARE(period.from(), QString("2019-05-01 01:02:03.004"));
        QCOMPARE(period.to(), QString("2019-05-01 23:59:59.999"));
    }

    void blanksAroundADateDoNotCount()
    {
        const Period period("  05/01/2019 ", "\t05/02/2019\n");
        QCOMPARE(period.fault(), Period::Fault::None);
        QCOMPARE(period.typedFirst(), QString("05/01/2019"));
        QCOMPARE(period.typedSecond(), QString("05/02/2019"));
        QCOMPARE(period.to(), QString("2019-05-02"));
    }

    void separatorsAreNotLookedAt()
    {
        const Period period("05-01.2019", "05'02'2019'10:20:30'123");
        QCOMPARE(period.fault(), Period::Fault::None);
        QCOMPARE(period.from(), QString("2019-05-01"));
        QCOMPARE(period.to(), QString("2019-05-02 10:20:30.123"));
    }

    void textsThatAreNoDatesNeverPass()
    {
        for (const char* typed : {"yyyy/mm/dd", "2019-05-01", "' or 1=1--", "05/01/-019",
                 "05/01/+019", " 5/ 1/2019", "5 /1 /2019", "05/ 1/2019", "+5/+1/2019", "05/01/2 19",
                 "é5/01/2019", "٠٥/٠١/٢٠١٩", "05/01/2019 1 :20:30.123", "05/01/2019  1:20:30.123",
                 "05/01/2019 10:20:30.12 ' ", "05/01/2019 10:20:30. 12", "05/01/2019 10:20:30.'12",
                 "05/01/2019 10-20-30.123", "05/01/2019 10'20'30.123"}) {
            const Period::Fault asFirst = Period(typed, "12/31/9999").fault();
            QVERIFY2(asFirst == Period::Fault::NoDate || asFirst == Period::Fault::Length, typed);
            QVERIFY2(Period("01/01/0001", typed).fault() == asFirst, typed);
        }
    }
};

VENDEL_TEST(TestPeriod)
#include "tst_Period.moc"
