// SPDX-License-Identifier: MIT
#include "tests/support/TestProgram.h"
#include "widgets/SmallScreen.h"

#include <QCheckBox>
#include <QDialog>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QStandardItemModel>
#include <QStyle>
#include <QTableView>

namespace {
/// Leaves 500 x 300 pixels to a window in its frame.
const QSize smallRoom(508, 338);

/// A fixed window of 1000 x 400 pixels: half of it fits into the small room.
struct FixedWindow : QDialog
{
    FixedWindow()
    {
        setFixedSize(1000, 400);
        setFont(sized(12));
        button->setGeometry(100, 50, 201, 41);
        button->setFont(sized(20));
    }

    static QFont sized(double points)
    {
        QFont font;
        font.setPointSizeF(points);
        return font;
    }

    QPushButton* button = new QPushButton(this);
    QLabel* label = new QLabel(this);
};
} // namespace

class TestSmallScreen : public QObject
{
    Q_OBJECT

private slots:
    void everythingBecomesSmallerByTheSameFactor()
    {
        const SmallScreen small(qApp, smallRoom);
        FixedWindow window;
        window.button->setMinimumSize(60, 20);
        window.show();
        QCOMPARE(window.size(), QSize(500, 200));
        QCOMPARE(window.minimumSize(), QSize(500, 200));
        QCOMPARE(window.maximumSize(), QSize(500, 200));
        QCOMPARE(window.button->geometry(), QRect(50, 25, 100, 20));
        QCOMPARE(window.button->minimumSize(), QSize(30, 10));
        QCOMPARE(window.button->font().pointSizeF(), 10.0);
        QCOMPARE(window.label->font().pointSizeF(), 6.0);
    }

    void theNarrowerSideDecides()
    {
        // 500 x 100 pixels without the frame: a quarter of the height.
        const SmallScreen small(qApp, QSize(508, 138));
        FixedWindow window;
        window.show();
        QCOMPARE(window.size(), QSize(250, 100));
    }

    void aWindowThatFitsStaysAsItIs()
    {
        const SmallScreen enough(qApp, QSize(1008, 438));
        FixedWindow window;
        window.show();
        QCOMPARE(window.size(), QSize(1000, 400));
        QCOMPARE(window.button->geometry(), QRect(100, 50, 201, 41));
        QCOMPARE(window.button->font().pointSizeF(), 20.0);
    }

    void theFrameNeedsRoomToo()
    {
        const SmallScreen aPixelLess(qApp, QSize(1007, 438));
        FixedWindow window;
        window.show();
        QCOMPARE(window.width(), 999);
    }

    void itHappensOnce()
    {
        const SmallScreen small(qApp, smallRoom);
        FixedWindow window;
        window.show();
        window.hide();
        window.show();
        QCOMPARE(window.size(), QSize(500, 200));
        QCOMPARE(window.button->font().pointSizeF(), 10.0);
    }

    void listsKeepTheirProportions()
    {
        const SmallScreen small(qApp, smallRoom);
        FixedWindow window;
        QStandardItemModel model(1, 3);
        QTableView list(&window);
        list.setModel(&model);
        list.setColumnWidth(0, 50);
        list.setColumnWidth(1, 210);
        list.setRowHeight(0, 60);
        list.setColumnHidden(2, true);
        window.show();
        QCOMPARE(list.columnWidth(0), 25);
        QCOMPARE(list.columnWidth(1), 105);
        QCOMPARE(list.rowHeight(0), 30);
        QVERIFY(list.isColumnHidden(2));
    }

    void layoutsBecomeNarrower()
    {
        const SmallScreen small(qApp, smallRoom);
        FixedWindow window;
        auto* row = new QHBoxLayout(&window);
        row->setContentsMargins(20, 30, 40, 50);
        row->setSpacing(12);
        row->addWidget(window.button);
        row->addSpacing(80);
        row->addWidget(window.label);
        window.show();
        QCOMPARE(row->contentsMargins(), QMargins(10, 15, 20, 25));
        QCOMPARE(row->spacing(), 6);
        QCOMPARE(row->itemAt(1)->sizeHint(), QSize(40, 0));
        QCOMPARE(window.button->x(), 10);
        QCOMPARE(window.label->geometry().bottomRight(), QPoint(479, 174));
    }

    void aWindowWithSlackGivesItAway()
    {
        const SmallScreen small(qApp, smallRoom);
        QDialog window;
        window.setMinimumSize(500, 200);
        window.resize(900, 290);
        window.show();
        QCOMPARE(window.size(), QSize(500, 290));
        QCOMPARE(window.minimumSize(), QSize(500, 200));
    }

    void picturesOnButtonsBecomeSmaller()
    {
        const SmallScreen small(qApp, smallRoom);
        FixedWindow window;
        window.button->setIconSize(QSize(32, 16));
        window.show();
        QCOMPARE(window.button->iconSize(), QSize(16, 8));
    }

    void aSquareToCheckStaysWhole()
    {
        // A tenth of the window.
        const SmallScreen small(qApp, QSize(108, 338));
        FixedWindow window;
        QCheckBox box(&window);
        box.setGeometry(100, 200, 30, 30);
        window.show();
        QCOMPARE(box.pos(), QPoint(10, 20));
        QVERIFY(box.width() >= box.style()->pixelMetric(QStyle::PM_IndicatorWidth));
        QVERIFY(box.height() >= box.style()->pixelMetric(QStyle::PM_IndicatorHeight));
    }

    void withoutItNothingChanges()
    {
        FixedWindow window;
        window.show();
        QCOMPARE(window.size(), QSize(1000, 400));
    }

    void theScreenIsTheRoom()
    {
        const int width = QGuiApplication::primaryScreen()->availableSize().width();
        const SmallScreen small(qApp);
        FixedWindow window;
        window.show();
        QCOMPARE(width, 800);
        QCOMPARE(window.width(), 792);
    }

    void aWindowIsCentredWithinTheScreen()
    {
        const QRect screen = QGuiApplication::primaryScreen()->geometry();
        const SmallScreen small(qApp);
        QDialog window;
        window.setFixedSize(200, 100);
        small.centre(window);
        QCOMPARE(window.pos(), screen.center() - QPoint(99, 49));

        // Its title bar would leave the bottom on a screen without a pixel to spare.
        QDialog high;
        high.setFixedSize(200, screen.height() - 38);
        small.centre(high);
        QCOMPARE(high.y(), 0);
    }
};

VENDEL_TEST(TestSmallScreen)
#include "tst_SmallScreen.moc"
