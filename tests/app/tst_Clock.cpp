// SPDX-License-Identifier: MIT
#include "app/Clock.h"
#include "tests/support/TestProgram.h"

namespace {
const QString pattern = QString("dd/MM/yyyy");

QString at(int hour, int minute, int second)
{
    return clockText(QDateTime({2019, 3, 5}, {hour, minute, second, 999}), pattern);
}
} // namespace

class TestClock : public QObject
{
    Q_OBJECT

private slots:
    void showsColonsOnOddSeconds()
    {
        QCOMPARE(at(14, 7, 31), QString("05/03/2019 14:07:31"));
    }

    void showsBlanksOnEvenSeconds()
    {
        QCOMPARE(at(14, 7, 32), QString("05/03/2019 14 07 32"));
    }

    void midnightIsEven()
    {
        QCOMPARE(at(0, 0, 0), QString("05/03/2019 00 00 00"));
    }

    void theLastSecondOfADayIsOdd()
    {
        QCOMPARE(at(23, 59, 59), QString("05/03/2019 23:59:59"));
    }

    void theDateFollowsItsPattern()
    {
        const QDateTime time({2019, 3, 5}, {14, 7, 31});
        QCOMPARE(clockText(time, QString("MM/dd/yyyy")), QString("03/05/2019 14:07:31"));
        QCOMPARE(clockText(time, QString("yyyy-MM-dd")), QString("2019-03-05 14:07:31"));
    }

    void singleDigitsArePadded()
    {
        QCOMPARE(at(1, 2, 3), QString("05/03/2019 01:02:03"));
    }
};

VENDEL_TEST(TestClock)
#include "tst_Clock.moc"
