// SPDX-License-Identifier: MIT
#include "common/Messages.h"
#include "tests/support/TestProgram.h"
#include "widgets/HoverTip.h"
#include "widgets/Lists.h"

#include <QElapsedTimer>
#include <QHelpEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QStandardItemModel>
#include <QTableView>
#include <QTextDocument>
#include <QToolTip>

namespace {
/// A list of two articles, the second with a long name.
struct List : QTableView
{
    QStandardItemModel model;

    List()
    {
        constexpr Texts texts{"FormVendelMessages"};
        setUpList(*this, model, texts, Messages::Messages97, {50, 25, 210, 110}, {0});
        ListFiller filler(*this, model);
        filler.add({QString("1"), QString(), QString("Thé"), QString()});
        filler.add({QString("2"), QString(), QString(300, 'x'), QString()});
        resize(400, 560);
        show();
    }

    QPoint centreOf(int row, int column)
    {
        return visualRect(model.index(row, column)).center();
    }
};

QMouseEvent moveTo(const QPointF& point)
{
    return {QEvent::MouseMove, point, point, Qt::NoButton, Qt::NoButton, Qt::NoModifier};
}

QWidget* shownTip()
{
    const auto widgets = QApplication::topLevelWidgets();
    for (QWidget* widget : widgets) {
        if (widget->inherits("QTipLabel") && widget->isVisible()) {
            return widget;
        }
    }
    return nullptr;
}
} // namespace

class TestHoverTip : public QObject
{
    Q_OBJECT

private slots:
    void cleanup()
    {
        QToolTip::hideText();
        QTRY_VERIFY(!QToolTip::isVisible());
    }

    void watchingSwitchesMouseTrackingOn()
    {
        class Watcher : public QObject
        {
        public:
            int moves = 0;

            bool eventFilter(QObject* /*watched*/, QEvent* event) override
            {
                moves += event->type() == QEvent::MouseMove ? 1 : 0;
                return false;
            }
        };
        List list;
        QVERIFY(!list.viewport()->testAttribute(Qt::WA_MouseTracking));
        Watcher watcher;
        watchMouse(list, watcher);
        QVERIFY(list.viewport()->testAttribute(Qt::WA_MouseTracking));
        QMouseEvent move = moveTo({12, 34});
        QApplication::sendEvent(list.viewport(), &move);
        QCOMPARE(watcher.moves, 1);
    }

    void aMoveOverTheViewportHasAPosition()
    {
        const List list;
        const QMouseEvent move = moveTo({12, 34});
        QCOMPARE(mouseMoveOver(list, list.viewport(), &move), std::optional(QPoint(12, 34)));
    }

    void fractionsOfAPixelAreRounded()
    {
        const List list;
        const QMouseEvent move = moveTo({12.6, 34.4});
        QCOMPARE(mouseMoveOver(list, list.viewport(), &move), std::optional(QPoint(13, 34)));
    }

