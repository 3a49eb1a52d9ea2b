// SPDX-License-Identifier: MIT
#include "backoffice/output/ChartDrawing.h"

#include "backoffice/output/Values.h"

#include <QBarSeries>
#include <QBarSet>
#include <QFontMetricsF>
#include <QGraphicsLayout>
#include <QGraphicsSimpleTextItem>
#include <QHorizontalBarSeries>
#include <QLegendMarker>
#include <QScatterSeries>
#include <QtMath>

#include <algorithm>
#include <cmath>

namespace {
/// Between two labels, and between a label and its axis, in heights of a line.
constexpr double gap = 0.5;
/// More points than these would hide their line.
constexpr std::size_t mostPoints = 62;

QFont bold(QFont font)
{
    font.setBold(true);
    return font;
}

/// The smallest of 1, 2, 2.5 and 5 times a power of ten that is not below \a value.
double niceStep(double value)
{
    constexpr double ten = 10;
    const double power = std::pow(ten, std::floor(std::log10(value)));
    for (const double factor : {1.0, 2.0, 2.5, 5.0}) {
        if (factor * power >= value * (1 - 1e-9)) {
            return factor * power;
        }
    }
    return ten * power;
}

bool hasLegend(const BarChart& chart) { return chart.bars.size() + (chart.line ? 1 : 0) > 1; }
} // namespace

ChartDrawing::ChartDrawing(BarChart chart, const QLocale& locale, const Ink& ink)
    : chart_(std::move(chart))
    , locale_(locale)
    , ink_(ink)
    , names_(*this, ink_)
{
    setLocale(locale_);
    setLocalizeNumbers(true);
    setTitle(chart_.title.toHtmlEscaped());
    setTitleFont(bold(ink_.font));
    setTitleBrush(ink_.text);
    setBackgroundVisible(false);
    setAnimationOptions(QChart::NoAnimation);
    setFont(ink_.font);
    layout()->setContentsMargins(0, 0, 0, 0);
    legend()->setFont(ink_.font);
    legend()->setLabelColor(ink_.text);
    legend()->setVisible(hasLegend(chart_));
    if (chart_.categories.empty()) {
        setTitle(tr("%1\u00a0: rien dans cette période").arg(chart_.title.toHtmlEscaped()));
        return;
    }
    addBars();
    addLine();
    addAxes();
    addLabels();
    keepRoom();
    connect(this, &QChart::geometryChanged, this, [this] { keepRoom(); });
    connect(this, &QChart::plotAreaChanged, this, [this] {
        placeLabels();
        placeLegend();
    });
}

void ChartDrawing::addBars()
{
    QAbstractBarSeries* series = nullptr;
    if (chart_.isHorizontal) {
        series = new QHorizontalBarSeries(this);
    } else {
        series = new QBarSeries(this);
    }
    constexpr double ofTheirRoom = 0.75;
    series->setBarWidth(ofTheirRoom);
    std::size_t number = 0;
    for (const BarChart::Values& bars : chart_.bars) {
        // The legend would take it for HTML.
        auto* set = new QBarSet(bars.name.toHtmlEscaped(), series);
        names_.add(bars.name, ink_.bars(number), ink_.edge(number));
        for (std::size_t at = 0; at < bars.values.size(); ++at) {
            *set << drawn(bars.values.at(place(at)), chart_.kind);
        }
        set->setColor(ink_.bars(number));
        set->setBorderColor(ink_.edge(number));
        series->append(set);
        ++number;
    }
    addSeries(series);
}

void ChartDrawing::addLine()
{
    if (!chart_.line || chart_.isHorizontal) {
        return;
    }
    auto* line = new QLineSeries(this);
    line->setName(chart_.line->name.toHtmlEscaped());
    names_.add(chart_.line->name, ink_.line(), ink_.line());
    double x = 0;
    for (const double value : chart_.line->values) {
        if (!std::isnan(value)) {
            line->append(x, drawn(value, chart_.kind));
        }
        ++x;
    }
    constexpr double width = 1.6;
    line->setPen(QPen(ink_.line(), width, Qt::DashLine));
    addSeries(line);
    if (chart_.line->values.size() <= mostPoints) {
        addPoints(*line);
    }
}

