// SPDX-License-Identifier: MIT
#include "app/Clock.h"
#include "app/FormVendel.h"
#include "tests/support/Shop.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Translation.h"
#include "tests/support/Widgets.h"

#include <QLabel>
#include <QRegularExpression>
#include <QTimer>

/// The clock of the sales screen, and the text that it shows.
class TestClock : public QObject
{
    Q_OBJECT

private slots:
    void showsColonsOnOddSecondsAndBlanksOnEvenOnes_data()
    {
        QTest::addColumn<QTime>("time");
        QTest::addColumn<QString>("pattern");
        const auto row = [](const char* text, QTime time, const char* pattern = "dd/MM/yyyy") {
            QTest::newRow(text) << time << QString(pattern);
        };
        row("05/03/2019 14:07:31", {14, 7, 31, 999});
        row("05/03/2019 14 07 32", {14, 7, 32, 999});
        row("05/03/2019 00 00 00", {0, 0, 0, 999});
        row("05/03/2019 23:59:59", {23, 59, 59, 999});
        row("05/03/2019 01:02:03", {1, 2, 3, 999});
        row("03/05/2019 14:07:31", {14, 7, 31}, "MM/dd/yyyy");
        row("2019-03-05 14:07:31", {14, 7, 31}, "yyyy-MM-dd");
    }

    void showsColonsOnOddSecondsAndBlanksOnEvenOnes()
    {
        QFETCH(QTime, time);
        QFETCH(QString, pattern);
        QCOMPARE(
            clockText(QDateTime({2019, 3, 5}, time), pattern), QString(QTest::currentDataTag()));
    }

    void ticksTenTimesASecond()
    {
        const Shop shop;
        const FormVendel window;
        const auto* timer = window.findChild<QTimer*>(QString(), Qt::FindDirectChildrenOnly);
        QVERIFY(timer != nullptr);
        QVERIFY(timer->isActive());
        QCOMPARE(timer->interval(), 100);
        QVERIFY(!timer->isSingleShot());
    }

    void runsOnTheSalesScreen()
    {
        const Shop shop;
        FormVendel window;
        const auto& label = child<QLabel>(window, "lbl_DateTime");
        QCOMPARE(label.text(), QString("DateTime"));
        for (const char* pattern : {"^\\d\\d/\\d\\d/\\d{4} \\d\\d:\\d\\d:\\d[13579]$",
                 "^\\d\\d/\\d\\d/\\d{4} \\d\\d \\d\\d \\d[02468]$"}) {
            QTRY_VERIFY2(label.text().contains(QRegularExpression(pattern)), pattern);
        }
    }

    void followsTheTranslatedPattern()
    {
        Translation translation;
        translation.add("FormVendelMessages", "dd/MM/yyyy", "yyyy-MM-dd");
        const Shop shop;
        FormVendel window;
        QVERIFY(QMetaObject::invokeMethod(&window, "on_timeout"));
        const QString text = child<QLabel>(window, "lbl_DateTime").text();
        static const QRegularExpression date("^\\d{4}-\\d\\d-\\d\\d ");
        QVERIFY2(text.contains(date), qPrintable(text));
    }
};

VENDEL_TEST(TestClock)
#include "tst_Clock.moc"