    void otherEventsHaveNoPosition_data()
    {
        QTest::addColumn<int>("type");
        for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease,
                 QEvent::MouseButtonDblClick, QEvent::Enter, QEvent::Leave, QEvent::Wheel,
                 QEvent::Paint, QEvent::ToolTip, QEvent::Timer, QEvent::KeyPress}) {
            QTest::addRow("%d", type) << static_cast<int>(type);
        }
    }

    void otherEventsHaveNoPosition()
    {
        QFETCH(int, type);
        const List list;
        const QEvent event(static_cast<QEvent::Type>(type));
        QVERIFY(!mouseMoveOver(list, list.viewport(), &event).has_value());
    }

    void movesOverOtherWidgetsHaveNoPosition()
    {
        const List list;
        const List other;
        const QMouseEvent move = moveTo({12, 34});
        QVERIFY(!mouseMoveOver(list, other.viewport(), &move).has_value());
        QVERIFY(!mouseMoveOver(list, &list, &move).has_value());
    }

    void theTextUnderThePointerIsOfItsColumn()
    {
        List list;
        QCOMPARE(textUnder(list, list.centreOf(0, 3), 2), QString("Thé"));
        QCOMPARE(textUnder(list, list.centreOf(0, 1), 0), QString("1"));
    }

    void noTextStandsUnderAnEmptyArea()
    {
        const List list;
        QCOMPARE(textUnder(list, QPoint(200, 500), 2), QString());
        QCOMPARE(textUnder(list, QPoint(-5, -5), 2), QString());
    }

    void aTextThatNoScreenHoldsIsCut()
    {
        List list;
        QCOMPARE(textUnder(list, list.centreOf(1, 2), 2), QString(200, 'x') + QChar(0x2026));
        list.model.item(1, 2)->setText(QString(200, 'y'));
        QCOMPARE(textUnder(list, list.centreOf(1, 2), 2), QString(200, 'y'));
    }

    void aCutSplitsNoCharacter()
    {
        List list;
        list.model.item(1, 2)->setText('x' + QString("😀").repeated(150));
        QCOMPARE(textUnder(list, list.centreOf(1, 2), 2),
            'x' + QString("😀").repeated(99) + QChar(0x2026));
    }

    void aTipShowsAndHides()
    {
        QWidget window;
        showTip(window, QPoint(150, 130), QString("Menu\nClick sur : Thé"));
        QVERIFY(QToolTip::isVisible());
        QCOMPARE(QToolTip::text(), QString("Menu\nClick sur : Thé"));
        hideTip();
        QTRY_VERIFY(!QToolTip::isVisible());
    }

    void aNameLikeATagIsPlainText()
    {
        QWidget window;
        showTip(window, QPoint(150, 130), QString("<b>x</b>"));
        const auto* tip = qobject_cast<QLabel*>(shownTip());
        QVERIFY(tip != nullptr);
        QCOMPARE(QToolTip::text(), QString("<p>&lt;b&gt;x&lt;/b&gt;</p>"));
        showTip(window, QPoint(150, 130), QString("Menu\nClick sur : <b>x</b>"));
        QCOMPARE(QToolTip::text(), QString("Menu\nClick sur : <b>x</b>"));
        QVERIFY(!Qt::mightBeRichText(QToolTip::text()));
    }

    void aTipLetsTheMouseThrough()
    {
        QWidget window;
        showTip(window, QPoint(150, 130), QString("Menu"));
        const QWidget* tip = shownTip();
        QVERIFY(tip != nullptr);
        QVERIFY(tip->windowFlags().testFlag(Qt::WindowTransparentForInput));
    }

    void aTipSurvivesQtsOwnRequest()
    {
        List list;
        QVERIFY(QTest::qWaitForWindowActive(&list));
        showTip(list, QPoint(150, 130), QString("Menu"));
        const QPoint point = list.centreOf(0, 2);
        QHelpEvent request(QEvent::ToolTip, point, list.viewport()->mapToGlobal(point));
        QApplication::sendEvent(list.viewport(), &request);
        QTest::qWait(400);
        QVERIFY(QToolTip::isVisible());
        QCOMPARE(QToolTip::text(), QString("Menu"));
    }

    void aMoveWhileATipIsMadeLeavesItAlone()
    {
        /// Asks for a second tip in the middle of the making of the first one.
        class Mover : public QObject
        {
        public:
            int moves = 0;
            QWidget window;

            bool eventFilter(QObject* watched, QEvent* event) override
            {
                if (event->type() == QEvent::Polish && watched->inherits("QTipLabel")
                    && moves == 0) {
                    ++moves;
                    showTip(window, QPoint(150, 130), QString("Ticket"));
                }
                return false;
            }
        };
        Mover mover;
        qApp->installEventFilter(&mover);
        showTip(mover.window, QPoint(150, 130), QString("Menu"));
        QCOMPARE(mover.moves, 1);
        QVERIFY(QToolTip::isVisible());
        QCOMPARE(QToolTip::text(), QString("Menu"));
        showTip(mover.window, QPoint(150, 130), QString("Ticket"));
        QCOMPARE(QToolTip::text(), QString("Ticket"));
    }

    void aLongTipGoesAfterTenSeconds()
    {
        QWidget window;
        QElapsedTimer timer;
        timer.start();
        showTip(window, QPoint(150, 130), QString(300, 'x'));
        QTRY_VERIFY_WITH_TIMEOUT(!QToolTip::isVisible(), 15000);
        QVERIFY2(timer.elapsed() >= 9500, qPrintable(QString::number(timer.elapsed())));
    }
};

VENDEL_TEST(TestHoverTip)
#include "tst_HoverTip.moc"
