// SPDX-License-Identifier: MIT
#include "backoffice/sales/TillPace.h"
#include "tests/support/TestProgram.h"

namespace {
/// A machine whose time passes only while it reads.
struct SlowMachine
{
    Timing timing()
    {
        return {[this] { return elapsed; }, [] { return qint64{0}; },
            [this](qint64 time) { slept += time; }};
    }

    /// Reads a portion at \a usARow microseconds a row, and returns how long that took.
    qint64 read(TillPace& pace, qint64 usARow, bool isTillAtWork = false)
    {
        const qint64 begin = elapsed;
        pace.run(isTillAtWork, [&] { elapsed += pace.rows() * usARow; });
        return elapsed - begin;
    }

    qint64 elapsed = 0;
    qint64 slept = 0;
};
} // namespace

/// How much is read at a time.
class TestGestionTillPace : public QObject
{
    Q_OBJECT

private slots:
    void theFirstPortionIsSmall()
    {
        SlowMachine machine;
        QCOMPARE(TillPace(machine.timing()).rows(), qint64{250});
    }

    void portionsGrowToFiveMilliseconds()
    {
        SlowMachine machine;
        TillPace pace(machine.timing());
        QCOMPARE(machine.read(pace, 5), qint64{1250});
        QCOMPARE(machine.read(pace, 5), qint64{2500});
        QCOMPARE(machine.read(pace, 5), qint64{5000});
        QCOMPARE(machine.read(pace, 5), qint64{5000});
        QCOMPARE(machine.slept, qint64{0});
    }

    void aSlowDiskGetsSmallPortionsAtOnce()
    {
        SlowMachine machine;
        TillPace pace(machine.timing());
        QCOMPARE(machine.read(pace, 100), qint64{25000});
        QCOMPARE(machine.read(pace, 100), qint64{5000});
        QCOMPARE(pace.rows(), qint64{50});
    }

    void besideATillAtWorkPortionsAreShortAndPausesLong()
    {
        SlowMachine machine;
        TillPace pace(machine.timing());
        QCOMPARE(machine.read(pace, 10, true), qint64{2500});
        QCOMPARE(machine.slept, qint64{25000});
        QCOMPARE(machine.read(pace, 10, true), qint64{3000});
        QCOMPARE(machine.slept, qint64{55000});
    }

    void aPortionThatHasWaitedForTheTillPausesHalfASecondAtMost()
    {
        SlowMachine machine;
        TillPace pace(machine.timing());
        pace.run(true, [&] { machine.elapsed += 8000000; });
        QCOMPARE(machine.slept, qint64{500000});
        pace.runAsIs(true, [&] { machine.elapsed += 8000000; });
        QCOMPARE(machine.slept, qint64{700000});
    }

    void aMachineThatNeedsNoTimeHasALimitToo()
    {
        SlowMachine machine;
        TillPace pace(machine.timing());
        for (int portion = 0; portion < 20; ++portion) {
            machine.read(pace, 0);
        }
        QCOMPARE(pace.rows(), qint64{20000});
    }

    void someRowsAreReadHoweverSlowItIs()
    {
        SlowMachine machine;
        TillPace pace(machine.timing());
        machine.read(pace, 1000000);
        QCOMPARE(pace.rows(), qint64{20});
    }

    void aPortionOfItsOwnSizeTeachesNothing()
    {
        SlowMachine machine;
        TillPace pace(machine.timing());
        pace.runAsIs(true, [&] { machine.elapsed += 7; });
        QCOMPARE(machine.slept, qint64{28});
        QCOMPARE(pace.rows(), qint64{250});
    }
};

VENDEL_TEST(TestGestionTillPace)
#include "tst_GestionTillPace.moc"
