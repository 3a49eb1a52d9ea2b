// SPDX-License-Identifier: MIT
#pragma once

#include <QPoint>
#include <QString>

#include <optional>

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
