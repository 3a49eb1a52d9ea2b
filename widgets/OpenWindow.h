// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

/// Opens a window on top of \a opener, which owns it; it is deleted when it is closed, so the
/// pointer that is returned is for the moment. \a arguments go to the window's constructor in front
/// of its parent.
template <class Window, class... Arguments>
Window* openWindow(QWidget* opener, const Arguments&... arguments)
{
    auto* window = new Window(arguments..., opener);
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->show();
    return window;
}

/// Gives the keyboard to the opener of \a window, which goes together with a box on top of it: a
/// window manager that was about to give the keyboard back to it may give it to no window at all.
inline void activateOpener(const QWidget& window)
{
    if (window.parentWidget() != nullptr) {
        window.parentWidget()->activateWindow();
    }
}
