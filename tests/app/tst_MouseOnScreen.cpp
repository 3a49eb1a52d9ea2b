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
constexpr QPoint outside(1300, 730);

/// Drives the screen's own mouse pointer, while the till goes on.
void mouse(const QStringList& commands)
{
    QProcess tool;
    tool.start("xdotool", commands);
    if (!QTest::qWaitFor([&] { return tool.state() == QProcess::NotRunning; }, 30000)
        || tool.exitCode() != 0) {
        qFatal("xdotool fails");
    }
}

void moveTo(QPoint point)
{
    mouse({"mousemove", QString::number(point.x()), QString::number(point.y())});
}

/// Rests the pointer on \a point, in two steps: Qt takes no notice of a pointer that comes back
/// from outside to where it was.
void rest(QPoint point)
{
    moveTo(point + QPoint(7, 0));
    moveTo(point);
}

void press(int count, int delayMs)
{
    mouse({"click", "--repeat", QString::number(count), "--delay", QString::number(delayMs), "1"});
}

/// The sales screen in the middle of the screen, where the till opens it.
struct ShownTill : OpenTill
{
    ShownTill()
        : OpenTill("with recursive n(i) as (select 1 union all select i + 1 from n where i < 30) "
                   "insert into Article (article, prix) select 'Bière ' || substr('0' || i, -2), i "
                   "from n")
    {
        window.move(158, 71);
        moveTo(outside);
    }
    ~ShownTill() { moveTo(outside); }
    Q_DISABLE_COPY_MOVE(ShownTill)

    QPoint cell(const char* name, int row)
    {
        const QTableView& view = list(name);
        return view.viewport()->mapToGlobal(view.visualRect(view.model()->index(row, 2)).center());
    }

    /// Rests the pointer on an article; whether its tip is shown.
    bool showsTip()
    {
        rest(cell("tableView1", 3));
        return QTest::qWaitFor([] { return QToolTip::isVisible(); }, 30000);
    }
};
} // namespace

/// The sales screen under a real pointer, with the tips and clicks that the window system makes.
class TestMouseOnScreen : public QObject
{
    Q_OBJECT

private slots:
    void theScreenIsTheTillsScreen()
    {
        const ShownTill till;
        QCOMPARE(QGuiApplication::primaryScreen()->geometry(), QRect(0, 0, 1366, 768));
        QCOMPARE(till.window.pos(), QPoint(158, 71));
    }

    void aTipUnderThePointerLetsAClickThrough()
    {
        ShownTill till;
        QVERIFY(till.showsTip());
        QVERIFY(tipGeometry().contains(QCursor::pos()));
        press(1, 0);
        QTRY_COMPARE(till.names("tableView2"), QString("Bière 04"));
    }

    void aTipStandsWhileTheMouseRests()
    {
        ShownTill till;
        // Qt asks for a tip of its own once the pointer has rested.
        const EventCount requests(*till.list("tableView1").viewport(), QEvent::ToolTip);
        QVERIFY(till.showsTip());
        QTRY_COMPARE(requests.value(), 1);
        QVERIFY(!isTipLeaving());
        QCOMPARE(tipText(), QString("Menu\nClick sur : Bière 04\nPour l'ajouter au ticket"));
    }

    void movingBelowTheTipKeepsIt()
    {
        ShownTill till;
        QVERIFY(till.showsTip());
        const EventCount moves(*till.list("tableView1").viewport(), QEvent::MouseMove);
        for (int step = 1; step <= 5; ++step) {
            moveTo(till.cell("tableView1", 3) + QPoint(step, 0));
            QTRY_COMPARE(moves.value(), step);
            QVERIFY(QToolTip::isVisible());
            QVERIFY(!isTipLeaving());
        }
    }

    void leavingTheListTakesTheTipAway()
    {
        ShownTill till;
        QVERIFY(till.showsTip());
        moveTo(outside);
        QTRY_VERIFY(!QToolTip::isVisible());
    }

    void everyQuickPressIsALine()
    {
        for (const auto& [count, delayMs] : {std::pair(5, 100), std::pair(3, 15)}) {
            ShownTill till;
            rest(till.cell("tableView1", 2));
            press(count, delayMs);
            QTRY_COMPARE(till.names("tableView2"), QString("Bière 03|").repeated(count).chopped(1));
        }
    }

    void aDoubleClickOnTheTicketRemovesOneLine()
    {
        ShownTill till;
        for (int line = 1; line <= 3; ++line) {
            clickCell(till.window, "tableView1", 2, 2);
        }
        QCOMPARE(till.shownLines(), 3);
        QWidget* viewport = till.list("tableView2").viewport();
        const EventCount doubles(*viewport, QEvent::MouseButtonDblClick);
        const EventCount releases(*viewport, QEvent::MouseButtonRelease);
        rest(till.cell("tableView2", 0));
        press(2, 60);
        QTRY_COMPARE(releases.value(), 2);
        QCOMPARE(doubles.value(), 1);
        QCoreApplication::processEvents();
        QCOMPARE(till.names("tableView2"), QString("Bière 03|Bière 03"));
    }
};

VENDEL_TEST(TestMouseOnScreen)
#include "tst_MouseOnScreen.moc"
