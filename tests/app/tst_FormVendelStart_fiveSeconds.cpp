// SPDX-License-Identifier: MIT
#include "app/FormVendelStart.h"
#include "tests/support/TestProgram.h"

#include <QElapsedTimer>

/// The splash closes by itself after five seconds, which only waiting can show. A slow machine
/// takes longer and never less, so only too short a time fails.
class TestFormVendelStartFiveSeconds : public QObject
{
    Q_OBJECT

private slots:
    void closesByItself()
    {
        QElapsedTimer timer;
        timer.start();
        FormVendelStart splash;
        splash.show();
        QTRY_VERIFY_WITH_TIMEOUT(!splash.isVisible(), 30000);
        // A tick may come a twentieth of its second early.
        QVERIFY2(timer.elapsed() >= 4700, qPrintable(QString::number(timer.elapsed())));
    }
};

VENDEL_TEST(TestFormVendelStartFiveSeconds)
#include "tst_FormVendelStart_fiveSeconds.moc"
