// SPDX-License-Identifier: MIT
#include "widgets/ElidedLabel.h"

#include <QPainter>

QSize ElidedLabel::minimumSizeHint() const { return {0, QLabel::minimumSizeHint().height()}; }

void ElidedLabel::paintEvent(QPaintEvent* /*event*/)
{
    const QRect room = contentsRect();
    QPainter(this).drawText(room, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
        fontMetrics().elidedText(text(), Qt::ElideRight, room.width()));
}
