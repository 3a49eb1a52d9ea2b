// SPDX-License-Identifier: MIT
#include "app/ReceiptDocument.h"

#include <QFontMetricsF>
#include <QTextCursor>
#include <QTextEdit>

namespace {
using Style = ReceiptLine::Style;

constexpr int tabColumns = 8;
constexpr double doubleSize = 2;
constexpr int doubleWidth = 200;

/// A face in which 48 columns of 12 points fit the window beside a scroll bar.
QFont fixedPitchFont(int pointSize)
{
    QFont font;
    font.setFamilies({QStringLiteral("Inconsolata"), QStringLiteral("monospace")});
    font.setStyleHint(QFont::Monospace);
    font.setFixedPitch(true);
    font.setPointSize(pointSize);
    return font;
}

QTextCharFormat charFormat(const QFont& normal, Style style)
{
    QFont font = normal;
    font.setBold(style != Style::Plain && style != Style::Footer);
    if (style == Style::Title) {
        font.setPointSizeF(normal.pointSizeF() * doubleSize);
    } else if (style == Style::GrandTotal) {
        font.setStretch(doubleWidth);
    }
    QTextCharFormat format;
    format.setFont(font);
    format.setForeground(Qt::black);
    return format;
}

QString shownText(const ReceiptLine& line)
{
    const bool centred = line.style == Style::Header || line.style == Style::Footer;
    QString text = centred ? QString::fromStdString(centredLine(line.text)) : line.text;
    // Paper knows a carriage return without a line feed, the window does not.
    return text.remove(QLatin1Char('\r'));
}
} // namespace

void showReceipt(const Receipt& receipt, QTextEdit& edit)
{
    const QFont font = fixedPitchFont(edit.font().pointSize());
    edit.setFont(font);
    edit.setTabStopDistance(tabColumns * QFontMetricsF(font).horizontalAdvance(QLatin1Char('0')));

    QTextCursor cursor = edit.textCursor();
    for (const ReceiptLine& line : receipt) {
        QTextBlockFormat block;
        block.setAlignment(line.style == Style::Title ? Qt::AlignHCenter : Qt::AlignLeft);
        cursor.setBlockFormat(block);
        cursor.insertText(shownText(line), charFormat(font, line.style));
        cursor.insertBlock();
    }
}
