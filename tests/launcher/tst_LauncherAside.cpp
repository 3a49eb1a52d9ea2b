// SPDX-License-Identifier: MIT
#include "launcher/Aside.h"
#include "tests/launcher/ShopFolder.h"
#include "tests/support/TestProgram.h"

#include <csignal>
#include <stdexcept>

#include <sys/wait.h>

class TestLauncherAside : public QObject
{
    Q_OBJECT

private slots:
    void whatIsFoundComesBack()
    {
        const Aside aside;
        QCOMPARE(
            aside.run(5, [] { return std::string("a\0b", 3); }).value(), std::string("a\0b", 3));
        QCOMPARE(aside.run(5, [] { return std::string(); }).value(), std::string());
    }

    void whatHangsIsGivenUp()
    {
        const Aside aside;
        const auto answer = aside.run(0.05, [] {
            pause();
            return std::string("late");
        });
        QVERIFY(!answer);
        QCOMPARE(waitpid(-1, nullptr, WNOHANG), pid_t(-1));
    }

    void whatFailsOrCrashesHasNoAnswer()
    {
        const Aside aside;
        QVERIFY(!aside.run(5, []() -> std::string { throw std::runtime_error("x"); }));
        QVERIFY(!aside.run(5, []() -> std::string {
            kill(getpid(), SIGKILL);
            return "not reached";
        }));
    }

    void aSignalIsFollowedWhenAllIsPutAway()
    {
        const ShopFolder shop;
        const pid_t process = fork();
        if (process == 0) {
            // The test program's own way of ending is not the launcher's.
            std::signal(SIGTERM, SIG_DFL);
            {
                const Aside aside;
                const SafeFile::Temporary made(shop.get(), "made");
                aside.run(60, [&] {
                    shop.write(QString("begun"), {});
                    pause();
                    return std::string();
                });
            }
            _exit(0);
        }
        QTRY_VERIFY(QFile::exists(QString("begun")));
        QVERIFY(QFile::exists(QString("made")));
        QCOMPARE(kill(process, SIGTERM), 0);
        int state = 0;
        QCOMPARE(waitpid(process, &state, 0), process);
        QVERIFY(WIFSIGNALED(state));
        QCOMPARE(WTERMSIG(state), SIGTERM);
        QVERIFY(!QFile::exists(QString("made")));
    }
};

VENDEL_TEST(TestLauncherAside)
#include "tst_LauncherAside.moc"
