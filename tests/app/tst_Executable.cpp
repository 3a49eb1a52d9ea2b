// SPDX-License-Identifier: MIT
#include "tests/support/Shop.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QImage>
#include <QProcess>
#include <QTest>

/// The program itself, started in a shop on a screen of 1366 x 768.
class TestExecutable : public QObject
{
    Q_OBJECT

private slots:
    void opensInTheMiddleOfTheScreenBehindItsSplash();
    void showsTheIconOfItsFolder();
    void startsInAnEmptyFolder();
    void saysThatThePrinterIsOn();
};

namespace {
QByteArray run(const QString& tool, const QStringList& arguments)
{
    QProcess process;
    process.start(tool, arguments);
    process.waitForFinished();
    return process.readAllStandardOutput();
}

QByteArray xdotool(const QStringList& arguments)
{
    return run(QStringLiteral("xdotool"), arguments);
}

/// The X identity of the visible window with the given title, empty when there is none.
QString window(const char* title)
{
    const QByteArray found = xdotool({QStringLiteral("search"), QStringLiteral("--onlyvisible"),
        QStringLiteral("--name"), QLatin1Char('^') + QString::fromUtf8(title) + QLatin1Char('$')});
    return QString::fromLatin1(found.left(found.indexOf('\n'))).trimmed();
}

QRect geometry(const QString& id)
{
    const QByteArray text
        = xdotool({QStringLiteral("getwindowgeometry"), QStringLiteral("--shell"), id});
    const auto value = [&](const QByteArray& name) {
        const auto start = text.indexOf('\n' + name + '=') + name.size() + 2;
        return text.mid(start, text.indexOf('\n', start) - start).toInt();
    };
    return {value("X"), value("Y"), value("WIDTH"), value("HEIGHT")};
}

/// The till, started in the working directory.
struct Till
{
    QProcess process;

    Till()
    {
        process.start(QStringLiteral(TILL), QStringList());
    }
    ~Till()
    {
        process.terminate();
        process.waitForFinished();
    }
    Till(const Till&) = delete;
    Till& operator=(const Till&) = delete;
    Till(Till&&) = delete;
    Till& operator=(Till&&) = delete;
};
} // namespace

void TestExecutable::opensInTheMiddleOfTheScreenBehindItsSplash()
{
    const Shop shop;
    const Till till;
    QTRY_VERIFY_WITH_TIMEOUT(!window("Dialog").isEmpty(), 20000);
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(geometry(window("Vendel")), QRect(158, 71, 1050, 626));
    QCOMPARE(geometry(window("Dialog")), QRect(302, 220, 445, 186));
    QTRY_VERIFY_WITH_TIMEOUT(window("Dialog").isEmpty(), 20000);
    QVERIFY2(timer.elapsed() > 3500, qPrintable(QString::number(timer.elapsed())));
    QVERIFY(!window("Vendel").isEmpty());
}

void TestExecutable::showsTheIconOfItsFolder()
{
    const Shop shop;
    QImage icon(4, 4, QImage::Format_ARGB32);
    icon.fill(QColor(1, 2, 3));
    QVERIFY(icon.save(QStringLiteral("Vendel.png")));
    const Till till;
    QTRY_VERIFY_WITH_TIMEOUT(!window("Vendel").isEmpty(), 20000);
    const QByteArray property = run(QStringLiteral("xprop"),
        {QStringLiteral("-id"), window("Vendel"), QStringLiteral("-f"),
            QStringLiteral("_NET_WM_ICON"), QStringLiteral("32c"), QStringLiteral("_NET_WM_ICON")});
    QVERIFY2(property.contains("4, 4, 4278256131"), property.constData());
}

void TestExecutable::startsInAnEmptyFolder()
{
    const Shop shop(Shop::Database::None);
    Till till;
    QTRY_VERIFY_WITH_TIMEOUT(!window("Vendel").isEmpty(), 20000);
    QCOMPARE(shop.sql("select param, valeur from Config"),
        (DbRows{{"TVA", "0"}, {"Epson TM-T20II", "0"}}));
    QCOMPARE(till.process.readAllStandardOutput(), QByteArray());
    QVERIFY(!till.process.readAllStandardError().contains("Errors"));
}

void TestExecutable::saysThatThePrinterIsOn()
{
    const Shop shop;
    shop.sql("update Config set valeur = 1 where param = 'Epson TM-T20II'");
    Till till;
    QByteArray log;
    QTRY_VERIFY_WITH_TIMEOUT(
        (log += till.process.readAllStandardError()).contains("Warning Epson to 1 (ON)\n"), 20000);
}

QTEST_GUILESS_MAIN(TestExecutable)
#include "tst_Executable.moc"
