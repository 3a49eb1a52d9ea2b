// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/HeldKey.h"

#include <QObject>

/// Return and Enter press the push button that has the focus, as Space does. A key that is held
/// down presses once: not the same button again, nor the box that it has opened.
class ButtonKeys : public QObject
{
    Q_OBJECT

public:
    /// Looks after all buttons of \a application, which owns it.
    explicit ButtonKeys(QObject* application);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    HeldKey held_;
};
