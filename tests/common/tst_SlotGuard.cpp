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
        for (const char* text : {"no key", "fermé", "100 %s %n"}) {
            const CapturedLog log;
            guarded("Shop open", [&] { throw std::runtime_error(text); });
            QCOMPARE(log.criticals(), QStringList("Errors Shop open : " + QString(text)));
        }
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
