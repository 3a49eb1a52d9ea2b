// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>

class QKeyEvent;

/// Tells a key that is pressed from one that is held down. X11 repeats a held key as a release and
/// a press at the same time, and Qt does not always see that the two belong together.
class HeldKey
{
public:
    /// Takes note of \a event, which presses or releases a key; whether it is a press that the
    /// keyboard repeats.
    bool repeats(const QKeyEvent& event);

private:
    /// When each key was released last, in ms.
    QHash<int, quint64> released_;
};
