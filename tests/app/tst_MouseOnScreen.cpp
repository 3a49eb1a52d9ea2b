// SPDX-License-Identifier: MIT
#include "tests/app/Till.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Widgets.h"

#include <QCursor>
#include <QProcess>
#include <QScreen>
#include <QTableView>
#include <QToolTip>

namespace {
constexpr auto articles = "with recursive n(i) as (select 1 union all select i + 1 from n where "
                          "i < 30) insert into Article (article, prix) select 'Bière ' || "
                          "substr('0' || i, -2), i from n";

constexpr QPoint outside(1300, 730);

/// Drives the screen's own mouse pointer.
void mouse(const QStringList& commands)
{
    QProcess tool;
    tool.start(QString("xdotool"), commands);
    while (tool.state() != QProcess::NotRunning) {
        QTest::qWait(5);
    }
    if (tool.exitCode() != 0) {
        qFatal("xdotool fails");
    }
}

QStringList moveTo(QPoint point)
{
    return {QString("mousemove"), QString::number(point.x()), QString::number(point.y())};
}

/// Rests the pointer on \a point, in two steps: Qt takes no notice of a pointer that comes back
/// from outside to where it was.
void rest(QPoint point)
{
    mouse(moveTo(point + QPoint(7, 0)));
    mouse(moveTo(point));
}

QStringList clicks(int count, int delayMs)
{
    return {QString("click"), QString("--repeat"), QString::number(count), QString("--delay"),
        QString::number(delayMs), QString("1")};
}

const QWidget* shownTip()
{
    const auto widgets = QApplication::topLevelWidgets();
    for (const QWidget* widget : widgets) {
        if (widget->inherits("QTipLabel") && widget->isVisible()) {
            return widget;
        }
    }
    return nullptr;
}

/// The sales screen in the middle of the screen, where the till opens it.
struct ShownCounter : Till
{
    ShownCounter()
        : Till(articles)
    {
        window.move(158, 71);
        click(window, "btn_Afficher");
        mouse(moveTo(outside));
    }
    ~ShownCounter()
    {
        mouse(moveTo(outside));
    }

    ShownCounter(const ShownCounter&) = delete;
    ShownCounter& operator=(const ShownCounter&) = delete;
    ShownCounter(ShownCounter&&) = delete;
    ShownCounter& operator=(ShownCounter&&) = delete;

    QPoint cell(const char* list, int row)
    {
        const auto& view = child<QTableView>(window, list);
        return view.viewport()->mapToGlobal(view.visualRect(view.model()->index(row, 2)).center());
    }
};
} // namespace

class TestMouseOnScreen : public QObject
{
    Q_OBJECT

private slots:
    void theScreenIsTheCountersScreen()
    {
        const ShownCounter counter;
        QCOMPARE(QGuiApplication::primaryScreen()->geometry(), QRect(0, 0, 1366, 768));
        QCOMPARE(counter.window.pos(), QPoint(158, 71));
    }

    void aTipUnderThePointerLetsAClickThrough()
    {
        ShownCounter counter;
        rest(counter.cell("tableView1", 3));
        QTRY_VERIFY(QToolTip::isVisible());
        QVERIFY(shownTip()->geometry().contains(QCursor::pos()));
        mouse({QString("click"), QString("1")});
        QTRY_COMPARE(counter.names("tableView2"), QString("Bière 04"));
    }

    void aTipStandsWhileTheMouseRests()
    {
        ShownCounter counter;
        rest(counter.cell("tableView1", 3));
        QTRY_VERIFY(QToolTip::isVisible());
        // Qt asks for a tip of its own after 0.7 s.
        QTest::qWait(2000);
        QVERIFY(QToolTip::isVisible());
        QCOMPARE(QToolTip::text(), QString("Menu\nClick sur : Bière 04\nPour l'ajouter au ticket"));
    }

    void movingBelowTheTipKeepsIt()
    {
        ShownCounter counter;
        const QPoint point = counter.cell("tableView1", 3);
        rest(point);
        QTRY_VERIFY(QToolTip::isVisible());
        for (int step = 1; step <= 5; ++step) {
            mouse(moveTo(point + QPoint(step, 0)));
            QTest::qWait(100);
            QVERIFY(QToolTip::isVisible());
        }
        QTest::qWait(500);
        QVERIFY(QToolTip::isVisible());
    }

    void leavingTheListTakesTheTipAway()
    {
        ShownCounter counter;
        rest(counter.cell("tableView1", 3));
        QTRY_VERIFY(QToolTip::isVisible());
        mouse(moveTo(outside));
        QTRY_VERIFY(!QToolTip::isVisible());
    }

    void fivePressesAtATenthOfASecondAreFiveLines()
    {
        ShownCounter counter;
        rest(counter.cell("tableView1", 2));
        mouse(clicks(5, 100));
        QTRY_COMPARE(
            counter.names("tableView2"), QString("Bière 03|Bière 03|Bière 03|Bière 03|Bière 03"));
    }

    void threeImmediatePressesAreThreeLines()
    {
        ShownCounter counter;
        rest(counter.cell("tableView1", 2));
        mouse(clicks(3, 15));
        QTRY_COMPARE(counter.names("tableView2"), QString("Bière 03|Bière 03|Bière 03"));
    }

    void aDoubleClickOnTheTicketRemovesOneLine()
    {
        ShownCounter counter;
        rest(counter.cell("tableView1", 2));
        mouse(clicks(3, 300));
        QTRY_COMPARE(rowCount(counter.window, "tableView2"), 3);
        rest(counter.cell("tableView2", 0));
        mouse(clicks(2, 60));
        QTest::qWait(300);
        QCOMPARE(counter.names("tableView2"), QString("Bière 03|Bière 03"));
    }
};

VENDEL_TEST(TestMouseOnScreen)
#include "tst_MouseOnScreen.moc"
