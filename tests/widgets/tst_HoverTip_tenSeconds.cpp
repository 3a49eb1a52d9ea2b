// SPDX-License-Identifier: MIT
#include "tests/support/TestProgram.h"
#include "widgets/HoverTip.h"

#include <QElapsedTimer>
#include <QToolTip>
#include <QWidget>

/// A tip goes after ten seconds, which only waiting can show. A slow machine takes longer and never
/// less, so only too short a time fails.
class TestHoverTipTenSeconds : public QObject
{
    Q_OBJECT

private slots:
    void aLongTipGoes()
    {
        QWidget window;
        QElapsedTimer timer;
        timer.start();
        showTip(window, QPoint(150, 130), QString(300, 'x'));
        QTRY_VERIFY_WITH_TIMEOUT(!QToolTip::isVisible(), 30000);
        QVERIFY2(timer.elapsed() >= 9500, qPrintable(QString::number(timer.elapsed())));
    }
};

VENDEL_TEST(TestHoverTipTenSeconds)
#include "tst_HoverTip_tenSeconds.moc"
