// SPDX-License-Identifier: MIT
#include "launcher/Log.h"
#include "tests/launcher/ShopFolder.h"
#include "tests/support/TestProgram.h"

#include <QRegularExpression>

class TestLauncherLog : public QObject
{
    Q_OBJECT

private slots:
    void eachLineHasItsTime()
    {
        const ShopFolder shop;
        Log log(shop.get());
        log.write("Write Error");
        log.write("");
        static const QRegularExpression lines(
            QString("^\\d{4}-\\d\\d-\\d\\d \\d\\d:\\d\\d:\\d\\d Write Error\n"
                    "\\d{4}-\\d\\d-\\d\\d \\d\\d:\\d\\d:\\d\\d \n$"));
        QVERIFY(lines.match(QString::fromUtf8(shop.read(QString("vendel.log")))).hasMatch());
        QCOMPARE(ShopFolder::mode("vendel.log"), mode_t(0600));
    }

    void nothingSaidMakesNoFile()
    {
        const ShopFolder shop;
        {
            const Log log(shop.get());
        }
        QVERIFY(!QFile::exists(QString("vendel.log")));
    }

    void threeFilesAreKept()
    {
        const ShopFolder shop;
        Log log(shop.get(), 100);
        for (const char* text : {"one", "two", "three", "four"}) {
            log.write(std::string(70, '.') + text);
        }
        QCOMPARE(ShopFolder::names(".", "vendel.log*"),
            (QStringList{QString("vendel.log"), QString("vendel.log.1"), QString("vendel.log.2")}));
        QVERIFY(shop.read(QString("vendel.log")).endsWith("four\n"));
        QVERIFY(shop.read(QString("vendel.log.1")).endsWith("three\n"));
        QVERIFY(shop.read(QString("vendel.log.2")).endsWith("two\n"));
    }

    void aLogGoesOnWhereItWas()
    {
        const ShopFolder shop;
        Log(shop.get(), 100).write("one");
        Log second(shop.get(), 60);
        second.write("two");
        QCOMPARE(shop.read(QString("vendel.log")).count('\n'), 2);
        second.write("three");
        QCOMPARE(shop.read(QString("vendel.log")).count('\n'), 1);
    }

    void nothingIsWrittenThroughALinkOrIntoAFifo()
    {
        const ShopFolder shop;
        shop.write(QString("outside"), "theirs");
        QVERIFY(QFile::link(QString("outside"), QString("vendel.log")));
        Log(shop.get()).write("x");
        QCOMPARE(shop.read(QString("outside")), QByteArray("theirs"));
        QVERIFY(QFile::remove(QString("vendel.log")));
        QCOMPARE(mkfifo("vendel.log", 0600), 0);
        Log(shop.get()).write("x");
    }

    void aLogThatCannotBePutAsideBeginsAgain()
    {
        const ShopFolder shop;
        QVERIFY(QDir().mkpath(QString("vendel.log.1/full")));
        Log log(shop.get(), 100);
        log.write(std::string(70, '.') + "one");
        log.write(std::string(70, '.') + "two");
        QVERIFY(shop.read(QString("vendel.log")).endsWith("two\n"));
        QVERIFY(QFileInfo(QString("vendel.log")).size() <= 100);
    }

    void bytesBecomeLines()
    {
        std::vector<std::string> said;
        Lines lines([&](std::string_view line) { said.emplace_back(line); });
        lines.append("a\nb");
        lines.append("c\n\nd");
        QCOMPARE(said, (std::vector<std::string>{"a", "bc", ""}));
        lines.flush();
        lines.flush();
        QCOMPARE(said.size(), std::size_t(4));
        lines.append(std::string(5000, 'x'));
        QCOMPARE(said.back().size(), std::size_t(4096));
    }
};

VENDEL_TEST(TestLauncherLog)
#include "tst_LauncherLog.moc"
