// SPDX-License-Identifier: MIT
#include "tests/support/TestProgram.h"
#include "widgets/ElidedLabel.h"

#include <QImage>
#include <QLabel>
#include <QPixmap>

namespace {
/// What a label of 120 x 24 pixels shows of \a text.
template <class Label> QImage painted(const QString& text)
{
    Label label;
    label.setTextFormat(Qt::PlainText);
    label.setText(text);
    label.setFixedSize(120, 24);
    return label.grab().toImage();
}
} // namespace

class TestElidedLabel : public QObject
{
    Q_OBJECT

private slots:
    void takesNoRoomOfItsOwn()
    {
        ElidedLabel label;
        label.setText(QString(300, 'W'));
        QCOMPARE(label.minimumSizeHint().width(), 0);
        QVERIFY(label.minimumSizeHint().height() > 0);
        QCOMPARE(label.text().size(), 300);
    }

    void paintsAShortTextAsItIs()
    {
        for (const char* text : {"Café & Thé", "<b>T</b>"}) {
            QCOMPARE(painted<ElidedLabel>(text), painted<QLabel>(text));
        }
    }

    void endsALongTextInDots()
    {
        const QImage image = painted<ElidedLabel>(QString(100, 'W'));
        bool isFound = false;
        for (int letters = 1; letters < 20 && !isFound; ++letters) {
            isFound = image == painted<QLabel>(QString(letters, 'W') + QChar(0x2026));
        }
        QVERIFY(isFound);
    }
};

VENDEL_TEST(TestElidedLabel)
#include "tst_ElidedLabel.moc"
