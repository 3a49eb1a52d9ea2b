// SPDX-License-Identifier: MIT
#include "launcher/DataFolder.h"
#include "launcher/Speech.h"
#include "launcher/TillSize.h"
#include "tests/launcher/ShopFolder.h"
#include "tests/support/TestProgram.h"

namespace {
/// Every variable by which Qt is told of sizes.
const QList<QByteArray> variables{"QT_SCALE_FACTOR", "QT_SCALE_FACTOR_ROUNDING_POLICY",
    "QT_AUTO_SCREEN_SCALE_FACTOR", "QT_ENABLE_HIGHDPI_SCALING", "QT_SCREEN_SCALE_FACTORS",
    "QT_DEVICE_PIXEL_RATIO", "QT_USE_PHYSICAL_DPI"};

/// What the environment says of sizes, such as "QT_SCALE_FACTOR=1.50".
QList<QByteArray> told()
{
    QList<QByteArray> set;
    for (const QByteArray& name : variables) {
        if (qEnvironmentVariableIsSet(name)) {
            set.append(name + '=' + qgetenv(name));
        }
    }
    return set;
}

/// All that a size of \a factor tells Qt.
QList<QByteArray> scaledBy(const QByteArray& factor)
{
    return {"QT_SCALE_FACTOR=" + factor, "QT_SCALE_FACTOR_ROUNDING_POLICY=PassThrough",
        "QT_AUTO_SCREEN_SCALE_FACTOR=0", "QT_ENABLE_HIGHDPI_SCALING=0"};
}

/// A shop with a script in place of the program that is asked for the screen.
class MeasuredShop : public ShopFolder
{
public:
    explicit MeasuredShop(const QByteArray& script = "exit 1")
    {
        write("dialogue", "#!/bin/sh\nenv >asked\n" + script + '\n');
        chmod("dialogue", 0700);
    }
    void apply(TillSize size) const { size.apply(Speech(Language::French, "./dialogue")); }
    bool wasAsked() const { return QFile::exists("asked"); }
};
} // namespace

