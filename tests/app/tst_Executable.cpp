// SPDX-License-Identifier: MIT
#include "tests/app/StartedTill.h"
#include "tests/support/Shop.h"
#include "tests/support/TestProgram.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QImage>
#include <QRect>
#include <QTest>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {
QRect geometry(const QString& id)
{
    const QByteArray text
        = outputOf(QString("xdotool"), {QString("getwindowgeometry"), QString("--shell"), id});
    const auto value = [&](const QByteArray& name) {
        const auto start = text.indexOf('\n' + name + '=') + name.size() + 2;
        return text.mid(start, text.indexOf('\n', start) - start).toInt();
    };
    return {value("X"), value("Y"), value("WIDTH"), value("HEIGHT")};
}
} // namespace

/// The program itself, started in a shop on a screen of 1366 x 768.
class TestExecutable : public QObject
{
    Q_OBJECT

private slots:
    void opensInTheMiddleOfTheScreenBehindItsSplash()
    {
        const Shop shop;
        const StartedTill till;
        QTRY_VERIFY_WITH_TIMEOUT(!windowTitled("Dialog").isEmpty(), 20000);
        QElapsedTimer timer;
        timer.start();
        QCOMPARE(geometry(windowTitled("Vendel")), QRect(158, 71, 1050, 626));
        QCOMPARE(geometry(windowTitled("Dialog")), QRect(302, 220, 445, 186));
        QTRY_VERIFY_WITH_TIMEOUT(windowTitled("Dialog").isEmpty(), 20000);
        QVERIFY2(timer.elapsed() > 3500, qPrintable(QString::number(timer.elapsed())));
        QVERIFY(!windowTitled("Vendel").isEmpty());
    }

    void showsTheIconOfItsFolder()
    {
        const Shop shop;
        QImage icon(4, 4, QImage::Format_ARGB32);
        icon.fill(QColor(1, 2, 3));
        QVERIFY(icon.save(QString("Vendel.png")));
        const StartedTill till;
        QTRY_VERIFY_WITH_TIMEOUT(!windowTitled("Vendel").isEmpty(), 20000);
        const QByteArray property = outputOf(QString("xprop"),
            {QString("-id"), windowTitled("Vendel"), QString("-f"), QString("_NET_WM_ICON"),
                QString("32c"), QString("_NET_WM_ICON")});
        QVERIFY2(property.contains("4, 4, 4278256131"), property.constData());
    }

    void startsWithAnIconThatNobodyWrites()
    {
        const Shop shop;
        QVERIFY(mkfifo("Vendel.png", 0600) == 0);
        StartedTill till;
        QTRY_VERIFY_WITH_TIMEOUT(!windowTitled("Vendel").isEmpty(), 20000);
        QVERIFY(till.process.readAllStandardError().contains(
            "Vendel.png is not read: it is not a regular file\n"));
    }

    void startsInAnEmptyFolder()
    {
        const Shop shop(Shop::Database::None);
        StartedTill till;
        QTRY_VERIFY_WITH_TIMEOUT(!windowTitled("Vendel").isEmpty(), 20000);
        QCOMPARE(shop.sql("select param, valeur from Config"),
            (DbRows{{"TVA", "0"}, {"Epson TM-T20II", "0"}}));
        QCOMPARE(till.process.readAllStandardOutput(), QByteArray());
        QVERIFY(!till.process.readAllStandardError().contains("Errors"));
    }

    void saysThatThePrinterIsOn()
    {
        const Shop shop;
        shop.sql("update Config set valeur = 1 where param = 'Epson TM-T20II'");
        StartedTill till;
        QByteArray log;
        QTRY_VERIFY_WITH_TIMEOUT(
            (log += till.process.readAllStandardError()).contains("Warning Epson to 1 (ON)\n"),
            20000);
    }

    void livesOnWhenNobodyReadsItsOutput()
    {
        const Shop shop;
        shop.sql("drop table Config");
        shop.sql("drop table Ticket");
        QVERIFY(mkfifo("output", 0600) == 0);
        const int reader = open("output", O_RDONLY | O_NONBLOCK | O_CLOEXEC);
        QVERIFY(reader >= 0);
        StartedTill till(0, QString("output"));
        QVERIFY(till.process.waitForStarted());
        close(reader);
        // The start reads the settings, "Payer" the ticket: two reports that nobody takes.
        QTRY_VERIFY_WITH_TIMEOUT(!windowTitled("Dialog").isEmpty(), 20000);
        QTRY_VERIFY_WITH_TIMEOUT(windowTitled("Dialog").isEmpty(), 20000);
        outputOf(QString("xdotool"),
            {QString("mousemove"), QString("1068"), QString("662"), QString("click"),
                QString("1")});
        QTRY_VERIFY_WITH_TIMEOUT(!windowTitled("Payer").isEmpty(), 20000);
        QCOMPARE(till.process.state(), QProcess::Running);
    }
};

VENDEL_BARE_TEST(TestExecutable)
#include "tst_Executable.moc"
