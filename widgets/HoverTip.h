// SPDX-License-Identifier: MIT
#pragma once

#include "common/Texts.h"

#include <QPoint>
#include <QString>

#include <array>
#include <functional>
#include <optional>
#include <string>

class QAbstractItemView;
class QEvent;
class QObject;
class QWidget;

/// Has \a view report mouse moves over its viewport to \a window's event filter.
void watchMouse(QAbstractItemView& view, QObject& window);

/// The position in whole pixels of a mouse move over \a view's viewport; nothing for any other
/// event, since only mouse events carry one.
std::optional<QPoint> mouseMoveOver(
    const QAbstractItemView& view, const QObject* watched, const QEvent* event);

/// The text of \a column in the row under \a position (viewport pixels), empty when there is none;
/// a text that no screen could hold is cut short.
QString textUnder(const QAbstractItemView& view, QPoint position, int column);

/// Shows \a text as a plain-text tip of \a window at \a point (screen pixels) for ten seconds.
void showTip(QWidget& window, QPoint point, const QString& text);

/// Takes any tip away.
void hideTip();

/// What the mouse over a list is told: head and tail of \a message around the text of \a column.
struct HoverTip
{
    const QAbstractItemView& view;
    int column;
    const std::array<std::string, 2>& message;
    /// From the mouse's place in the list to the tip's place on the screen, in pixels; without it
    /// the tip is at the cursor.
    std::optional<QPoint> offset;
};

/// Shows \a tip for a mouse move over its list, or hides any tip where there is no text or
/// \a isWanted says no.
void showTipOver(
    QWidget& window, const Texts& texts, const HoverTip& tip, const QObject* watched,
    const QEvent* event,
    const std::function<bool(QPoint position, const QString& text)>& isWanted
    = [](QPoint, const QString&) { return true; });
