// SPDX-License-Identifier: MIT
#include "app/FormVendelStart.h"
#include "tests/support/Captured.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Translation.h"
#include "tests/support/Widgets.h"

#include <QLabel>
#include <QPointer>
#include <QTimer>

namespace {
/// The splash on the screen above a window that stands for the till's.
struct OpenSplash
{
    QWidget opener;
    FormVendelStart splash{&opener};

    OpenSplash()
    {
        opener.show();
        splash.show();
    }

    /// One of the ticks that come every second.
    bool tick() { return QMetaObject::invokeMethod(&splash, "on_timeout"); }

    const QTimer& timer() const { return *splash.findChild<QTimer*>(); }
};
} // namespace

class TestFormVendelStart : public QObject
{
    Q_OBJECT

private slots:
    void looksLikeTheSplash()
    {
        OpenSplash at;
        QCOMPARE(at.splash.objectName(), QString("FormVendelStart"));
        QCOMPARE(at.splash.size(), QSize(445, 186));
        QCOMPARE(at.splash.minimumSize(), QSize(445, 186));
        QCOMPARE(at.splash.maximumSize(), QSize(445, 186));
        QCOMPARE(at.splash.sizeIncrement(), QSize(445, 186));
        QCOMPARE(at.splash.layoutDirection(), Qt::LeftToRight);
        QCOMPARE(at.splash.styleSheet(), QString("background-color: rgb(114, 159, 207)"));
        QCOMPARE(at.splash.windowModality(), Qt::WindowModal);
        QVERIFY(at.splash.isModal());
        QVERIFY(!at.splash.testAttribute(Qt::WA_DeleteOnClose));
        QCOMPARE(at.splash.windowTitle(), QString("Dialog"));
        QCOMPARE(at.splash.parentWidget(), &at.opener);
    }

    void showsItsTitle()
    {
        OpenSplash at;
        QCOMPARE(at.splash.findChildren<QLabel*>().size(), 1);
        const auto& title = child<QLabel>(at.splash, "lbl_Titre");
        QCOMPARE(title.text(), QString("Système Vendel"));
        QCOMPARE(title.geometry(), QRect(16, 57, 417, 63));
        QCOMPARE(title.font().pointSize(), 40);
        QCOMPARE(title.alignment(), Qt::Alignment(Qt::AlignCenter));
    }

    void isTranslated()
    {
        Translation translation;
        translation.add("FormVendelStart", "Système Vendel", "Vendel System");
        OpenSplash at;
        QCOMPARE(child<QLabel>(at.splash, "lbl_Titre").text(), QString("Vendel System"));
    }

    void ticksEverySecond()
    {
        const OpenSplash at;
        QVERIFY(at.timer().isActive());
        QCOMPARE(at.timer().interval(), 1000);
    }

    void isClosedAndNotDeletedAtTheFifthTick()
    {
        OpenSplash at;
        const QPointer<FormVendelStart> splash = &at.splash;
        for (int tick = 1; tick <= 5; ++tick) {
            QVERIFY(at.splash.isVisible());
            QVERIFY(at.tick());
        }
        QVERIFY(!at.splash.isVisible());
        QVERIFY(!at.timer().isActive());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!splash.isNull());
        QVERIFY(at.opener.isVisible());
    }

    void staysAwayWhenItWasSentAwayEarly()
    {
        OpenSplash at;
        QTest::keyClick(&at.splash, Qt::Key_Escape);
        QVERIFY(!at.splash.isVisible());
        for (int tick = 1; tick <= 6; ++tick) {
            QVERIFY(at.tick());
            QVERIFY(!at.splash.isVisible());
        }
        QVERIFY(!at.timer().isActive());
    }

    void everySlotFindsItsWidget()
    {
        const CapturedLog log;
        const OpenSplash at;
        QCOMPARE(log.warnings(), QStringList());
        QCOMPARE(log.criticals(), QStringList());
    }
};

VENDEL_TEST(TestFormVendelStart)
#include "tst_FormVendelStart.moc"