class TestLauncherTillSize : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        for (const QByteArray& name : variables) {
            qunsetenv(name);
        }
        qputenv("DISPLAY", ":99");
    }

    void aSizeInPerCentIsToldToQt_data()
    {
        QTest::addColumn<QByteArray>("factor");
        QTest::newRow("100") << QByteArray("1.00");
        QTest::newRow("105") << QByteArray("1.05");
        QTest::newRow("150") << QByteArray("1.50");
        QTest::newRow("300") << QByteArray("3.00");
    }

    void aSizeInPerCentIsToldToQt()
    {
        QFETCH(QByteArray, factor);
        const MeasuredShop shop("echo 1920 1040");
        shop.apply(TillSize::parse(QTest::currentDataTag()).value());
        QCOMPARE(told(), scaledBy(factor));
        QVERIFY(!shop.wasAsked());
    }

    void whatIsNoSizeIsRefused_data()
    {
        QTest::addColumn<QString>("text");
        for (const char* text : {"", "99", "90", "301", "1000", "abc", "15", "+15", "1.5", "150%",
                 "0150", " 150", "-", "Ecran", "automatique"}) {
            QTest::newRow(text) << QString(text);
        }
    }

    void whatIsNoSizeIsRefused()
    {
        QFETCH(QString, text);
        QVERIFY(!TillSize::parse(text.toStdString()));
    }

    void theChosenSizeIsStrongerThanTheSessions()
    {
        for (const QByteArray& name : variables) {
            qputenv(name, "2");
        }
        MeasuredShop().apply(TillSize::parse("125").value());
        QCOMPARE(told(), scaledBy("1.25"));
    }

    void withoutAChoiceTheSessionDecides()
    {
        const MeasuredShop shop("echo 1920 1040");
        shop.apply({});
        QCOMPARE(told(), QList<QByteArray>());
        qputenv("QT_SCALE_FACTOR", "1.75");
        shop.apply(TillSize::parse("auto").value());
        QCOMPARE(told(), QList<QByteArray>{"QT_SCALE_FACTOR=1.75"});
        QVERIFY(!shop.wasAsked());
    }

    void theTillFillsTheScreen_data()
    {
        QTest::addColumn<int>("percent");
        QTest::newRow("1058 664") << 100;
        QTest::newRow("1366 728") << 105;
        QTest::newRow("1920 1040") << 155;
        QTest::newRow("1280 2160") << 120;
        QTest::newRow("3840 2160") << 300;
        // The till itself becomes smaller there.
        QTest::newRow("1024 768") << 100;
        QTest::newRow("320 200\n") << 100;
    }

    void theTillFillsTheScreen()
    {
        QFETCH(int, percent);
        QCOMPARE(TillSize::filling(QTest::currentDataTag()), std::optional(percent));
    }

    void noScreenFitsNothing_data()
    {
        QTest::addColumn<QString>("room");
        for (const char* room : {"", "1920", "x y", "0 0", "-5 700", "99999999 700", "70000 70000",
                 "99999999999999999999 1"}) {
            QTest::newRow(room) << QString(room);
        }
    }

    void noScreenFitsNothing()
    {
        QFETCH(QString, room);
        QVERIFY(!TillSize::filling(room.toStdString()));
    }

    void theScreenIsMeasuredInItsOwnPixels()
    {
        qputenv("QT_SCALE_FACTOR", "2");
        qputenv("QT_SCREEN_SCALE_FACTORS", "2");
        const MeasuredShop shop("echo 1920 1040");
        shop.apply(TillSize::parse("ecran").value());
        QCOMPARE(told(), scaledBy("1.55"));
        const QList<QByteArray> asked = shop.read("asked").split('\n');
        QVERIFY(asked.contains("QT_SCALE_FACTOR=1.00"));
        QVERIFY(!asked.contains("QT_SCREEN_SCALE_FACTORS=2"));
    }

    void aScreenThatCannotBeAskedLeavesTheSession_data()
    {
        QTest::addColumn<QByteArray>("script");
        QTest::newRow("failure") << QByteArray("echo 1920 1040\nexit 1");
        QTest::newRow("abort") << QByteArray("kill -ABRT $$");
        QTest::newRow("nonsense") << QByteArray("echo large");
    }

    void aScreenThatCannotBeAskedLeavesTheSession()
    {
        QFETCH(QByteArray, script);
        qputenv("QT_SCALE_FACTOR", "2");
        MeasuredShop(script).apply(TillSize::parse("ecran").value());
        QCOMPARE(told(), QList<QByteArray>{"QT_SCALE_FACTOR=2"});
    }

    void withoutADisplayNobodyIsAsked()
    {
        qunsetenv("DISPLAY");
        qunsetenv("WAYLAND_DISPLAY");
        const MeasuredShop shop("echo 1920 1040");
        shop.apply(TillSize::parse("ecran").value());
        QCOMPARE(told(), QList<QByteArray>());
        QVERIFY(!shop.wasAsked());
    }

    void theSizeIsRemembered_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::newRow("100") << QByteArray("100\n");
        QTest::newRow("ecran") << QByteArray("ecran\n");
        QTest::newRow("auto") << QByteArray("auto\n");
    }

    void theSizeIsRemembered()
    {
        QFETCH(QByteArray, file);
        const MeasuredShop shop;
        const DataFolder folder(shop.name());
        TillSize::parse("150")->remember(folder);
        QCOMPARE(shop.read("taille"), QByteArray("150\n"));
        shop.apply(TillSize::remembered(folder.get()));
        QCOMPARE(told(), scaledBy("1.50"));
        TillSize::parse(QTest::currentDataTag())->remember(folder);
        QCOMPARE(shop.read("taille"), file);
    }

    void theScreenIsAskedAgainAtEachStart()
    {
        const MeasuredShop shop("echo 1366 768");
        const DataFolder folder(shop.name());
        TillSize::parse("ecran")->remember(folder);
        shop.apply(TillSize::remembered(folder.get()));
        QCOMPARE(told(), scaledBy("1.15"));
    }

    void aDamagedMemoryIsNone_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("too small") << QByteArray("90\n");
        QTest::newRow("zeros") << QByteArray(4, '\0');
        QTest::newRow("more") << QByteArray("150 200\n");
        QTest::newRow("long") << QByteArray("150\n") + QByteArray(5000, 'x');
    }

    void aDamagedMemoryIsNone()
    {
        QFETCH(QByteArray, bytes);
        const MeasuredShop shop;
        shop.write("taille", bytes);
        shop.apply(TillSize::remembered(shop.get()));
        QCOMPARE(told(), QList<QByteArray>());
    }

    void aMemoryThatNobodyWritesHoldsNothingUp()
    {
        const MeasuredShop shop;
        QVERIFY(mkfifo("taille", 0600) == 0);
        shop.apply(TillSize::remembered(shop.get()));
        QCOMPARE(told(), QList<QByteArray>());
    }

    void aSizeThatCannotBeRememberedIsSaid()
    {
        const MeasuredShop shop;
        const DataFolder folder(shop.name());
        QVERIFY(mkdir("taille", 0700) == 0);
        QVERIFY(refusal([&] { TillSize::parse("150")->remember(folder); }).contains("taille"));
    }
};

VENDEL_TEST(TestLauncherTillSize)
#include "tst_LauncherTillSize.moc"
