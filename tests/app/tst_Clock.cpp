// SPDX-License-Identifier: MIT
#include "app/Clock.h"
#include "tests/support/TestMain.h"

class TestClock : public QObject
{
    Q_OBJECT

private slots:
    void showsColonsOnOddSeconds();
    void showsBlanksOnEvenSeconds();
    void midnightIsEven();
    void theLastSecondOfADayIsOdd();
    void theDateFollowsItsPattern();
    void singleDigitsArePadded();
};

namespace {
const QString pattern = QStringLiteral("dd/MM/yyyy");

QString at(int hour, int minute, int second)
{
    return clockText(QDateTime({2019, 3, 5}, {hour, minute, second, 999}), pattern);
}
} // namespace

void TestClock::showsColonsOnOddSeconds()
{
    QCOMPARE(at(14, 7, 31), QStringLiteral("05/03/2019 14:07:31"));
}

void TestClock::showsBlanksOnEvenSeconds()
{
    QCOMPARE(at(14, 7, 32), QStringLiteral("05/03/2019 14 07 32"));
}

void TestClock::midnightIsEven()
{
    QCOMPARE(at(0, 0, 0), QStringLiteral("05/03/2019 00 00 00"));
}

void TestClock::theLastSecondOfADayIsOdd()
{
    QCOMPARE(at(23, 59, 59), QStringLiteral("05/03/2019 23:59:59"));
}

void TestClock::theDateFollowsItsPattern()
{
    const QDateTime time({2019, 3, 5}, {14, 7, 31});
    QCOMPARE(clockText(time, QStringLiteral("MM/dd/yyyy")), QStringLiteral("03/05/2019 14:07:31"));
    QCOMPARE(clockText(time, QStringLiteral("yyyy-MM-dd")), QStringLiteral("2019-03-05 14:07:31"));
}

void TestClock::singleDigitsArePadded()
{
    QCOMPARE(at(1, 2, 3), QStringLiteral("05/03/2019 01:02:03"));
}

VENDEL_TEST_MAIN(TestClock)
#include "tst_Clock.moc"
