// SPDX-License-Identifier: MIT
#include "common/SlotGuard.h"
#include "tests/support/Captured.h"
#include "tests/support/TestProgram.h"

#include <stdexcept>

class TestSlotGuard : public QObject
{
    Q_OBJECT

private slots:
    void runsTheBodySilently()
    {
        const CapturedLog log;
        int runs = 0;
        guarded("Shop open", [&] { ++runs; });
        QCOMPARE(runs, 1);
        QVERIFY(log.criticals().isEmpty());
    }

    void anExceptionIsOneCriticalLine()
    {
        const CapturedLog log;
        guarded("Shop open", [] { throw std::runtime_error("no key"); });
        QCOMPARE(log.criticals(), QStringList(QString("Errors Shop open : no key")));
    }

    void theTextOfAnExceptionIsUtf8()
    {
        const CapturedLog log;
        guarded("Shop open", [] { throw std::runtime_error("fermé"); });
        QCOMPARE(log.criticals(), QStringList(QString("Errors Shop open : fermé")));
    }

    void percentSignsStand()
    {
        const CapturedLog log;
        guarded("Shop open", [] { throw std::runtime_error("100 %s %n"); });
        QCOMPARE(log.criticals(), QStringList(QString("Errors Shop open : 100 %s %n")));
    }

    void whatIsNoStandardExceptionGoesOn()
    {
        const CapturedLog log;
        int caught = 0;
        try {
            guarded("Shop open", [] { throw -1; });
        } catch (int code) {
            caught = code;
        }
        QCOMPARE(caught, -1);
        QVERIFY(log.criticals().isEmpty());
    }
};

VENDEL_TEST(TestSlotGuard)
#include "tst_SlotGuard.moc"
