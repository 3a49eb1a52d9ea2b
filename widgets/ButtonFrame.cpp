// SPDX-License-Identifier: MIT
#include "widgets/ButtonFrame.h"

#include <QApplication>
#include <QPainter>
#include <QProxyStyle>
#include <QPushButton>
#include <QStyleOption>

namespace {
/// Has a focus frame drawn over its widget's edge, as two lines of two pixels each.
class FrameStyle : public QProxyStyle
{
public:
    int pixelMetric(PixelMetric metric, const QStyleOption* option = nullptr,
        const QWidget* widget = nullptr) const override
    {
        const bool isMargin = metric == PM_FocusFrameHMargin || metric == PM_FocusFrameVMargin;
        return isMargin ? 0 : QProxyStyle::pixelMetric(metric, option, widget);
    }

    int styleHint(StyleHint hint, const QStyleOption* option = nullptr,
        const QWidget* widget = nullptr, QStyleHintReturn* returned = nullptr) const override
    {
        return hint == SH_FocusFrame_AboveWidget
            ? 1
            : QProxyStyle::styleHint(hint, option, widget, returned);
    }

    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
        const QWidget* widget = nullptr) const override
    {
        if (element != CE_FocusFrame) {
            QProxyStyle::drawControl(element, option, painter, widget);
            return;
        }
        QRect line = option->rect;
        for (const auto colour : {Qt::black, Qt::white}) {
            for (int pixel = 0; pixel < 2; ++pixel) {
                painter->setPen(colour);
                painter->drawRect(line.adjusted(0, 0, -1, -1));
                line.adjust(1, 1, -1, -1);
            }
        }
    }
};
} // namespace

ButtonFrame::ButtonFrame(QApplication* application)
    : QObject(application)
{
    connect(application, &QApplication::focusChanged, this,
        [this](QWidget* /*before*/, QWidget* focused) { follow(focused); });
}

void ButtonFrame::follow(QWidget* focused)
{
    auto* button = qobject_cast<QPushButton*>(focused);
    if (button != nullptr && frame_ == nullptr) {
        frame_ = new QFocusFrame(button->window());
        auto* style = new FrameStyle;
        style->setParent(frame_);
        frame_->setStyle(style);
    }
    if (frame_ != nullptr) {
        frame_->setWidget(button);
    }
}
