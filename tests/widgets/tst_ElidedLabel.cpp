// SPDX-License-Identifier: MIT
#include "tests/support/TestProgram.h"
#include "widgets/ElidedLabel.h"

#include <QPixmap>

namespace {
QImage painted(QLabel& label, const QString& text)
{
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

    void paintsAShortTextWhole()
    {
        ElidedLabel label;
        QLabel plain;
        QCOMPARE(painted(label, QString("Café & Thé")), painted(plain, QString("Café & Thé")));
    }

    void endsALongTextInDots()
    {
        ElidedLabel label;
        const QImage image = painted(label, QString(100, 'W'));
        bool found = false;
        for (int letters = 1; letters < 20 && !found; ++letters) {
            QLabel plain;
            found = image == painted(plain, QString(letters, 'W') + QChar(0x2026));
        }
        QVERIFY(found);
    }

    void showsTagsAsText()
    {
        ElidedLabel label;
        QLabel plain;
        QCOMPARE(painted(label, QString("<b>T</b>")), painted(plain, QString("<b>T</b>")));
    }
};

VENDEL_TEST(TestElidedLabel)
#include "tst_ElidedLabel.moc"
