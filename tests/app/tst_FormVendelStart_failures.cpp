// SPDX-License-Identifier: MIT
#include "app/FormVendelStart.h"
#include "tests/support/Captured.h"
#include "tests/support/LeakCheck.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Translation.h"
#include "tests/support/WindowFailures.h"

/// What the log says of a splash that fails.
class TestFormVendelStartFailures : public QObject
{
    Q_OBJECT

private slots:
    void closingIsLogged()
    {
        const LeakCheckPause pause;
        QWidget opener;
        FormVendelStart splash(&opener);
        splash.show();
        const FailingEvent failing(QEvent::Close, "FormVendelStart");
        const CapturedLog log;
        for (int tick = 1; tick <= 5; ++tick) {
            QCOMPARE(log.criticals(), QStringList());
            QVERIFY(QMetaObject::invokeMethod(&splash, "on_timeout"));
        }
        QCOMPARE(log.criticals(), QStringList("Errors FormVendelStart on_timeout : trouble"));
    }

    void makingItIsLogged()
    {
        const CapturedLog log;
        const FailingText failing("Système Vendel");
        QWidget opener;
        const FormVendelStart splash(&opener);
        QCOMPARE(log.criticals(), QStringList("Errors FormVendelStart Constructor : no text"));
    }
};

VENDEL_TEST(TestFormVendelStartFailures)
#include "tst_FormVendelStart_failures.moc"
