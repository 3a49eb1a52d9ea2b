// SPDX-License-Identifier: MIT
#include "common/Messages.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Widgets.h"
#include "widgets/HoverTip.h"
#include "widgets/ListModel.h"
#include "widgets/Lists.h"

#include <QCoreApplication>
#include <QLabel>
#include <QMouseEvent>
#include <QTableView>
#include <QTextDocument>
#include <QToolTip>

namespace {
/// A list of two articles, the second with a long name.
struct List : QTableView
{
    ListModel model;

    List()
    {
        constexpr Texts texts{"FormVendelMessages"};
        setUpList(*this, model, texts, Messages::Messages97, {50, 25, 210, 110}, {0});
        ListFiller filler(*this, model);
        filler.add({"1", "", "Thé", ""});
        filler.add({"2", "", QString(300, 'x'), ""});
        resize(400, 560);
        show();
    }

    QPoint centreOf(int row, int column) const
    {
        return visualRect(model.index(row, column)).center();
    }

    /// The name under the pointer over the second article.
    QString longName() const { return textUnder(*this, centreOf(1, 2), 2); }
};

QMouseEvent moveTo(const QPointF& point)
{
    return {QEvent::MouseMove, point, point, Qt::NoButton, Qt::NoButton, Qt::NoModifier};
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
        List list;
        QVERIFY(!list.viewport()->testAttribute(Qt::WA_MouseTracking));
        QObject nothing;
        EventCount moves(nothing, QEvent::MouseMove);
        watchMouse(list, moves);
        QVERIFY(list.viewport()->testAttribute(Qt::WA_MouseTracking));
        hoverPoint(*list.viewport(), {12, 34});
        QCOMPARE(moves.value(), 1);
    }

    void aMoveOverTheViewportHasItsRoundedPosition()
    {
        const List list;
        const QMouseEvent move = moveTo({12, 34});
        QCOMPARE(mouseMoveOver(list, list.viewport(), &move), std::optional(QPoint(12, 34)));
        const QMouseEvent between = moveTo({12.6, 34.4});
        QCOMPARE(mouseMoveOver(list, list.viewport(), &between), std::optional(QPoint(13, 34)));
    }

    void movesOverOtherWidgetsHaveNoPosition()
    {
        const List list;
        const List other;
        const QMouseEvent move = moveTo({12, 34});
        QVERIFY(!mouseMoveOver(list, other.viewport(), &move).has_value());
        QVERIFY(!mouseMoveOver(list, &list, &move).has_value());
    }

    void otherEventsHaveNoPosition()
    {
        const List list;
        for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease,
                 QEvent::MouseButtonDblClick, QEvent::Enter, QEvent::Leave, QEvent::Wheel,
                 QEvent::Paint, QEvent::ToolTip, QEvent::Timer, QEvent::KeyPress}) {
            const QEvent event(type);
            QVERIFY2(!mouseMoveOver(list, list.viewport(), &event).has_value(),
                qPrintable(QString::number(type)));
        }
    }

    void theTextUnderThePointerIsOfItsColumn()
    {
        const List list;
        QCOMPARE(textUnder(list, list.centreOf(0, 3), 2), QString("Thé"));
        QCOMPARE(textUnder(list, list.centreOf(0, 1), 0), QString("1"));
        QCOMPARE(textUnder(list, QPoint(200, 500), 2), QString());
        QCOMPARE(textUnder(list, QPoint(-5, -5), 2), QString());
    }

    void aTextThatNoScreenHoldsIsCutBetweenCharacters()
    {
        List list;
        QCOMPARE(list.longName(), QString(200, 'x') + QChar(0x2026));
        list.model.item(1, 2)->setText(QString(200, 'y'));
        QCOMPARE(list.longName(), QString(200, 'y'));
        list.model.item(1, 2)->setText('x' + QString("😀").repeated(150));
        QCOMPARE(list.longName(), 'x' + QString("😀").repeated(99) + QChar(0x2026));
    }

    void aTipShowsAndHidesAndLetsTheMouseThrough()
    {
        QWidget window;
        showTip(window, QPoint(150, 130), "Menu\nClick sur : Thé");
        QCOMPARE(tipText(), QString("Menu\nClick sur : Thé"));
        QVERIFY(visibleTip()->windowFlags().testFlag(Qt::WindowTransparentForInput));
        hideTip();
        QTRY_VERIFY(!QToolTip::isVisible());
    }

    void aNameLikeATagIsPlainText()
    {
        QWidget window;
        showTip(window, QPoint(150, 130), "<b>x</b>");
        QVERIFY(qobject_cast<QLabel*>(visibleTip()) != nullptr);
        QCOMPARE(QToolTip::text(), QString("<p>&lt;b&gt;x&lt;/b&gt;</p>"));
        showTip(window, QPoint(150, 130), "Menu\nClick sur : <b>x</b>");
        QCOMPARE(QToolTip::text(), QString("Menu\nClick sur : <b>x</b>"));
        QVERIFY(!Qt::mightBeRichText(QToolTip::text()));
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
                    showTip(window, QPoint(150, 130), "Ticket");
                }
                return false;
            }
        };
        Mover mover;
        qApp->installEventFilter(&mover);
        showTip(mover.window, QPoint(150, 130), "Menu");
        QCOMPARE(mover.moves, 1);
        QCOMPARE(tipText(), QString("Menu"));
        showTip(mover.window, QPoint(150, 130), "Ticket");
        QCOMPARE(tipText(), QString("Ticket"));
    }
};

VENDEL_TEST(TestHoverTip)
#include "tst_HoverTip.moc"
