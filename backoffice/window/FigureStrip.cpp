// SPDX-License-Identifier: MIT
#include "backoffice/window/FigureStrip.h"

#include "backoffice/reports/Format.h"

#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <numeric>

namespace {
constexpr std::array parts{"caption", "value", "remark"};

QLabel& part(QWidget& card, const char* name)
{
    return *card.findChild<QLabel*>(QLatin1String(name));
}
/// How many columns cards of \a widths may have within \a room.
int columnsFor(const std::vector<int>& widths, int room)
{
    const std::size_t count = widths.size();
    std::size_t columns = count;
    for (; columns > 1; --columns) {
        std::vector<int> widest(columns, 0);
        for (std::size_t at = 0; at < count; ++at) {
            widest.at(at % columns) = std::max(widest.at(at % columns), widths.at(at));
        }
        if (std::accumulate(widest.begin(), widest.end(), 0) <= room) {
            break;
        }
    }
    // Lines of equal length: 4 and 3 rather than 6 and 1.
    const std::size_t lines = columns == 0 ? 1 : (count + columns - 1) / columns;
    return static_cast<int>((count + lines - 1) / lines);
}
} // namespace

FigureStrip::FigureStrip(const QLocale& locale, QWidget* parent)
    : QWidget(parent)
    , locale_(locale)
    , grid_(new QGridLayout(this))
{
    grid_->setContentsMargins(0, 0, 0, 0);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
}

QWidget* FigureStrip::makeCard()
{
    auto* card = new QFrame(this);
    card->setFrameShape(QFrame::StyledPanel);
    card->setBackgroundRole(QPalette::Base);
    card->setAutoFillBackground(true);
    auto* column = new QVBoxLayout(card);
    constexpr int around = 8;
    constexpr int between = 1;
    column->setContentsMargins(around, around / 2, around, around / 2);
    column->setSpacing(between);
    for (const char* name : parts) {
        auto* label = new QLabel(card);
        label->setObjectName(QLatin1String(name));
        label->setTextFormat(Qt::PlainText);
        column->addWidget(label);
    }
    QLabel& value = part(*card, "value");
    QFont large = value.font();
    constexpr double larger = 1.35;
    large.setPointSizeF(large.pointSizeF() * larger);
    large.setBold(true);
    value.setFont(large);
    value.setTextInteractionFlags(Qt::TextSelectableByMouse);
    return card;
}

void FigureStrip::fillCard(QWidget& card, const KeyFigure& figure) const
{
    const QString value = format(figure.value, figure.kind, locale_);
    part(card, "caption").setText(figure.title);
    part(card, "value").setText(value.isEmpty() ? QStringLiteral("–") : value);
    part(card, "remark").setText(figure.remark);
    card.setAccessibleName(
        QStringList{figure.title, value, figure.remark}.join(QLatin1Char(' ')).trimmed());
}

void FigureStrip::setFigures(const std::vector<KeyFigure>& figures)
{
    while (cards_.size() < figures.size()) {
        cards_.push_back(makeCard());
    }
    bool haveRemarks = false;
    for (std::size_t at = 0; at < cards_.size(); ++at) {
        cards_.at(at)->setVisible(at < figures.size());
        if (at < figures.size()) {
            fillCard(*cards_.at(at), figures.at(at));
            haveRemarks = haveRemarks || !figures.at(at).remark.isEmpty();
        }
    }
    for (QWidget* card : cards_) {
        part(*card, "remark").setVisible(haveRemarks);
    }
    setVisible(!figures.empty());
    columns_ = 0;
    arrange();
}

void FigureStrip::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    arrange();
}

void FigureStrip::arrange()
{
    std::vector<int> widths;
    for (const QWidget* card : cards_) {
        if (!card->isHidden()) {
            widths.push_back(card->sizeHint().width() + grid_->spacing());
        }
    }
    const int count = static_cast<int>(widths.size());
    const int columns = columnsFor(widths, width());
    if (count == 0 || columns == columns_) {
        return;
    }
    for (int column = 0; column < grid_->columnCount(); ++column) {
        grid_->setColumnStretch(column, 0);
    }
    columns_ = columns;
    int at = 0;
    for (QWidget* card : cards_) {
        grid_->removeWidget(card);
        if (!card->isHidden()) {
            grid_->addWidget(card, at / columns, at % columns);
            grid_->setColumnStretch(at % columns, 1);
            ++at;
        }
    }
}
