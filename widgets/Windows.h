// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

/// Opens a window on top of \a opener; it is deleted when it is closed, since nothing keeps a
/// pointer to it for long. \a arguments go to the window's constructor in front of its parent.
template <class Window, class... Arguments>
Window* openWindow(QWidget* opener, const Arguments&... arguments)
{
    auto* window = new Window(arguments..., opener);
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->show();
    return window;
}
