// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QStringList>
#include <QWidget>

/// What a screen reader finds in \a window (of the accessibility tree, recursively) and has no
/// words for: windows, buttons, fields, lists and their cells and headers, menus. One line each.
QStringList namelessControls(QObject& window);

/// Names that two controls of the same kind in \a window share, so that nobody who hears them can
/// tell them apart.
QStringList ambiguousNames(QObject& window);

/// What a screen reader calls \a widget.
QString spokenName(QObject& widget);

/// The enabled controls of \a window that neither Tab, Shift+Tab nor, among radio buttons, the
/// arrows lead to; the window has the keyboard. Tab must come round to where it began.
QStringList controlsOutOfReach(QWidget& window);
