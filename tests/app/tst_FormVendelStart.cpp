// SPDX-License-Identifier: MIT
#include "app/FormVendelStart.h"
#include "tests/support/Captured.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Translation.h"
#include "tests/support/Widgets.h"

#include <QLabel>

class TestFormVendelStart : public QObject
{
    Q_OBJECT

private slots:
    void looksLikeTheSplash()
    {
        QWidget opener;
        FormVendelStart splash(&opener);
        QCOMPARE(splash.objectName(), QString("FormVendelStart"));
        QCOMPARE(splash.size(), QSize(445, 186));
        QCOMPARE(splash.minimumSize(), QSize(445, 186));
        QCOMPARE(splash.maximumSize(), QSize(445, 186));
        QCOMPARE(splash.sizeIncrement(), QSize(445, 186));
        QCOMPARE(splash.layoutDirection(), Qt::LeftToRight);
        QCOMPARE(splash.styleSheet(), QString("background-color: rgb(114, 159, 207)"));
        QCOMPARE(splash.windowModality(), Qt::WindowModal);
        QVERIFY(splash.isModal());
        QVERIFY(!splash.testAttribute(Qt::WA_DeleteOnClose));
        QCOMPARE(splash.windowTitle(), QString("Dialog"));
        QCOMPARE(splash.parentWidget(), &opener);
    }

    void showsItsTitle()
    {
        QWidget opener;
        FormVendelStart splash(&opener);
        QCOMPARE(splash.findChildren<QLabel*>().size(), 1);
        const auto& title = child<QLabel>(splash, "lbl_Titre");
        QCOMPARE(title.text(), QString("Système Vendel"));
        QCOMPARE(title.geometry(), QRect(16, 57, 417, 63));
        QCOMPARE(title.font().pointSize(), 40);
        QCOMPARE(title.alignment(), Qt::Alignment(Qt::AlignCenter));
    }

    void isTranslated()
    {
        Translation translation;
        translation.add(
            QString("FormVendelStart"), QString("Système Vendel"), QString("Vendel System"));
        QWidget opener;
        FormVendelStart splash(&opener);
        QCOMPARE(child<QLabel>(splash, "lbl_Titre").text(), QString("Vendel System"));
    }

    void closesAtTheFifthTick()
    {
        QWidget opener;
        FormVendelStart splash(&opener);
        splash.show();
        for (int tick = 1; tick <= 4; ++tick) {
            QVERIFY(QMetaObject::invokeMethod(&splash, "on_timeout"));
            QVERIFY(splash.isVisible());
        }
        QVERIFY(QMetaObject::invokeMethod(&splash, "on_timeout"));
        QVERIFY(!splash.isVisible());
    }

    void closesByItself()
    {
        QWidget opener;
        FormVendelStart splash(&opener);
        splash.show();
        QTest::qWait(4000);
        QVERIFY(splash.isVisible());
        QTRY_VERIFY_WITH_TIMEOUT(!splash.isVisible(), 20000);
    }

    void everySlotFindsItsWidget()
    {
        const CapturedLog log;
        QWidget opener;
        const FormVendelStart splash(&opener);
        QCOMPARE(log.warnings(), QStringList());
        QCOMPARE(log.criticals(), QStringList());
    }
};

VENDEL_TEST(TestFormVendelStart)
#include "tst_FormVendelStart.moc"
