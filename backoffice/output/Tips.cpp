// SPDX-License-Identifier: MIT
#include "backoffice/output/Tips.h"

#include <QTextDocument>
#include <QToolTip>
#include <QWidget>

void showTip(QWidget& widget, QPoint point, const QString& text)
{
    if (text.isEmpty()) {
        QToolTip::hideText();
        return;
    }
    // An article may be called "<b>".
    const QString shown
        = Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal) : text;
    QToolTip::showText(widget.mapToGlobal(point), shown, &widget);
}
