// SPDX-License-Identifier: MIT
#pragma once

#include <QMessageBox>
#include <QPointer>
#include <QTimer>

/// While it lives, fails the running test when a message box stays open for three seconds, and
/// sends the box away: nobody waits for it, and the test would hang until its process is killed.
class BoxGuard
{
public:
    BoxGuard();

private:
    void watch();

    QTimer timer_;
    QPointer<QMessageBox> box_;
    int ticks_ = 0;
};
