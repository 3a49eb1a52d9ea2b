// SPDX-License-Identifier: MIT
#include "widgets/SmallScreen.h"

#include "widgets/Shrinking.h"

#include <QEvent>
#include <QScreen>
#include <QWidget>

#include <algorithm>

namespace {
/// What desktops draw around a window: borders and a title bar. It is known only once the window is
/// shown, which is too late.
constexpr QSize frame(8, 38);

const QScreen& screenOf(const QWidget& window)
{
    return *(window.parentWidget() == nullptr ? window.screen() : window.parentWidget()->screen());
}

/// The size below which \a window would not show everything.
QSize neededSize(const QWidget& window)
{
    const bool isFixed = window.minimumSize() == window.maximumSize();
    return isFixed ? window.size() : window.minimumSizeHint().expandedTo(window.minimumSize());
}

/// Where \a length begins that is wanted at \a wanted, between \a first and \a end.
int begin(int wanted, int length, int first, int end)
{
    return std::max(first, std::min(wanted, end - length));
}
} // namespace

SmallScreen::SmallScreen(QObject* application, QSize room)
    : QObject(application)
    , room_(room)
{
    application->installEventFilter(this);
}

void SmallScreen::centre(QWidget& window) const
{
    fit(window);
    const QScreen& screen = screenOf(window);
    const QPoint middle = screen.geometry().center() - window.rect().center();
    const QRect room = screen.availableGeometry();
    const QSize framed = window.size() + frame;
    window.move(begin(middle.x(), framed.width(), room.left(), room.left() + room.width()),
        begin(middle.y(), framed.height(), room.top(), room.top() + room.height()));
}

bool SmallScreen::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Show && !event->spontaneous() && watched->isWidgetType()) {
        auto* window = static_cast<QWidget*>(watched);
        if (window->windowType() == Qt::Window || window->windowType() == Qt::Dialog) {
            fit(*window);
        }
    }
    return false;
}

void SmallScreen::fit(QWidget& window) const
{
    const QSize room = (room_.isEmpty() ? screenOf(window).availableSize() : room_) - frame;
    const QSize needed = neededSize(window);
    if (room.isEmpty() || needed.isEmpty()) {
        return;
    }
    const double factor
        = std::min(double(room.width()) / needed.width(), double(room.height()) / needed.height());
    if (factor < 1) {
        Shrinking(factor).apply(window);
    }
    // What is larger than it has to be only gives some of that away.
    const QSize fitting = window.size().boundedTo(room);
    if (fitting != window.size()) {
        window.resize(fitting);
    }
}
