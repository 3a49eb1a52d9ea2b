// SPDX-License-Identifier: MIT
#include "backoffice/output/ChartDrawing.h"
#include "backoffice/output/ChartView.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Widgets.h"

#include <QGraphicsScene>
#include <QGraphicsTextItem>
#include <QPainter>

#include <cmath>
#include <limits>

namespace {
const QLocale french(QLocale::French, QLocale::France);

/// \a values in whole euros.
BarChart takings(std::vector<double> values)
{
    BarChart chart;
    chart.title = QStringLiteral("Total HT");
    for (std::size_t at = 0; at < values.size(); ++at) {
        chart.categories.push_back(QString::number(at));
        chart.categoryNames.push_back(QStringLiteral("jour %1").arg(at));
        values.at(at) *= 10000;
    }
    chart.bars.push_back({QStringLiteral("Période"), std::move(values)});
    return chart;
}

/// A chart in a scene of its own, 600 units wide and 300 high.
class Drawn
{
public:
    explicit Drawn(const BarChart& chart, QSizeF size = {600, 300})
        : chart_(new ChartDrawing(chart, french, Ink::onPaper(12)))
    {
        scene_.addItem(chart_);
        chart_->resize(size);
        image_ = QImage(size.toSize(), QImage::Format_RGB32);
        image_.fill(Qt::white);
        QPainter painter(&image_);
        scene_.render(&painter, QRectF(QPointF(), size), chart_->geometry());
    }

    Drawn(const Drawn&) = delete;
    Drawn& operator=(const Drawn&) = delete;

    ChartDrawing& chart() { return *chart_; }
    QColor colour(double x, double y) const { return image_.pixelColor(qRound(x), qRound(y)); }

    /// The height of the bar in the middle of category \a at of \a count, in units.
    int barHeight(int at, int count)
    {
        const QRectF plot = chart_->plotArea();
        const double x = plot.left() + plot.width() * (at + 0.5) / count;
        int height = 0;
        for (double y = plot.top(); y < plot.bottom(); ++y) {
            height += colour(x, y) == QColor(0x56, 0xb4, 0xe9) ? 1 : 0;
        }
        return height;
    }

    /// What the axes, the title and the legend say, with plain blanks.
    QStringList texts() const
    {
        QStringList all;
        const auto items = scene_.items();
        for (const QGraphicsItem* item : items) {
            const auto* text = qgraphicsitem_cast<const QGraphicsTextItem*>(item);
            if (text != nullptr && text->isVisible()) {
                all += text->toPlainText().replace(QChar(0x202f), QLatin1Char(' '));
            }
        }
        return all;
    }

private:
    QGraphicsScene scene_;
    ChartDrawing* chart_;
    QImage image_;
};
} // namespace

class GestionChart : public QObject
{
    Q_OBJECT

private slots:
    void aBarIsAsHighAsItsValue()
    {
        Drawn drawn(takings({100, 200, 50}));
        // The axis ends at 200: the second bar is as high as the plot.
        const double plot = drawn.chart().plotArea().height();
        QVERIFY(std::abs(drawn.barHeight(0, 3) - plot / 2) < 4);
        QVERIFY(std::abs(drawn.barHeight(1, 3) - plot) < 4);
        QVERIFY(std::abs(drawn.barHeight(2, 3) - plot / 4) < 4);
    }

    void theAxisCountsInTheLanguageOfTheReader()
    {
        Drawn drawn(takings({2000, 12000}));
        const QStringList texts = drawn.texts();
        QVERIFY2(
            texts.contains(QStringLiteral("12 500 €")), qPrintable(texts.join(QLatin1Char('|'))));
    }

    void bigNumbersAreNotCutShort()
    {
        Drawn drawn(takings({98765432, 12345678}), {380, 240});
        const QStringList texts = drawn.texts();
        QVERIFY2(texts.filter(QStringLiteral("...")).isEmpty(),
            qPrintable(texts.join(QLatin1Char('|'))));
    }

    void labelsThatWouldTouchAreLeftOutEvenly()
    {
        BarChart chart = takings(std::vector<double>(31, 10));
        for (int day = 1; day <= 31; ++day) {
            chart.categories.at(static_cast<std::size_t>(day - 1))
                = QStringLiteral("%1/11").arg(day);
        }
        Drawn wide(chart, {2000, 300});
        QCOMPARE(wide.chart().shownLabels().size(), 31);
        Drawn narrow(chart, {380, 300});
        const QStringList shown = narrow.chart().shownLabels();
        QVERIFY(shown.size() > 3);
        QVERIFY(shown.size() < 12);
        const int step = shown.at(1).split(QLatin1Char('/')).at(0).toInt() - 1;
        for (int at = 0; at < shown.size(); ++at) {
            QCOMPARE(shown.at(at), QStringLiteral("%1/11").arg(1 + at * step));
        }
    }

    void equalLabelsAreAllShown()
    {
        BarChart chart = takings({1, 2, 3});
        chart.categories = {QStringLiteral("lu"), QStringLiteral("ma"), QStringLiteral("ma")};
        Drawn drawn(chart);
        QCOMPARE(drawn.chart().shownLabels(),
            (QStringList{QStringLiteral("lu"), QStringLiteral("ma"), QStringLiteral("ma")}));
    }

