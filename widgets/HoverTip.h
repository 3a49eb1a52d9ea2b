// SPDX-License-Identifier: MIT
#pragma once

#include "common/Texts.h"
#include "widgets/ListModel.h"

#include <QPoint>
#include <QPointer>
#include <QString>

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <vector>

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

/// A tip over a list: head and tail of \a message around the text of \a column.
struct HoverTip
{
    QAbstractItemView& view;
    int column;
    const std::array<std::string, 2>& message;
    /// From the mouse's place in the list to the tip's place on the screen, in pixels; without it
    /// the tip is at the cursor.
    std::optional<QPoint> offset;
};

/// The tips over the lists of a window, which calls show() in its event filter. A screen reader
/// hears them with the cells of a list that has a ListModel.
class HoverTips
{
public:
    /// Whether a tip is wanted at \a position in its list, where the text is \a text.
    using IsWanted = std::function<bool(QPoint position, const QString& text)>;

    HoverTips(
        QWidget& window, const Texts& texts,
        IsWanted isWanted = [](QPoint, const QString&) { return true; });
    ~HoverTips();
    HoverTips(const HoverTips&) = delete;
    HoverTips& operator=(const HoverTips&) = delete;
    HoverTips(HoverTips&&) = delete;
    HoverTips& operator=(HoverTips&&) = delete;

    /// Adds a tip and has its list report mouse moves to the window.
    void add(const HoverTip& tip);

    /// Shows the tip of the list that the mouse moves over, or hides any tip where there is no text
    /// or none is wanted; does nothing for another event.
    void show(const QObject* watched, const QEvent* event) const;

private:
    QString explanation(const HoverTip& tip, const QModelIndex& cell) const;

    QWidget& window_;
    Texts texts_;
    IsWanted isWanted_;
    std::vector<HoverTip> tips_;
    std::vector<QPointer<ListModel>> explained_;
};

/// Whether \a position is not the top left pixel of a list, over which some lists show no tip.
bool isOffTheCorner(QPoint position);
