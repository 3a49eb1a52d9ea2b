// SPDX-License-Identifier: MIT
#include "tests/app/StartedTill.h"
#include "tests/support/Shop.h"
#include "tests/support/TestProgram.h"

#include <QImage>

#include <csignal>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

/// The program itself, started in a shop on a screen of 1366 x 768.
class TestExecutable : public QObject
{
    Q_OBJECT

private slots:
    void opensInTheMiddleOfTheScreenBehindItsSplash()
    {
        const Shop shop;
        const StartedTill till;
        QTRY_COMPARE_WITH_TIMEOUT(geometry("Dialog"), QRect(302, 220, 445, 186), 30000);
        QCOMPARE(geometry("Vendel"), QRect(158, 71, 1050, 626));
        QVERIFY(closes("Dialog"));
        QVERIFY(opens("Vendel"));
    }

    void showsTheIconOfItsFolder()
    {
        const Shop shop;
        QImage icon(4, 4, QImage::Format_ARGB32);
        icon.fill(QColor(1, 2, 3));
        QVERIFY(icon.save("Vendel.png"));
        const StartedTill till;
        QVERIFY(opens("Vendel"));
        QByteArray property;
        QTRY_VERIFY2(
            (property = outputOf("xprop",
                 {"-id", windowTitled("Vendel"), "-f", "_NET_WM_ICON", "32c", "_NET_WM_ICON"}))
                .contains("4, 4, 4278256131"),
            property.constData());
    }

    void startsWithAnIconThatNobodyWrites()
    {
        const Shop shop;
        QVERIFY(mkfifo("Vendel.png", 0600) == 0);
        StartedTill till;
        QVERIFY(till.logs("Vendel.png is not read: it is not a regular file\n"));
        QVERIFY(opens("Vendel"));
    }

    void startsInAnEmptyFolder()
    {
        const Shop shop(Shop::Database::None);
        StartedTill till;
        QVERIFY(opens("Vendel"));
        QCOMPARE(shop.sql("select param, valeur from Config"),
            (DbRows{{"TVA", "0"}, {"Epson TM-T20II", "0"}}));
        QVERIFY(!till.takeLog().contains("Errors"));
        QCOMPARE(till.process.readAllStandardOutput(), QByteArray());
    }

    void saysThatThePrinterIsOn()
    {
        const Shop shop;
        shop.sql("update Config set valeur = 1 where param = 'Epson TM-T20II'");
        StartedTill till;
        QVERIFY(till.logs("Warning Epson to 1 (ON)\n"));
    }

    void endsAsItsWindowDoesWhenItIsAskedTo_data()
    {
        QTest::addColumn<int>("number");
        QTest::newRow("TERM") << SIGTERM;
        QTest::newRow("INT") << SIGINT;
        QTest::newRow("HUP") << SIGHUP;
    }

    void endsAsItsWindowDoesWhenItIsAskedTo()
    {
        QFETCH(int, number);
        const Shop shop;
        StartedTill till;
        QVERIFY(opens("Vendel"));
        kill(static_cast<pid_t>(till.process.processId()), number);
        QVERIFY(till.process.waitForFinished());
        QCOMPARE(till.process.exitStatus(), QProcess::NormalExit);
        QCOMPARE(till.process.exitCode(), 0);
    }

    void livesOnWhenNobodyReadsItsOutput()
    {
        const Shop shop;
        shop.fill("drop table Config; drop table Ticket");
        QVERIFY(mkfifo("output", 0600) == 0);
        const int reader = open("output", O_RDONLY | O_NONBLOCK | O_CLOEXEC);
        QVERIFY(reader >= 0);
        StartedTill till(0, "output");
        QVERIFY(till.process.waitForStarted());
        close(reader);
        // The start reads the settings, "Payer" the ticket: two reports that nobody takes.
        QVERIFY(opens("Dialog"));
        QVERIFY(closes("Dialog"));
        outputOf("xdotool", {"mousemove", "1068", "662", "click", "1"});
        QVERIFY(opens("Payer"));
        QCOMPARE(till.process.state(), QProcess::Running);
    }
};

VENDEL_BARE_TEST(TestExecutable)
#include "tst_Executable.moc"
