// SPDX-License-Identifier: MIT
#include "tests/support/TestProgram.h"
#include "widgets/MessageBoxes.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QWidget>

#include <atomic>

namespace {
/// What a program of hanging tests wrote, and how it ended.
struct Ended
{
    QByteArray output;
    QProcess::ExitStatus status;
    int code;
};

/// Runs the test \a function of HangingTests in a program of its own, \a seconds its limit.
Ended run(const char* function, int seconds)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("VENDEL_TEST_SECONDS", QString::number(seconds));
    // A program that is aborted may leave its memory behind.
    const QTemporaryDir folder;
    QProcess process;
    process.setWorkingDirectory(folder.path());
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(
        QCoreApplication::applicationFilePath(), {"hanging", function, "-platform", "offscreen"});
    if (!process.waitForFinished(25'000)) {
        return {"it hangs", QProcess::CrashExit, -1};
    }
    return {process.readAllStandardOutput(), process.exitStatus(), process.exitCode()};
}
} // namespace

/// Tests that would not end by themselves.
class HangingTests : public QObject
{
    Q_OBJECT

private slots:
    void aBoxIsShown()
    {
        QWidget window;
        notice(&window, "Bonjour", "Accueil");
    }
    void aLoopRunsForever()
    {
        const std::atomic<bool> isRunning = true;
        while (isRunning) { }
    }
};

/// A test that hangs ends within seconds and says why.
class TestWatchdogs : public QObject
{
    Q_OBJECT

private slots:
    void aBoxThatNobodyExpectsFailsItsTestAndIsSentAway()
    {
        const Ended ended = run("aBoxIsShown", 20);
        QCOMPARE(ended.status, QProcess::NormalExit);
        QCOMPARE(ended.code, 1);
        QVERIFY2(ended.output.contains("FAIL!  : HangingTests::aBoxIsShown() "
                                       "nobody answers the box \"Accueil\": Bonjour\n"),
            ended.output.constData());
    }

    void aTestThatDoesNotEndIsNamedAndEndsItsProgram()
    {
        const Ended ended = run("aLoopRunsForever", 1);
        QCOMPARE(ended.status, QProcess::CrashExit);
        QVERIFY2(ended.output.contains("aLoopRunsForever() does not end within 1 seconds\n"),
            ended.output.constData());
    }
};

VENDEL_TEST(TestWatchdogs)
VENDEL_TEST_ENTRY(HangingTests, "hanging", true)
#include "tst_Watchdogs.moc"