void ChartDrawing::addPoints(const QLineSeries& line)
{
    auto* points = new QScatterSeries(this);
    points->append(line.points());
    constexpr double pointSize = 6;
    points->setMarkerSize(pointSize);
    points->setColor(ink_.line());
    points->setBorderColor(ink_.background);
    addSeries(points);
    const auto markers = legend()->markers(points);
    for (QLegendMarker* marker : markers) {
        marker->setVisible(false);
    }
}

void ChartDrawing::addAxes()
{
    categories_ = new QBarCategoryAxis(this);
    // The axis would cut its labels short, and show equal ones once: it is given numbers, unseen.
    for (std::size_t at = 0; at < chart_.categories.size(); ++at) {
        categories_->append(QString::number(at));
    }
    categories_->setLabelsVisible(false);
    categories_->setGridLineVisible(false);
    categories_->setLinePenColor(ink_.faint);

    values_ = new QValueAxis(this);
    values_->setLabelsFont(ink_.font);
    values_->setLabelsColor(ink_.faint);
    values_->setGridLineColor(ink_.grid);
    values_->setLineVisible(false);
    const Extent extent = extentOf(chart_);
    // Side by side, numbers need more room than one above the other.
    const double steps = chart_.isHorizontal ? 3 : 5;
    double step = niceStep((extent.most - extent.least) / steps);
    if (chart_.kind == CellKind::Count) {
        step = std::max(1.0, step);
    }
    const double bottom = std::floor(extent.least / step) * step;
    const double top = std::ceil(extent.most / step) * step;
    values_->setRange(bottom, top);
    values_->setTickCount(static_cast<int>(std::lround((top - bottom) / step)) + 1);
    values_->setLabelFormat(labelFormat(chart_.kind, step));

    addAxis(categories_, chart_.isHorizontal ? Qt::AlignLeft : Qt::AlignBottom);
    addAxis(values_, chart_.isHorizontal ? Qt::AlignBottom : Qt::AlignLeft);
    const auto all = series();
    for (QAbstractSeries* each : all) {
        each->attachAxis(categories_);
        each->attachAxis(values_);
    }
}

void ChartDrawing::addLabels()
{
    for (const QString& category : chart_.categories) {
        auto* label = new QGraphicsSimpleTextItem(category, this);
        label->setFont(ink_.font);
        label->setBrush(chart_.isHorizontal ? ink_.text : ink_.faint);
        labels_.push_back(label);
    }
}

/// Of a legend in rows; nothing where Qt's has room, which is one row.
double ChartDrawing::legendHeight() const
{
    const double width = size().width();
    const double around = QFontMetricsF(ink_.font).height() * 2;
    return !hasLegend(chart_) || width <= 0 || names_.isOneRow(width - around)
        ? 0
        : names_.heightFor(width - around);
}

void ChartDrawing::placeLegend()
{
    const double line = QFontMetricsF(ink_.font).height();
    const double height = legendHeight();
    // Lying bars are scrolled: below them, it would be out of sight.
    const double top = chart_.isHorizontal ? line * gap : size().height() - height - line * gap;
    names_.show(height > 0 ? QRectF(line, top, size().width() - line * 2, height) : QRectF());
}

void ChartDrawing::keepRoom()
{
    double widest = 0;
    for (const QGraphicsSimpleTextItem* label : labels_) {
        widest = std::max(widest, label->boundingRect().width());
    }
    const double line = QFontMetricsF(ink_.font).height();
    const int least = qCeil(line * gap);
    const int legendRoom = qCeil(legendHeight());
    legend()->setVisible(hasLegend(chart_) && legendRoom == 0);
    if (chart_.isHorizontal) {
        setMargins(
            QMargins(qCeil(widest + line * gap), least + legendRoom, qCeil(line * 2), least));
    } else {
        setMargins(QMargins(
            least, least, qCeil(widest / 2) + least, qCeil(line * (1 + gap)) + legendRoom));
    }
    // Paper is drawn at once.
    layout()->activate();
    placeLegend();
}

