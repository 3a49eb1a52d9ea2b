// SPDX-License-Identifier: MIT
#include "widgets/HeldKey.h"

#include <QKeyEvent>

bool HeldKey::repeats(const QKeyEvent& event)
{
    const quint64 moment = event.timestamp();
    if (event.type() == QEvent::KeyRelease) {
        released_[event.key()] = moment;
        return false;
    }
    // No finger is up for as short as that.
    constexpr quint64 shortestMs = 10;
    const auto released = released_.constFind(event.key());
    return event.isAutoRepeat()
        || (moment != 0 && released != released_.cend() && moment - *released < shortestMs);
}
