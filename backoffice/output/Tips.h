// SPDX-License-Identifier: MIT
#pragma once

#include <QPoint>
#include <QString>

class QWidget;

/// Shows \a text, letter by letter whatever markup it looks like, beside the mouse at \a point of
/// \a widget; an empty one hides what is shown.
void showTip(QWidget& widget, QPoint point, const QString& text);
