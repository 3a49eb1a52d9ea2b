// SPDX-License-Identifier: MIT
#pragma once

#include <QFocusFrame>
#include <QObject>
#include <QPointer>

class QApplication;
class QWidget;

/// Draws a frame, dark outside and light inside, on the button that has the focus: it is seen on
/// blue and on red, and the buttons stay as they are.
class ButtonFrame : public QObject
{
    Q_OBJECT

public:
    /// Looks after all buttons of \a application, which owns it.
    explicit ButtonFrame(QApplication* application);

private:
    void follow(QWidget* focused);

    /// Belongs to the window that it is in.
    QPointer<QFocusFrame> frame_;
};
