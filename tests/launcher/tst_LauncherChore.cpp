// SPDX-License-Identifier: MIT
#include "launcher/Chore.h"
#include "tests/support/TestProgram.h"

#include <QTest>

#include <csignal>

#include <poll.h>
#include <unistd.h>

namespace {
constexpr double longTime = 60;

/// Waits as the launcher does, and returns the exit status.
int statusOf(Chore& chore)
{
    std::optional<int> status;
    while (!status && chore.isAwaited()) {
        // Its end is a signal to the launcher; here, looking again shortly after has to do.
        constexpr int moment = 5;
        pollfd clock{chore.clock(), POLLIN, 0};
        poll(&clock, 1, moment);
        chore.lookAtClock();
        status = chore.ended();
    }
    return status.value_or(-1);
}

int forEver()
{
    for (;;) {
        pause();
    }
}
} // namespace

class TestLauncherChore : public QObject
{
    Q_OBJECT

private slots:
    void itsResultIsItsStatus()
    {
        Chore chore;
        QVERIFY(!chore.isUnderWay());
        QVERIFY(chore.start([] { return 42; }, longTime));
        QVERIFY(chore.isUnderWay());
        QCOMPARE(statusOf(chore), 42);
        QVERIFY(!chore.isUnderWay());
        QVERIFY(!chore.ended().has_value());
    }

    void workThatIsLateIsKilled()
    {
        Chore chore;
        QVERIFY(chore.start(forEver, 0.02));
        QCOMPARE(statusOf(chore), 128 + SIGKILL);
    }

    void theTimeCanBeShortened()
    {
        Chore chore;
        QVERIFY(chore.start(forEver, longTime));
        chore.limit(0.02);
        QCOMPARE(statusOf(chore), 128 + SIGKILL);
    }

    void itCanBeStartedAgain()
    {
        Chore chore;
        QVERIFY(chore.start(forEver, 0.02));
        statusOf(chore);
        QVERIFY(chore.start([] { return 7; }, longTime));
        QCOMPARE(statusOf(chore), 7);
    }
};

VENDEL_TEST(TestLauncherChore)
#include "tst_LauncherChore.moc"
