// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

/// A label of one line that ends in dots where its text finds no room, so that its neighbours keep
/// theirs; text() stays whole.
class ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    using QLabel::QLabel;

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};