void ChartDrawing::placeLabels()
{
    if (labels_.empty()) {
        return;
    }
    if (chart_.isHorizontal) {
        placeBeside();
    } else {
        placeUnder();
    }
}

std::size_t ChartDrawing::thinning(double step) const
{
    const double between = QFontMetricsF(ink_.font).height() * gap;
    std::size_t every = 1;
    for (; every < labels_.size(); ++every) {
        double end = -1e9;
        bool haveRoom = true;
        for (std::size_t at = 0; at < labels_.size() && haveRoom; at += every) {
            const double half = labels_.at(at)->boundingRect().width() / 2;
            const double middle = step * (static_cast<double>(at) + 0.5);
            haveRoom = middle - half >= end + between;
            end = middle + half;
        }
        if (haveRoom) {
            break;
        }
    }
    return every;
}

void ChartDrawing::placeUnder()
{
    const QRectF plot = plotArea();
    const double step = plot.width() / static_cast<double>(labels_.size());
    const std::size_t every = thinning(step);
    const double top = plot.bottom() + QFontMetricsF(ink_.font).height() * gap / 2;
    std::size_t at = 0;
    for (QGraphicsSimpleTextItem* label : labels_) {
        const double middle = plot.left() + step * (static_cast<double>(at) + 0.5);
        label->setPos(middle - label->boundingRect().width() / 2, top);
        label->setVisible(at % every == 0);
        ++at;
    }
}

void ChartDrawing::placeBeside()
{
    const QRectF plot = plotArea();
    const double step = plot.height() / static_cast<double>(labels_.size());
    const double right = plot.left() - QFontMetricsF(ink_.font).height() * gap / 2;
    std::size_t at = 0;
    for (QGraphicsSimpleTextItem* label : labels_) {
        const QSizeF size = label->boundingRect().size();
        // A name that would touch its neighbours is written smaller, never left out.
        const double shrunk = std::min(1.0, step / size.height());
        const double middle = plot.top() + step * (static_cast<double>(at) + 0.5);
        label->setScale(shrunk);
        label->setPos(right - size.width() * shrunk, middle - size.height() * shrunk / 2);
        ++at;
    }
}

std::size_t ChartDrawing::place(std::size_t index) const
{
    // Lying bars are counted from below.
    return chart_.isHorizontal ? chart_.categories.size() - 1 - index : index;
}

QString ChartDrawing::tip(QPointF point) const
{
    const QRectF plot = plotArea();
    if (!plot.contains(point) || chart_.categories.empty()) {
        return {};
    }
    const double along = chart_.isHorizontal ? (point.y() - plot.top()) / plot.height()
                                             : (point.x() - plot.left()) / plot.width();
    const auto count = static_cast<double>(chart_.categories.size());
    const auto at = static_cast<std::size_t>(std::clamp(along * count, 0.0, count - 1));
    QStringList lines{
        chart_.categoryNames.size() > at ? chart_.categoryNames.at(at) : chart_.categories.at(at)};
    const auto add = [&](const BarChart::Values& values) {
        if (std::isnan(values.values.at(at))) {
            return;
        }
        const QString value = formatDrawn(values.values.at(at), chart_.kind, locale_);
        lines += values.name.isEmpty() ? value : tr("%1\u00a0: %2").arg(values.name, value);
    };
    std::for_each(chart_.bars.begin(), chart_.bars.end(), add);
    if (chart_.line) {
        add(*chart_.line);
    }
    return lines.join(QLatin1Char('\n'));
}

double ChartDrawing::heightFor(double width) const
{
    const double line = QFontMetricsF(ink_.font).height();
    // At most a row for each name.
    const double names = hasLegend(chart_) ? names_.heightFor(std::max(0.0, width - line * 2)) : 0;
    if (chart_.isHorizontal) {
        constexpr double around = 6;
        return line * (static_cast<double>(labels_.size()) * 1.4 + around) + names;
    }
    constexpr double widthToHeight = 2.4;
    return width / widthToHeight + (names > line ? names : 0);
}

QStringList ChartDrawing::shownLabels() const
{
    QStringList shown;
    for (const QGraphicsSimpleTextItem* label : labels_) {
        if (label->isVisible()) {
            shown += label->text();
        }
    }
    return shown;
}
