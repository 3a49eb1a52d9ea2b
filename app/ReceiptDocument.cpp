// SPDX-License-Identifier: MIT
#include "app/ReceiptDocument.h"

#include <QFontMetricsF>
#include <QTextCursor>
#include <QTextEdit>
#include <QTextFrame>

#include <cmath>

namespace {
using Style = ReceiptLine::Style;

constexpr int paperColumns = 48;
constexpr int tabColumns = 8;
constexpr double doubleSize = 2;

double columnWidth(const QFont& font)
{
    return QFontMetricsF(font).horizontalAdvance(QLatin1Char('0'));
}

/// A face in which the paper's columns fit into \a width pixels; where the narrow one is missing,
/// another is drawn narrower.
QFont fixedPitchFont(int pointSize, int width)
{
    QFont font;
    font.setFamilies({QStringLiteral("Inconsolata"), QStringLiteral("monospace")});
    font.setStyleHint(QFont::Monospace);
    font.setFixedPitch(true);
    font.setPointSize(pointSize);
    const double needed = paperColumns * columnWidth(font);
    if (needed > width) {
        font.setStretch(static_cast<int>(std::floor(100 * width / needed)));
    }
    return font;
}

QTextCharFormat charFormat(const QFont& normal, Style style)
{
    QFont font = normal;
    font.setBold(style != Style::Plain && style != Style::Footer);
    if (style == Style::Title) {
        font.setPointSizeF(normal.pointSizeF() * doubleSize);
    } else if (style == Style::GrandTotal) {
        const int stretch = normal.stretch() == QFont::AnyStretch ? 100 : normal.stretch();
        font.setStretch(2 * stretch);
    }
    QTextCharFormat format;
    format.setFont(font);
    format.setForeground(Qt::black);
    return format;
}

QTextBlockFormat blockFormat(Style style)
{
    QTextBlockFormat format;
    format.setAlignment(style == Style::Title ? Qt::AlignHCenter : Qt::AlignLeft);
    format.setNonBreakableLines(style == Style::GrandTotal);
    return format;
}

QString shownText(const ReceiptLine& line)
{
    const bool centred = line.style == Style::Header || line.style == Style::Footer;
    QString text = centred ? QString::fromStdString(centredLine(line.text)) : line.text;
    // A lone carriage return means something to the printer only.
    return text.remove(QLatin1Char('\r'));
}

/// Gives \a edit margins that leave the paper's width, centred.
void layOutPaper(QTextEdit& edit, const QFont& font, int width)
{
    edit.setFont(font);
    edit.setTabStopDistance(tabColumns * columnWidth(font));
    edit.setWordWrapMode(QTextOption::WrapAnywhere);
    QTextFrameFormat frame = edit.document()->rootFrame()->frameFormat();
    const double margin = std::floor((width - paperColumns * columnWidth(font)) / 2);
    frame.setLeftMargin(margin);
    frame.setRightMargin(margin);
    edit.document()->rootFrame()->setFrameFormat(frame);
}
} // namespace

void showReceipt(const Receipt& receipt, QTextEdit& edit)
{
    const int width = edit.maximumViewportSize().width();
    const QFont font = fixedPitchFont(edit.font().pointSize(), width);
    layOutPaper(edit, font, width);

    QTextCursor cursor = edit.textCursor();
    cursor.beginEditBlock();
    for (const ReceiptLine& line : receipt) {
        cursor.setBlockFormat(blockFormat(line.style));
        cursor.insertText(shownText(line), charFormat(font, line.style));
        cursor.insertBlock();
    }
    cursor.endEditBlock();
    edit.moveCursor(QTextCursor::Start);
}
