// SPDX-License-Identifier: MIT
#include "backoffice/output/HeatMapView.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Widgets.h"

#include <QImage>
#include <QPainter>

namespace {
const QLocale french(QLocale::French, QLocale::France);

/// Two days and three hours: on Tuesday at 10 h nothing, at 11 h 12.50.
HeatMap sample()
{
    return {QStringLiteral("Total HT"), {QStringLiteral("lundi"), QStringLiteral("mardi")},
        {QStringLiteral("9 h"), QStringLiteral("10 h"), QStringLiteral("11 h")},
        {10000, 20000, 50000, 80000, 0, 125000}, CellKind::Money};
}

/// A HeatMap in 600 times 300 units.
HeatMapDrawing drawing(const HeatMap& map)
{
    return {map, french, Ink::onPaper(12), QRectF(0, 0, 600, 300)};
}

QImage drawn(const HeatMapDrawing& drawing)
{
    QImage image(600, 300, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    drawing.draw(painter);
    return image;
}
} // namespace

class GestionHeatMap : public QObject
{
    Q_OBJECT

private slots:
    void aFieldIsDarkerWhereMoreWasSold()
    {
        const HeatMapDrawing map = drawing(sample());
        const QImage image = drawn(map);
        const auto corner = [&](std::size_t row, std::size_t column) {
            // Away from the number in the middle.
            return image.pixelColor((map.field(row, column).topLeft() + QPointF(12, 12)).toPoint());
        };
        QCOMPARE(corner(1, 2), Ink::heat(1));
        QCOMPARE(corner(1, 0), Ink::heat(0.64));
        QCOMPARE(corner(0, 0), Ink::heat(0.08));
        // Where nothing was sold there is no colour.
        QCOMPARE(corner(1, 1).saturation(), 0);
    }

    void theMouseSeesDayHourAndTakings()
    {
        const HeatMapDrawing map = drawing(sample());
        const QString tip = map.tip(map.field(1, 2).center());
        QVERIFY2(tip.startsWith(QStringLiteral("mardi 11 h\n12,50")), qPrintable(tip));
        QVERIFY(map.tip(map.field(1, 1).center()).startsWith(QStringLiteral("mardi 10 h\n0,00")));
        QCOMPARE(map.tip({1, 1}), QString());
    }

    void fieldsFillTheRoomInOrder()
    {
        const HeatMapDrawing map = drawing(sample());
        QCOMPARE(map.field(0, 0).right(), map.field(0, 1).left());
        QCOMPARE(map.field(0, 0).bottom(), map.field(1, 0).top());
        QCOMPARE(map.field(1, 2).right(), 600.0);
        QVERIFY(map.field(1, 2).bottom() < 300);
    }

    void aWideTitleTakesASecondLine()
    {
        HeatMap map = sample();
        const QRectF narrow(0, 0, 200, 300);
        const HeatMapDrawing usual(map, french, Ink::onPaper(12), narrow);
        map.title = QStringLiteral("Total HT par jour de la semaine et par heure");
        const HeatMapDrawing wrapped(map, french, Ink::onPaper(12), narrow);
        QVERIFY(wrapped.field(0, 0).top() >= usual.field(0, 0).top() + 12);
        const QImage image = drawn(wrapped);
        const QImage title
            = image.copy(0, 0, 200, static_cast<int>(wrapped.field(0, 0).top()) - 24);
        const auto isWhite = [&title](int x) {
            QImage column = title.copy(x, 0, 1, title.height());
            QImage white = column;
            white.fill(Qt::white);
            return column == white;
        };
        // Not cut off on either side.
        QVERIFY(isWhite(0));
        QVERIFY(isWhite(199));
        QVERIFY(!isWhite(100));
    }

    void theScaleTakesTheRoomThatItNeeds()
    {
        const int width = 220;
        const HeatMapDrawing map(sample(), french, Ink::onPaper(12), QRectF(0, 0, width, 300));
        const QImage image = drawn(map);
        // Behind the drawing's edge nothing of it is cut off: there is nothing.
        QImage behind = image.copy(width, 0, 600 - width, 300);
        QImage white = behind;
        white.fill(Qt::white);
        QCOMPARE(behind, white);
        // "moins" begins below the names of the days.
        const int top = static_cast<int>(map.field(1, 0).bottom()) + 12;
        QImage below = image.copy(0, top, static_cast<int>(map.field(0, 0).left()), 300 - top);
        QImage empty = below;
        empty.fill(Qt::white);
        QVERIFY(below != empty);
    }

    void nothingSoldIsSaid()
    {
        const HeatMapDrawing map
            = drawing({QStringLiteral("Total HT"), {}, {}, {}, CellKind::Money});
        QCOMPARE(map.tip({300, 150}), QString());
        const QImage image = drawn(map);
        QImage white = image;
        white.fill(Qt::white);
        QVERIFY(image != white);
    }

    void zerosAndDiscountsHaveNoColour()
    {
        HeatMap map = sample();
        map.values = {0, -20000, 0, 0, 0, 0};
        const HeatMapDrawing empty = drawing(map);
        const QImage image = drawn(empty);
        const QPointF corner = empty.field(0, 1).topLeft() + QPointF(12, 12);
        QCOMPARE(image.pixelColor(corner.toPoint()).saturation(), 0);
        QVERIFY(empty.tip(empty.field(0, 1).center()).contains(QStringLiteral("2,00")));
    }

    void theViewShowsAValueUnderTheMouse()
    {
        HeatMapView view(french);
        view.resize(600, 300);
        view.setMap(sample());
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        hoverPoint(view, view.drawing().field(1, 2).center());
        QTRY_VERIFY(tipText().contains(QStringLiteral("12,50")));
    }
};

VENDEL_BARE_TEST(GestionHeatMap)
#include "tst_GestionHeatMap.moc"
