// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QSize>

class QWidget;

/// Draws each window that its screen has no room for smaller, in its own proportions, before it is
/// first shown. Where there is room nothing changes.
class SmallScreen : public QObject
{
    Q_OBJECT

public:
    /// Looks after all windows that \a application shows while this lives. \a room: what a window
    /// and its frame may take, in pixels; empty for what the screen leaves to windows.
    explicit SmallScreen(QObject* application, QSize room = {});

    /// Fits \a window, which is not yet shown, into its screen, and moves it to the middle, or as
    /// near to it as its frame and the desktop's bars let it.
    void centre(QWidget& window) const;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void fit(QWidget& window) const;

    QSize room_;
};