    void theMouseSeesTheDayAndBothValues()
    {
        BarChart chart = takings({1234.5, 0});
        chart.line
            = {QStringLiteral("Avant"), {20000000, std::numeric_limits<double>::quiet_NaN()}};
        Drawn drawn(chart);
        const QRectF plot = drawn.chart().plotArea();
        const QString first
            = drawn.chart().tip({plot.left() + plot.width() / 4, plot.center().y()});
        QCOMPARE(first.split(QLatin1Char('\n')).size(), 3);
        QVERIFY(first.startsWith(QStringLiteral("jour 0\nPériode\u00a0: 1")));
        QVERIFY(first.contains(QStringLiteral("234,50")));
        QVERIFY(first.contains(QStringLiteral("Avant\u00a0: 2")));
        // What the period before has no day for is not said.
        const QString second
            = drawn.chart().tip({plot.right() - plot.width() / 4, plot.center().y()});
        QVERIFY(second.startsWith(QStringLiteral("jour 1\nPériode\u00a0: 0,00")));
        QCOMPARE(second.split(QLatin1Char('\n')).size(), 2);
        QCOMPARE(drawn.chart().tip({plot.left() - 5, plot.center().y()}), QString());
    }

    void theFirstLyingBarIsTheTopOne()
    {
        BarChart chart = takings({400, 100});
        chart.isHorizontal = true;
        chart.categories = {QStringLiteral("Café"), QStringLiteral("Thé")};
        Drawn drawn(chart);
        const QRectF plot = drawn.chart().plotArea();
        const double x = plot.left() + plot.width() / 2;
        QCOMPARE(drawn.colour(x, plot.top() + plot.height() / 4), QColor(0x56, 0xb4, 0xe9));
        QCOMPARE(drawn.colour(x, plot.bottom() - plot.height() / 4), QColor(Qt::white));
        QVERIFY(drawn.chart().tip({x, plot.top() + 5}).startsWith(QStringLiteral("jour 0")));
    }

    void noNameOfALyingBarIsLeftOutOrClipped()
    {
        BarChart chart = takings(std::vector<double>(30, 10));
        chart.isHorizontal = true;
        for (QString& name : chart.categories) {
            name = QStringLiteral("Assiette anglaise ") + name;
        }
        Drawn drawn(chart, {400, 200});
        QCOMPARE(drawn.chart().shownLabels().size(), 30);
        QVERIFY(drawn.chart().plotArea().left() > 100);
    }

    void namesThatHaveNoRoomInARowAreInSeveral()
    {
        BarChart chart = takings({10, 20});
        chart.bars.push_back({QStringLiteral("Terrasse & jardin"), {100000, 100000}});
        chart.bars.push_back({QStringLiteral("<b>Salle</b>"), {100000, 100000}});
        for (const bool isHorizontal : {false, true}) {
            chart.isHorizontal = isHorizontal;
            Drawn narrow(chart, {200, 300});
            QCOMPARE(narrow.chart().namesInRows(),
                (QStringList{QStringLiteral("Période"), QStringLiteral("Terrasse & jardin"),
                    QStringLiteral("<b>Salle</b>")}));
            Drawn wide(chart, {900, 300});
            QCOMPARE(wide.chart().namesInRows(), QStringList());
            QVERIFY(wide.texts().contains(QStringLiteral("<b>Salle</b>")));
            // Rows take room of the bars, as soon as the chart has its size.
            QVERIFY(narrow.chart().plotArea().height() < wide.chart().plotArea().height());
        }
    }

    void aNameLongerThanTheChartIsCutShort()
    {
        BarChart chart = takings({10, 20});
        chart.bars.push_back({QString(80, QLatin1Char('m')), {100000, 100000}});
        Drawn drawn(chart, {300, 300});
        QCOMPARE(drawn.chart().namesInRows().size(), 2);
        QVERIFY(drawn.chart().namesInRows().at(1).endsWith(QChar(0x2026)));
    }

    void aChartOfNothingSaysSo()
    {
        Drawn drawn(takings({}));
        QVERIFY(drawn.texts().contains(QStringLiteral("Total HT : rien dans cette période")));
        QCOMPARE(drawn.chart().tip({300, 150}), QString());
    }

    void aChartOfZerosHasAnAxis()
    {
        Drawn drawn(takings({0, 0}));
        QCOMPARE(drawn.barHeight(0, 2), 0);
        QVERIFY(drawn.texts().contains(QStringLiteral("1,00 €")));
    }

    void discountsHangBelowZero()
    {
        Drawn drawn(takings({-100, 100}));
        const QRectF plot = drawn.chart().plotArea();
        QCOMPARE(drawn.colour(plot.left() + plot.width() / 4, plot.bottom() - plot.height() / 8),
            QColor(0x56, 0xb4, 0xe9));
        QCOMPARE(drawn.colour(plot.right() - plot.width() / 4, plot.bottom() - plot.height() / 8),
            QColor(Qt::white));
    }

    void theViewShowsAValueUnderTheMouse()
    {
        ChartView view(french);
        view.resize(600, 300);
        view.setBars(takings({1234.5}));
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        const QPointF middle = view.chart()->plotArea().center();
        QVERIFY(!view.chart()->plotArea().isEmpty());
        hoverPoint(*view.viewport(), view.mapFromScene(middle));
        QTRY_VERIFY(tipText().contains(QStringLiteral("234,50")));
    }
};

VENDEL_BARE_TEST(GestionChart)
#include "tst_GestionChart.moc"
