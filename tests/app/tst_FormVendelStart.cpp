// SPDX-License-Identifier: MIT
#include "app/FormVendelStart.h"
#include "tests/support/TestMain.h"
#include "tests/support/Widgets.h"

#include <QLabel>

class TestFormVendelStart : public QObject
{
    Q_OBJECT

private slots:
    void looksLikeTheSplash();
    void closesAtTheFifthTick();
};

void TestFormVendelStart::looksLikeTheSplash()
{
    QWidget opener;
    FormVendelStart splash(&opener);
    QCOMPARE(splash.size(), QSize(445, 186));
    QCOMPARE(splash.minimumSize(), QSize(445, 186));
    QCOMPARE(splash.maximumSize(), QSize(445, 186));
    QCOMPARE(splash.windowModality(), Qt::WindowModal);
    QVERIFY(splash.isModal());
    QCOMPARE(splash.windowTitle(), QStringLiteral("Dialog"));
    const auto& title = child<QLabel>(splash, "lbl_Titre");
    QCOMPARE(title.text(), QStringLiteral("Système Vendel"));
    QCOMPARE(title.geometry(), QRect(16, 57, 417, 63));
    QCOMPARE(title.font().pointSize(), 40);
}

void TestFormVendelStart::closesAtTheFifthTick()
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

VENDEL_TEST_MAIN(TestFormVendelStart)
#include "tst_FormVendelStart.moc"
