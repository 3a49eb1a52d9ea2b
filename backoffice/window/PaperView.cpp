// SPDX-License-Identifier: MIT
#include "backoffice/window/PaperView.h"

#include <QPainter>
#include <QScrollBar>

#include <algorithm>

namespace {
/// Around each sheet, in pixels.
constexpr int edge = 12;
} // namespace

/// The sheets below one another.
class PaperView::Sheets : public QWidget
{
public:
    using QWidget::QWidget;

    void setPages(PaperPages pages)
    {
        pages_ = std::move(pages);
        update();
    }

    int heightFor(int width) const
    {
        return pages_ ? pages_->count() * (sheet(width).height() + edge) + edge : 0;
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        if (!pages_) {
            return;
        }
        QPainter painter(this);
        painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
        const QSize size = sheet(width());
        const double scale = double{size.width() * 1.0} / PaperPages::size().width();
        for (int page = 0; page < pages_->count(); ++page) {
            const QRect place(
                QPoint((width() - size.width()) / 2, edge + page * (size.height() + edge)), size);
            painter.fillRect(place.translated(3, 3), palette().shadow());
            painter.fillRect(place, Qt::white);
            painter.save();
            painter.setClipRect(place);
            painter.translate(place.topLeft());
            painter.scale(scale, scale);
            pages_->draw(painter, page);
            painter.restore();
        }
    }

private:
    /// A sheet in pixels where all of them have \a width.
    static QSize sheet(int width)
    {
        constexpr int widest = 860;
        const int across = std::clamp(width - 2 * edge, 1, widest);
        return {across, across * PaperPages::size().height() / PaperPages::size().width()};
    }

    std::optional<PaperPages> pages_;
};

PaperView::PaperView(const QLocale& locale, QWidget* parent)
    : QScrollArea(parent)
    , locale_(locale)
    , sheets_(new Sheets)
{
    setWidget(sheets_);
    setWidgetResizable(true);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    sheets_->setBackgroundRole(QPalette::Mid);
    sheets_->setAutoFillBackground(true);
}

void PaperView::setReport(const Report& report)
{
    const int down = verticalScrollBar()->value();
    setAccessibleName(report.title);
    sheets_->setPages(PaperPages(report, locale_));
    fit();
    verticalScrollBar()->setValue(down);
}

void PaperView::resizeEvent(QResizeEvent* event)
{
    QScrollArea::resizeEvent(event);
    fit();
}

void PaperView::fit() { sheets_->setMinimumHeight(sheets_->heightFor(viewport()->width())); }
