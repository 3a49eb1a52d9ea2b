// SPDX-License-Identifier: MIT
#include "app/ReceiptDocument.h"
#include "tests/support/TestProgram.h"

#include <QTextBlock>
#include <QTextEdit>
#include <QTextLayout>

namespace {
constexpr int narrow = 300;

QTextLine firstLine(const QTextEdit& edit, int block)
{
    return edit.document()->findBlockByNumber(block).layout()->lineAt(0);
}

void showNarrow(QTextEdit& edit, const Receipt& receipt)
{
    QFont font = edit.font();
    font.setPointSize(12);
    edit.setFont(font);
    edit.setFixedWidth(narrow);
    edit.show();
    showReceipt(receipt, edit);
}
} // namespace

/// A receipt in a window where the face is too wide for the paper's columns.
class TestReceiptDocument : public QObject
{
    Q_OBJECT

private slots:
    void aWideFaceIsDrawnNarrower()
    {
        QTextEdit edit;
        showNarrow(edit, {{ReceiptLine::Style::Plain, QString(48, '0')}});
        QCOMPARE(firstLine(edit, 0).textLength(), 48);
        QVERIFY(firstLine(edit, 0).naturalTextWidth() <= narrow);
    }

    void aTotalIsTwiceAsWideAsTheNarrowFace()
    {
        QTextEdit edit;
        const QString digits(24, '0');
        showNarrow(
            edit, {{ReceiptLine::Style::Plain, digits}, {ReceiptLine::Style::GrandTotal, digits}});
        const double plain = firstLine(edit, 0).naturalTextWidth();
        const double wide = firstLine(edit, 1).naturalTextWidth();
        QVERIFY(wide > 1.7 * plain);
        QVERIFY(wide < 2.3 * plain);
    }
};

VENDEL_TEST(TestReceiptDocument)
#include "tst_ReceiptDocument.moc"
