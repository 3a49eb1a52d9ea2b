// SPDX-License-Identifier: MIT
#pragma once

#include "backoffice/output/HeatMapDrawing.h"

#include <QFrame>

/// A heat map on the screen, with its values under the mouse.
class HeatMapView : public QFrame
{
    Q_OBJECT

public:
    explicit HeatMapView(const QLocale& locale, QWidget* parent = nullptr);

    /// Shows \a map in place of the one before.
    void setMap(const HeatMap& map);

    /// The map as it is drawn now.
    HeatMapDrawing drawing() const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    QLocale locale_;
    HeatMap map_;
};
